#include "inspect/evidence/HeaderGuess.h"

#include <cmath>
#include <limits>

#include "plot3dfile/bytes/ByteOrder.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace plot3dlib {

namespace {

constexpr std::int32_t mostGrids = 10'000;

/// Integers one behind the other, in any encoding.
class Integers {
public:
    Integers(Evidence_s& evidence, io::Plot3DRecordForm_s form)
        : evidence_(evidence), form_(std::move(form)) {
        record_.stream = evidence.file.stream();
        record_.fileSize = evidence.file.size();
        static_cast<io::Plot3DRecordForm_s&>(record_) = form_;
        io::rewindPlot3DFile(record_);
    }

    /// Must be asked ahead of each record; its length must be `count` integers.
    bool enterRecord(std::int64_t count) {
        if (form_.encoding != io::Plot3DEncoding_FortranUnformatted)
            return true;
        if (!io::nextRecord(record_, false, nullptr) ||
            record_.recordLength != count * io::integerWidth)
            return false;
        position_ = record_.stream->tell();
        return true;
    }

    std::optional<std::int32_t> next() {
        if (form_.encoding == io::Plot3DEncoding_Ascii)
            return nextOfText();
        const std::int64_t position = position_;
        position_ += io::integerWidth;
        return integerAt(evidence_.file, position, form_.byteSwap);
    }

    /// Behind the header.
    std::int64_t position() const {
        return form_.encoding == io::Plot3DEncoding_FortranUnformatted ? record_.nextRecordStart
                                                                       : position_;
    }

    std::int64_t sizeBehind() {
        if (form_.encoding == io::Plot3DEncoding_Ascii)
            return evidence_.text->valueCount() - position_;
        if (form_.encoding == io::Plot3DEncoding_Binary)
            return evidence_.file.size() - position_;
        std::int64_t bytes = 0;
        while (record_.nextRecordStart < record_.fileSize &&
               io::nextRecord(record_, false, nullptr))
            bytes += record_.recordLength;
        return bytes;
    }

private:
    std::optional<std::int32_t> nextOfText() {
        if (!evidence_.text->areIntegers(position_, 1))
            return std::nullopt;
        const std::optional<double> value = evidence_.text->valueAt(position_++);
        return value ? std::optional(static_cast<std::int32_t>(*value)) : std::nullopt;
    }

    Evidence_s& evidence_;
    const io::Plot3DRecordForm_s form_;
    io::Plot3DFile_s record_;
    std::int64_t position_ = 0; // of text the index of a value
};

bool readGrids(Integers& integers, std::int32_t count, HeaderGuess_s& guess) {
    for (std::int32_t grid = 0; grid < count; ++grid) {
        std::int32_t sizes[3] = {1, 1, 1};
        for (std::int32_t index = 0; index < guess.dimensions; ++index) {
            const std::optional<std::int32_t> size = integers.next();
            if (!size || *size < (index == 0 ? 1 : 0))
                return false;
            sizes[index] = *size;
        }
        guess.grids.push_back({sizes[0], sizes[1], sizes[2]});
    }
    return true;
}

std::optional<HeaderGuess_s> guessHeader(Evidence_s& evidence, const io::Plot3DRecordForm_s& form,
                                         bool isMultiGrid, std::int32_t dimensions) {
    HeaderGuess_s guess{form, isMultiGrid, dimensions, {}, 0, 0};
    Integers integers(evidence, form);
    std::int32_t count = 1;
    if (isMultiGrid) {
        const auto told = integers.enterRecord(1) ? integers.next() : std::nullopt;
        if (!told || *told < 1 || *told > mostGrids)
            return std::nullopt;
        count = *told;
    }
    if (!integers.enterRecord(std::int64_t{count} * dimensions) ||
        !readGrids(integers, count, guess))
        return std::nullopt;
    guess.headerEnd = integers.position();
    guess.dataSize = integers.sizeBehind();
    return guess;
}

std::vector<io::Plot3DRecordForm_s> formsOf(const Evidence_s& evidence) {
    if (evidence.form.encoding != io::Plot3DEncoding_Binary)
        return {evidence.form};
    io::Plot3DRecordForm_s swapped = evidence.form;
    swapped.byteSwap = !swapped.byteSwap;
    return {evidence.form, swapped};
}

} // namespace

std::optional<std::int32_t> integerAt(ExaminedFile& file, std::int64_t position, bool byteSwap) {
    std::int32_t value = 0;
    if (file.readAt(position, &value, sizeof value) != sizeof value)
        return std::nullopt;
    if (byteSwap)
        io::reverseBytes(&value, sizeof value);
    return value;
}

std::int64_t pointsOf(const HeaderGuess_s& guess) {
    std::int64_t points = 0;
    for (const io::Plot3DGridDims_s& dims : guess.grids) {
        std::int64_t product = std::int64_t{dims.i} * dims.j;
        if (__builtin_mul_overflow(product, std::int64_t{dims.k}, &product) ||
            __builtin_add_overflow(points, product, &points))
            return -1;
    }
    return points;
}

std::vector<HeaderGuess_s> guessHeaders(Evidence_s& evidence) {
    std::vector<HeaderGuess_s> guesses;
    for (const io::Plot3DRecordForm_s& form : formsOf(evidence))
        for (const std::int32_t dimensions : {3, 2})
            for (const bool isMultiGrid : {true, false})
                if (auto guess = guessHeader(evidence, form, isMultiGrid, dimensions))
                    guesses.push_back(std::move(*guess));
    return guesses;
}

} // namespace plot3dlib
