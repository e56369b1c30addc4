#include "boundary/BoundaryFile.h"

#include <cstddef>
#include <cstring>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

#include "boundary/BoundaryLines.h"
#include "instructions/ValueText.h"
#include "plot3dfile/bytes/FileStream.h"

namespace quorvia::quorutildataio {

namespace {

constexpr const char* sectionWord = "BOUNDARIES";
constexpr std::int32_t sectionWordLength = 10; // a longer word passes

bool isSectionWord(const std::string& token) {
    return compareNoCase(token.c_str(), sectionWord, sectionWordLength) == 0;
}

/// A page break is blank too, though it separates no tokens.
bool isBlank(const std::string& line) {
    return line.find_first_not_of(" \t\r\n\f\v") == std::string::npos;
}

/// Reads a file line by line and keeps the last line for the message.
class BoundaryFileReader {
public:
    BoundaryFileReader(FileStream& stream, const Plot3DFile_s& gridFile, Plot3DBoundaryList& head,
                       HostStringList& names, std::int64_t& count)
        : stream_(stream), gridFile_(gridFile), tail_(&head), names_(names), count_(count) {}

    bool readAll() { return readVersion() && readNames() && readBoundaries(); }
    const std::string& lastLine() const { return line_; }

private:
    bool readLine() { return readBoundaryTextLine(stream_, line_); }

    bool readVersion() {
        readLine();
        std::string_view rest = line_;
        const std::string format = takeToken(rest);
        const std::string major = takeToken(rest);
        const std::string minor = takeToken(rest);
        return isSameWord(format.c_str(), "FVBND") && major == "1" &&
               (minor.empty() || minor == "4");
    }

    /// The first token of the next line; empty at the end of the file.
    std::string firstTokenOfNextLine() {
        if (!readLine())
            return {};
        std::string_view rest = line_;
        return takeToken(rest);
    }

    /// Up to the word that begins the boundaries.
    bool readNames() {
        std::string token = firstTokenOfNextLine();
        if (token.empty())
            return false;
        names_ = HostStringList(QuorUtilStringListAlloc());
        if (!names_)
            return false;
        for (; !token.empty() && !isSectionWord(token); token = firstTokenOfNextLine())
            if (!addName(token))
                return false;
        return !token.empty();
    }

    bool addName(const std::string& name) {
        const HostString copy(
            QuorUtilStringAlloc(static_cast<std::int64_t>(name.size()) + 1, "Boundary Name"));
        if (!copy)
            return false;
        std::memcpy(copy.get(), name.c_str(), name.size() + 1);
        if (!QuorUtilStringListAppendString(names_.get(), copy.get()))
            return false;
        ++nameCount_;
        return true;
    }

    bool readBoundaries() {
        while (readLine())
            if (!isBlank(line_) && !addBoundary())
                return false;
        return !stream_.hadReadError();
    }

    /// A bad line's record is in the list too.
    bool addBoundary() {
        tail_->reset(new (std::nothrow) Plot3DBoundary_s);
        if (*tail_ == nullptr)
            return false;
        Plot3DBoundary_s& boundary = **tail_;
        tail_ = &boundary.next;
        ++count_;
        return parseBoundaryLine(line_, gridFile_, boundary) && boundary.nameIndex >= 1 &&
               boundary.nameIndex <= nameCount_;
    }

    FileStream& stream_;
    const Plot3DFile_s& gridFile_;
    Plot3DBoundaryList* tail_; // where the next record goes
    HostStringList& names_;
    std::int64_t& count_;
    std::int64_t nameCount_ = 0;
    std::string line_;
};

void reportBadLine(const std::string& fileName, const std::string& line) {
    const std::string text = "Error reading Boundary File: " + fileName +
                             ".\nLine: " + line.substr(0, line.find_first_of("\n;")) +
                             "\nCheck that version is 1.4 and file is correctly formatted."
                             "\nBoundary zones will not be loaded.";
    QuorUtilDialogErrMsg(text.c_str());
}

/// No points, and so no boundary fits, where there is no such grid.
Plot3DGridDims_s dimsOf(const Plot3DFile_s& gridFile, std::int32_t gridNumber) {
    const auto count = static_cast<std::int64_t>(gridFile.gridDims.size());
    if (gridNumber < 1 || gridNumber > count)
        return {0, 0, 0};
    return gridFile.gridDims[static_cast<std::size_t>(gridNumber) - 1];
}

/// Reads the tokens of a line in order and notes whether all were good.
class BoundaryLineParser {
public:
    explicit BoundaryLineParser(std::string_view line) : rest_(line) {}

