// Files that are something else altogether, or nothing.
#include <algorithm>
#include <array>
#include <string_view>

#include "inspect/recognisers/Recognisers.h"
#include "inspect/words/Problems.h"

namespace plot3dlib {

namespace {

using namespace std::string_view_literals;

constexpr std::int64_t lookedAt = 4096;
constexpr std::int64_t lookedAtForNames = 65536;

// ---- Nothing

bool isAllZeros(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == 0; });
}

FoundProblem recogniseEmpty(Evidence_s& evidence) {
    if (evidence.file.size() > 0)
        return std::nullopt;
    return problemOf("The file is empty.", {"ls", "-l", evidence.file.name()});
}

FoundProblem recogniseZeros(Evidence_s& evidence) {
    ExaminedFile& file = evidence.file;
    if (!isAllZeros(file.head(lookedAt)))
        return std::nullopt;
    std::array<char, lookedAt> end{};
    const std::int64_t start = std::max<std::int64_t>(file.size() - lookedAt, 0);
    const std::int64_t got = file.readAt(start, end.data(), lookedAt);
    const bool endsSo =
        isAllZeros({end.data(), static_cast<std::size_t>(std::max<std::int64_t>(got, 0))});
    return problemOf(endsSo
                         ? "The file begins and ends with zeros: it is made, and not written yet."
                         : "The file begins with zeros where the sizes of the grids should stand.",
                     "a count of grids or a size", "zeros",
                     {"cmp", "--bytes=" + std::to_string(file.size()), file.name(), "/dev/zero"});
}

// ---- Other formats

struct Signature_s {
    std::string_view bytes;
    std::int64_t position;
    const char* what;
    std::array<const char*, 3> command; // the file's name comes behind it
};

constexpr std::array signatures = {
    Signature_s{"\x1f\x8b"sv, 0, "The file is compressed by gzip.", {"gunzip", "--keep", nullptr}},
    Signature_s{"BZh"sv, 0, "The file is compressed by bzip2.", {"bunzip2", "--keep", nullptr}},
    Signature_s{"\xfd"
                "7zXZ\0"sv,
                0,
                "The file is compressed by xz.",
                {"unxz", "--keep", nullptr}},
    Signature_s{
        "\x28\xb5\x2f\xfd"sv, 0, "The file is compressed by zstd.", {"unzstd", "--keep", nullptr}},
    Signature_s{"PK\x03\x04"sv, 0, "The file is a ZIP archive.", {"unzip", nullptr, nullptr}},
    Signature_s{"ustar"sv, 257, "The file is a tar archive.", {"tar", "-xf", nullptr}},
    Signature_s{"CDF\x01"sv, 0, "The file is netCDF.", {"ncdump", "-h", nullptr}},
    Signature_s{"CDF\x02"sv, 0, "The file is netCDF.", {"ncdump", "-h", nullptr}},
    Signature_s{"ADF Database"sv,
                4,
                "The file is CGNS, of the kind without HDF5.",
                {"cgnsconvert", "-h", nullptr}},
    Signature_s{"# vtk DataFile"sv, 0, "The file is VTK, of the older kind.", {"head", "-n", "10"}},
    Signature_s{"<?xml"sv, 0, "The file is XML.", {"head", "-n", "10"}},
    Signature_s{"<VTKFile"sv, 0, "The file is VTK XML.", {"head", "-n", "10"}},
};

FoundProblem recogniseSignature(Evidence_s& evidence) {
    const std::string_view head = evidence.file.head(lookedAt);
    for (const Signature_s& signature : signatures) {
        const auto position = static_cast<std::size_t>(signature.position);
        if (head.size() < position || !head.substr(position).starts_with(signature.bytes))
            continue;
        Arguments next;
        for (const char* argument : signature.command)
            if (argument != nullptr)
                next.emplace_back(argument);
        next.push_back(evidence.file.name());
        return problemOf(signature.what, std::move(next));
    }
    return std::nullopt;
}

FoundProblem recogniseHdf5(Evidence_s& evidence) {
    constexpr auto signature = "\x89HDF\r\n\x1a\n"sv;
    const std::string_view head = evidence.file.head(lookedAt);
    for (const std::size_t position : {0U, 512U, 1024U, 2048U}) {
        if (head.size() < position || !head.substr(position).starts_with(signature))
            continue;
        const bool isCgns = evidence.file.head(lookedAtForNames).find("CGNSLibraryVersion") !=
                            std::string_view::npos;
        return problemOf(isCgns ? "The file is CGNS, in HDF5." : "The file is HDF5.",
                         {"h5ls", "--recursive", evidence.file.name()});
    }
    return std::nullopt;
}

// ---- Other texts

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    return first == std::string_view::npos ? "" : text.substr(first);
}

FoundProblem recogniseJson(Evidence_s& evidence) {
    const std::string_view text = withoutBlanks(evidence.file.head(lookedAt));
    const bool isObject = text.starts_with("{") && withoutBlanks(text.substr(1)).starts_with("\"");
    if (!isObject && !text.starts_with("[{"))
        return std::nullopt;
    return problemOf(
        "The file is JSON, as it stands beside PLOT3D files to describe them; it holds "
        "no values.",
        {"python3", "-m", "json.tool", evidence.file.name()});
}

FoundProblem recogniseComments(Evidence_s& evidence) {
    const std::string_view text = withoutBlanks(evidence.file.head(lookedAt));
    if (text.empty() || std::string_view("#!%;/").find(text.front()) == std::string_view::npos)
        return std::nullopt;
    if (!std::all_of(text.begin(), text.begin() + std::min<std::ptrdiff_t>(std::ssize(text), 200),
                     [](unsigned char c) { return c >= 9 && c < 127; }))
        return std::nullopt;
    FoundProblem problem = problemOf("The file begins with a comment, which PLOT3D does not know.",
                                     "a count of grids or a size", std::string(text.substr(0, 1)),
                                     editCommand("/^[[:space:]]*[#!%;/]/d", evidence.file.name()));
    problem->misfit.byte = text.data() - evidence.file.head(lookedAt).data();
    return problem;
}

constexpr std::array<Recogniser, 6> strangerTable = {recogniseEmpty,     recogniseZeros,
                                                     recogniseSignature, recogniseHdf5,
                                                     recogniseJson,      recogniseComments};

} // namespace

std::span<const Recogniser> strangerRecognisers() {
    return strangerTable;
}

} // namespace plot3dlib
