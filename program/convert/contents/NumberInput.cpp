#include "convert/contents/NumberInput.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <fstream>
#include <string>
#include <utility>

#include <plot3d/Error.h>

#include "convert/contents/ValueConversion.h"

namespace plot3d::program {

namespace {

constexpr int doubleBits = 64;
constexpr std::int64_t longestSegment = 2147483639;

class OpenFile {
public:
    explicit OpenFile(const std::string& path) : path_(path), in_(path, std::ios::binary) {
        if (!in_)
            fail();
    }
    void read(void* bytes, std::int64_t count) {
        if (!in_.read(static_cast<char*>(bytes), count))
            fail();
    }
    void seek(std::int64_t position) {
        if (!in_.seekg(position))
            fail();
    }
    std::int64_t tell() { return in_.tellg(); }
    int next() { return in_.get(); }
    [[noreturn]] void fail() const {
        ErrorFacts facts;
        facts.file = path_;
        throw Error(ErrorKind::Unreadable, "the scalars of the solution can't be read",
                    std::move(facts));
    }

private:
    std::string path_;
    std::ifstream in_;
};

class BinaryInput : public NumberInput {
public:
    explicit BinaryInput(const FileInfo& info)
        : file_(info.file), isDouble_(info.precision == doubleBits),
          isSwapped_((info.byteOrder.value_or(ByteOrder::Little) == ByteOrder::Little) !=
                     (std::endian::native == std::endian::little)) {}

    std::int32_t nextInteger() override { return next<std::int32_t>(ValueType::Int32); }
    double nextReal() override {
        return isDouble_ ? next<double>(ValueType::Float64)
                         : static_cast<double>(next<float>(ValueType::Float32));
    }
    void skipReals(std::int64_t count) override { file_.seek(file_.tell() + count * realWidth()); }

protected:
    std::int64_t realWidth() const { return isDouble_ ? 8 : 4; }

    template <class Number>
    Number next(ValueType type) {
        Number number{};
        file_.read(&number, sizeof number);
        if (isSwapped_)
            swapBytes(&number, type, 1);
        return number;
    }

    OpenFile file_;

private:
    bool isDouble_;
    bool isSwapped_;
};

/// Scalars and headers lie in the first segment of their record; longer records are only passed.
class FortranInput final : public BinaryInput {
public:
    explicit FortranInput(const FileInfo& info)
        : BinaryInput(info), markerBytes_(info.markerBytes.value_or(4)) {
        beginRecord();
    }

    void nextRecord() override {
        bool goesOn = false;
        do {
            file_.seek(start_ + segment_ + markerBytes_);
            goesOn = continues_;
            beginRecord();
        } while (goesOn);
    }
    std::int64_t realsLeft() const override {
        return (start_ + segment_ - const_cast<FortranInput*>(this)->file_.tell()) / realWidth();
    }

private:
    void beginRecord() {
        const std::int64_t marker =
            markerBytes_ == 8 ? std::bit_cast<std::int64_t>(next<double>(ValueType::Float64))
                              : next<std::int32_t>(ValueType::Int32);
        continues_ = marker == -longestSegment;
        segment_ = std::abs(marker);
        start_ = file_.tell();
    }

    int markerBytes_;
    std::int64_t start_ = 0;   // of the segment's payload
    std::int64_t segment_ = 0; // its bytes
    bool continues_ = false;
};

bool isSeparator(int letter) {
    return letter == ' ' || letter == '\t' || letter == ',' || letter == '\n' || letter == '\r';
}

class TextInput final : public NumberInput {
public:
    TextInput(const FileInfo& info, std::stop_token stop)
        : file_(info.file), stop_(std::move(stop)) {}

    std::int32_t nextInteger() override { return static_cast<std::int32_t>(nextReal()); }
    double nextReal() override {
        fetch();
        --repeats_;
        return value_;
    }
    void skipReals(std::int64_t count) override {
        while (count > 0) {
            fetch();
            const std::int64_t passed = std::min(count, repeats_);
            repeats_ -= passed;
            count -= passed;
        }
    }

private:
    void fetch() {
        if (repeats_ > 0)
            return;
        repeats_ = 1;
        std::string token = nextToken();
        for (std::size_t star = token.find('*'); star != std::string::npos;
             star = token.find('*')) {
            constexpr double slack = 0.01; // a count may be spelled as a real
            repeats_ = static_cast<std::int64_t>(real(token.substr(0, star)) + slack);
            token.erase(0, star + 1);
            if (token.empty())
                token = nextToken();
        }
        value_ = real(token);
    }

    std::string nextToken() {
        constexpr std::int64_t tokensBetweenLooks = 1 << 16;
        if (++tokens_ % tokensBetweenLooks == 0 && stop_.stop_requested())
            throw Error(ErrorKind::Interrupted, "interrupted");
        int letter = file_.next();
        while (isSeparator(letter))
            letter = file_.next();
        std::string token;
        for (; letter >= 0 && !isSeparator(letter); letter = file_.next())
            token += letter == 'D' || letter == 'd' ? 'e' : static_cast<char>(letter);
        if (token.empty())
            file_.fail();
        return token;
    }

    static double real(const std::string& token) { return std::strtod(token.c_str(), nullptr); }

    OpenFile file_;
    std::stop_token stop_;
    std::int64_t tokens_ = 0;
    std::int64_t repeats_ = 0; // of value_, still to be given
    double value_ = 0.0;
};

} // namespace

std::unique_ptr<NumberInput> openNumbers(const FileInfo& info, const std::stop_token& stop) {
    switch (info.encoding.value_or(Encoding::Binary)) {
    case Encoding::Text:
        return std::make_unique<TextInput>(info, stop);
    case Encoding::Binary:
        return std::make_unique<BinaryInput>(info);
    case Encoding::Fortran:
        return std::make_unique<FortranInput>(info);
    }
    return nullptr;
}

} // namespace plot3d::program