    /// Any integer.
    std::int32_t integer() {
        const std::optional<std::int32_t> value = leadingInteger(next());
        note(value.has_value());
        return value.value_or(0);
    }

    /// An index along a direction of `dimension` points: as it is, from the end, or "$".
    std::int32_t index(std::int32_t dimension) {
        const std::string token = next();
        if (token == "$")
            return dimension;
        const std::optional<std::int32_t> value = leadingInteger(token);
        note(value.has_value());
        if (!value)
            return 0;
        return *value < 0 ? dimension + *value + 1 : *value;
    }
    std::int32_t start(std::int32_t dimension) {
        const std::int32_t value = index(dimension);
        note(value >= 1);
        return value;
    }
    std::int32_t end(std::int32_t dimension) {
        const std::int32_t value = index(dimension);
        note(value <= dimension);
        return value;
    }

    bool logical() {
        const std::string token = next();
        const bool isTrue = isSameWord(token.c_str(), "T");
        note(isTrue || isSameWord(token.c_str(), "F"));
        return isTrue;
    }

    void note(bool isGood) { isGood_ = isGood_ && isGood; }
    bool isGood() const { return isGood_; }

private:
    /// A missing token is no number and no letter, so that it spoils the line.
    std::string next() { return takeToken(rest_); }

    std::string_view rest_;
    bool isGood_ = true;
};

} // namespace

Plot3DBoundary_s::~Plot3DBoundary_s() {
    while (next != nullptr)
        next = std::move(next->next);
}

Plot3DBoundaryList copyBoundary(const Plot3DBoundary_s& boundary) {
    const Plot3DBoundaryLine_s& line = boundary;
    return Plot3DBoundaryList(new (std::nothrow) Plot3DBoundary_s(line));
}

bool readBoundaryFile(const Plot3DLoadOptions_s& options, const Plot3DFile_s& gridFile,
                      Plot3DBoundaryList& head, HostStringList& names, std::int64_t& count) {
    const std::unique_ptr<FileStream> stream = FileStream::open(options.boundaryFile);
    if (stream == nullptr)
        return true;
    BoundaryFileReader reader(*stream, gridFile, head, names, count);
    if (reader.readAll())
        return true;
    reportBadLine(options.boundaryFile, reader.lastLine());
    return false;
}

bool parseBoundaryLine(const std::string& line, const Plot3DFile_s& gridFile,
                       Plot3DBoundary_s& boundary) {
    BoundaryLineParser parser(line);
    boundary.nameIndex = parser.integer();
    boundary.gridNumber = parser.integer();
    parser.note(gridFile.numGrids >= 1);
    const Plot3DGridDims_s dims = dimsOf(gridFile, boundary.gridNumber);
    boundary.iStart = parser.start(dims.i);
    boundary.iEnd = parser.end(dims.i);
    boundary.jStart = parser.start(dims.j);
    boundary.jEnd = parser.end(dims.j);
    boundary.kStart = parser.start(dims.k);
    boundary.kEnd = parser.end(dims.k);
    boundary.logicalField = parser.logical();
    boundary.trailingValue = parser.integer();
    const bool hasEmptyRange = boundary.iEnd < boundary.iStart || boundary.jEnd < boundary.jStart ||
                               boundary.kEnd < boundary.kStart;
    return parser.isGood() && !hasEmptyRange;
}

} // namespace quorvia::quorutildataio
