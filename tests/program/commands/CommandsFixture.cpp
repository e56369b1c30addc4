#include "program/commands/CommandsFixture.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <utility>

namespace plot3d::program {

using writer::Encoding_e;

namespace {

const char* kindWord(int part) {
    if (part == Part_Grid)
        return "grid";
    return part == Part_Solution ? "solution" : "function";
}

/// A grid file has none.
Json styleWord(writer::FileKind_e kind) {
    switch (kind) {
    case writer::FileKind_e::Grid:
        return nullptr;
    case writer::FileKind_e::ClassicSolution:
        return "Classic";
    case writer::FileKind_e::SwiftSolution:
        return "Swift";
    case writer::FileKind_e::OverflowSolution:
        return "Overflow";
    case writer::FileKind_e::Function:
        return "Function";
    }
    return nullptr;
}

/// In the order of Layout_e.
constexpr std::array layoutWords = {"1D", "2D", "3DWhole", "3DPlanes", "Unstructured"};

/// What tells the reading of a file from others; of info itself and of its candidates.
Json readingIn(const Json& told, bool isText) {
    Json reading = {{"kind", told["kind"]},
                    {"style", told["style"]},
                    {"layout", told["layout"]},
                    {"multiGrid", told["multiGrid"]}};
    if (!isText) {
        reading.set("precision", told["precision"]);
        reading.set("byteOrder", told["byteOrder"]);
        reading.set("iBlank", told["iBlank"] == true);
    }
    return reading;
}

Json readingOf(const ModelFile_s& file) {
    const bool isText = file.form.encoding == Encoding_e::Text;
    Json reading = {{"kind", kindWord(file.part)},
                    {"style", styleWord(file.contents.kind)},
                    {"layout", layoutWords[static_cast<std::size_t>(file.contents.layout)]},
                    {"multiGrid", file.contents.isMultiGrid}};
    if (!isText) {
        reading.set("precision", file.form.precision == writer::Precision_e::Double ? 64 : 32);
        reading.set("byteOrder",
                    file.form.byteOrder == writer::ByteOrder_e::Big ? "big" : "little");
        reading.set("iBlank", file.contents.hasIBlank);
    }
    return reading;
}

} // namespace

void CommandsTest::writeFiles(const ModelSet& data, const std::string& folder) const {
    std::filesystem::create_directory(file(folder));
    for (const ModelFile_s& each : data.files())
        write(folder + "/" + each.name, each.contents, each.form);
    if (!data.nameLines().empty()) {
        std::ofstream names(file(folder + "/a.nam"));
        for (const std::string& line : data.nameLines())
            names << line << '\n';
    }
}

Words CommandsTest::loadWords(const ModelSet& data, const std::string& folder) const {
    Words words;
    if (!data.nameLines().empty())
        words.push_back(file(folder + "/a.nam"));
    for (const ModelFile_s& each : data.files()) {
        if (!data.isKnownByNames())
            words.push_back(std::string("--") + kindWord(each.part));
        words.push_back(path(folder, each));
    }
    for (const auto& [key, value] : data.instructions())
        words.insert(words.end(), {"--set", key + "=" + value});
    return words;
}

Ended_s CommandsTest::ran(const std::string& command, const std::vector<Words>& words) {
    Words all = {command};
    for (const Words& some : words)
        all.insert(all.end(), some.begin(), some.end());
    return ended(all);
}

Json CommandsTest::infoOf(const ModelFile_s& fileOfSet, const std::string& folder) const {
    const Ended_s run = ended(
        {"info", "--why", "--json", "--as", kindWord(fileOfSet.part), path(folder, fileOfSet)});
    return Json::parse(run.out)["files"][0];
}

bool CommandsTest::isAmbiguous(const ModelSet& data, const std::string& folder) const {
    bool isAmbiguous = false;
    for (const ModelFile_s& each : data.files()) {
        const bool isText = each.form.encoding == Encoding_e::Text;
        if (isText && each.contents.hasIBlank)
            continue; // which info does not know
        const Json told = infoOf(each, folder);
        const Json wanted = readingOf(each);
        // There is a warning where a load takes another reading than accounts for all bytes.
        if (told["ok"] == true && told["warnings"].empty() && readingIn(told, isText) == wanted)
            continue;
        isAmbiguous = true;
        bool isFound = false;
        for (const Json& trial : told["why"])
            isFound = isFound ||
                      (trial["misfit"].isNull() && readingIn(trial["candidate"], isText) == wanted);
        EXPECT_TRUE(isFound) << each.name << " is no " << wanted << " for " << told.dump(1);
    }
    return isAmbiguous;
}

} // namespace plot3d::program
