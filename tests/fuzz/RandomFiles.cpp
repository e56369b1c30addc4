#include "RandomFiles.h"

#include <algorithm>

namespace quorvia::testsupport {

using namespace plot3dwriter;

namespace {

// Where counts, products and marker rules change their mind.
constexpr std::int64_t markedIntegers[] = {
    0,          1,          2,           3,          4,           5,
    8,          12,         16,          255,        256,         65535,
    65536,      0x7ffffffe, 0x7fffffff,  -1,         -2,          -2147483639,
    2147483639, -0x7ffffff, -2147483648, 0x01000000, -0x01000000, 0x02000000,
    0x00ffffff, 1 << 21,    1 << 22,     46341,      1291};

constexpr const char* markedTokens[] = {
    "0",          "-1",
    "1",          "2147483647",
    "4294967297", "-2147483648",
    "3*",         "0*1",
    "-1*2",       "2*3*4",
    "1e400",      "1e-400",
    "*****",      "NaN",
    "1.5D+03",    ".",
    "+",          "-",
    "1-2",        "99999*7",
    "1,2",        "\n",
    "\r\n\r\n",   "\t",
    "E",          ".5.5",
    "+-1.",       "2147483647*1",
    "1.0*2",      "1111111111111111111111111111111111.11111111"};

void writeInteger(std::string& bytes, std::size_t start, std::int64_t value, bool isBigEndian) {
    for (std::size_t index = 0; index < 4 && start + index < bytes.size(); ++index) {
        const std::size_t shift = 8 * (isBigEndian ? 3 - index : index);
        bytes[start + index] =
            static_cast<char>((static_cast<std::uint64_t>(value) >> shift) & 0xff);
    }
}

} // namespace

std::int64_t RandomFiles::below(std::int64_t end) {
    return static_cast<std::int64_t>(random_() % static_cast<std::uint64_t>(end));
}

void RandomFiles::chooseShape() {
    shape_ = describeGrid({}, static_cast<Layout_e>(below(5)));
    shape_.isMultiGrid = shape_.layout != Layout_e::OneD && below(2) == 0;
    shape_.corner = [](std::int32_t, std::int64_t element, std::int32_t corner) {
        return static_cast<std::int32_t>(element + corner) % 2 + 1;
    };
    const std::int64_t gridCount = shape_.isMultiGrid ? 1 + below(3) : 1;
    for (std::int64_t grid = 0; grid < gridCount; ++grid) {
        GridDims_s dims{static_cast<std::int32_t>(2 + below(6)), 1, 1};
        if (shape_.layout == Layout_e::Unstructured)
            (below(2) == 0 ? dims.j : dims.k) = 0;
        else if (shape_.layout != Layout_e::OneD)
            dims.j = static_cast<std::int32_t>(1 + below(5));
        if (shape_.layout == Layout_e::ThreeDWhole || shape_.layout == Layout_e::ThreeDPlanes)
            dims.k = static_cast<std::int32_t>(1 + below(4));
        shape_.grids.push_back(dims);
    }
    form_ = {};
    form_.encoding = static_cast<Encoding_e>(below(3));
    form_.byteOrder = below(2) == 0 ? ByteOrder_e::Little : ByteOrder_e::Big;
    form_.precision = below(2) == 0 ? Precision_e::Single : Precision_e::Double;
    form_.markerBytes = below(2) == 0 ? 4 : 8;
    form_.text.repeatCounts = below(2) == 0;
    if (form_.encoding == Encoding_e::Text)
        form_.byteOrder = ByteOrder_e::Little;
}

FileDescription_s RandomFiles::described(FileKind_e kind) {
    FileDescription_s description = shape_;
    description.kind = kind;
    description.hasIBlank = kind == FileKind_e::Grid && shape_.layout != Layout_e::OneD &&
                            shape_.layout != Layout_e::Unstructured && below(2) == 0;
    // Where the header tells them.
    description.numVars = static_cast<std::int32_t>(1 + below(6));
    description.numSpecies = static_cast<std::int32_t>(below(4));
    const auto most = static_cast<std::size_t>(scalarCount(description));
    setScalars(description, Numbers(most, 2.0));
    return description;
}

std::string RandomFiles::file(FileKind_e kind) {
    return bytesOf(described(kind), form_);
}

FileKind_e RandomFiles::solutionKind() {
    std::vector<FileKind_e> kinds;
    for (const FileKind_e kind : everyKind)
        if (kind != FileKind_e::Grid && kind != FileKind_e::Function &&
            findFault(described(kind), form_).empty())
            kinds.push_back(kind);
    return kinds[static_cast<std::size_t>(below(std::ssize(kinds)))];
}

void RandomFiles::damage(std::string& bytes) {
    for (std::int64_t count = 1 + below(3); count > 0; --count)
        damageOnce(bytes);
}

void RandomFiles::damageOnce(std::string& bytes) {
    using Damage = void (RandomFiles::*)(std::string&);
    // Counts and markers decide most, so that they come most often.
    constexpr Damage damages[] = {&RandomFiles::setInteger, &RandomFiles::setInteger,
                                  &RandomFiles::setInteger, &RandomFiles::setToken,
                                  &RandomFiles::setToken,   &RandomFiles::setByte,
                                  &RandomFiles::cut,        &RandomFiles::pad,
                                  &RandomFiles::eraseRange, &RandomFiles::repeatRange};
    if (!bytes.empty())
        (this->*damages[below(std::size(damages))])(bytes);
}

void RandomFiles::setInteger(std::string& bytes) {
    const std::size_t start = place(bytes) / 4 * 4;
    const std::int64_t value = markedIntegers[below(std::size(markedIntegers))];
    writeInteger(bytes, start, value, below(2) == 0);
}

void RandomFiles::setToken(std::string& bytes) {
    const std::size_t start = bytes.find_first_of(" \n", place(bytes));
    if (start == std::string::npos)
        return;
    const std::size_t end = std::min(bytes.find_first_of(" \n", start + 1), bytes.size());
    bytes.replace(start + 1, end - start - 1, markedTokens[below(std::size(markedTokens))]);
}

void RandomFiles::setByte(std::string& bytes) {
    bytes[place(bytes)] = static_cast<char>(below(256));
}

void RandomFiles::cut(std::string& bytes) {
    bytes.resize(place(bytes));
}

void RandomFiles::pad(std::string& bytes) {
    const char padding = below(2) == 0 ? '\0' : static_cast<char>(below(256));
    bytes.append(static_cast<std::size_t>(1 + below(64)), padding);
}

void RandomFiles::eraseRange(std::string& bytes) {
    bytes.erase(place(bytes), static_cast<std::size_t>(1 + below(32)));
}

void RandomFiles::repeatRange(std::string& bytes) {
    const std::string range = bytes.substr(place(bytes), static_cast<std::size_t>(1 + below(64)));
    bytes.insert(place(bytes), range);
}

/// Half of the time in the first bytes, where the header is. The bytes must not be empty.
std::size_t RandomFiles::place(const std::string& bytes) {
    constexpr std::size_t headerBytes = 48;
    const std::size_t end = below(2) == 0 ? std::min(headerBytes, bytes.size()) : bytes.size();
    return static_cast<std::size_t>(below(static_cast<std::int64_t>(end)));
}

} // namespace quorvia::testsupport
