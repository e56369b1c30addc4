#include "plot3dsample/SampleOptions.h"

#include <charconv>
#include <tuple>
#include <utility>

namespace quorvia::plot3dsample {

namespace {

using plot3dwriter::Encoding_e;

constexpr std::array<std::pair<std::string_view, FileKind_e>, 4> styles = {{
    {"classic", FileKind_e::ClassicSolution},
    {"function", FileKind_e::Function},
    {"overflow", FileKind_e::OverflowSolution},
    {"swift", FileKind_e::SwiftSolution},
}};

constexpr std::array<std::pair<std::string_view, Layout_e>, 5> layouts = {{
    {"1d", Layout_e::OneD},
    {"2d", Layout_e::TwoD},
    {"3dwhole", Layout_e::ThreeDWhole},
    {"3dplanes", Layout_e::ThreeDPlanes},
    {"unstructured", Layout_e::Unstructured},
}};

/// Looks a word up in a table like the ones above; the error lists all its words.
template <class Table>
auto valueNamed(std::string_view option, std::string_view word, const Table& table) {
    std::string expected;
    for (const auto& [name, value] : table) {
        if (name == word)
            return value;
        expected += expected.empty() ? "" : ", ";
        expected += name;
    }
    throw UsageError(std::string(option) + ": found '" + std::string(word) + "', expected one of " +
                     expected);
}

template <class Value, class Table>
std::string nameIn(Value value, const Table& table) {
    for (const auto& [name, candidate] : table) {
        if (candidate == value)
            return std::string(name);
    }
    return "grid";
}

} // namespace

void setEncoding(std::string_view word, FileForm_s& form) {
    using Choice = std::pair<Encoding_e, std::int32_t>;
    constexpr std::array<std::pair<std::string_view, Choice>, 4> encodings = {{
        {"text", {Encoding_e::Text, 4}},
        {"binary", {Encoding_e::Binary, 4}},
        {"fortran4", {Encoding_e::Fortran, 4}},
        {"fortran8", {Encoding_e::Fortran, 8}},
    }};
    std::tie(form.encoding, form.markerBytes) = valueNamed("--encoding", word, encodings);
}

FileKind_e styleNamed(std::string_view word) {
    return valueNamed("--style", word, styles);
}

Layout_e layoutNamed(std::string_view word) {
    return valueNamed("--layout", word, layouts);
}

std::array<std::int32_t, 3> sizeNamed(std::string_view word) {
    std::array<std::int32_t, 3> size = {};
    const char* position = word.data();
    const char* const end = position + word.size();
    for (std::int32_t& count : size) {
        const auto [stop, error] = std::from_chars(position, end, count);
        if (error != std::errc() || count < 1)
            break;
        if (stop == end)
            return size;
        if (*stop != 'x')
            break;
        position = stop + 1;
    }
    throw UsageError("--size: found '" + std::string(word) +
                     "', expected one to three counts of points like 41x31x5");
}

std::string nameOf(FileKind_e kind) {
    return nameIn(kind, styles);
}

std::string nameOf(Layout_e layout) {
    return nameIn(layout, layouts);
}

} // namespace quorvia::plot3dsample
