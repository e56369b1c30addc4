// Random data sets and selections, converted to PLOT3D files of random forms: byte for byte those
// that the independent writer makes of the selected values. And through an index: the original
// bytes.
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "program/commands/CommandsFixture.h"

namespace plot3d::program {
namespace {

using writer::Encoding_e;

/// The zones of one time that are selected.
using Boxes = std::vector<ModelBox_s>;

writer::FileForm_s drawnForm(Dice& draw) {
    writer::FileForm_s form =
        binary(draw.chance(50) ? writer::ByteOrder_e::Little : writer::ByteOrder_e::Big,
               draw.chance(50) ? writer::Precision_e::Double : writer::Precision_e::Single);
    form.markerBytes = draw.chance(50) ? 4 : 8;
    form.encoding =
        draw.oneOf<Encoding_e>({Encoding_e::Binary, Encoding_e::Fortran, Encoding_e::Text});
    return form;
}

Words optionsFor(const writer::FileForm_s& form) {
    const bool isFortran = form.encoding == Encoding_e::Fortran;
    Words words = {"--precision", form.precision == writer::Precision_e::Double ? "64" : "32"};
    words.push_back("--encoding");
    words.push_back(form.encoding == Encoding_e::Text ? "text"
                    : isFortran                       ? "fortran" + std::to_string(form.markerBytes)
                                                      : "binary");
    if (form.encoding != Encoding_e::Text)
        words.insert(words.end(), {"--byte-order",
                                   form.byteOrder == writer::ByteOrder_e::Big ? "big" : "little"});
    return words;
}

Words tokensOf(const std::string& text) {
    std::istringstream in(text);
    return {std::istream_iterator<std::string>(in), {}};
}

std::int32_t placeIBlank(std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k) {
    return static_cast<std::int32_t>(dice(9, grid, i, j, k) % 3);
}

class RandomConversions : public CommandsTest {
protected:
    /// A file of these zones with these variables, in the layout of the set.
    static writer::FileDescription_s wanted(const ModelSet& data, writer::FileKind_e kind,
                                            const Boxes& boxes,
                                            const std::vector<ModelVariable_s>& variables) {
        std::vector<std::int32_t> grids;
        for (const ModelBox_s& box : boxes)
            grids.push_back(data.zones()[box.zone].grid);
        const int part = kind == writer::FileKind_e::Grid       ? Part_Grid
                         : kind == writer::FileKind_e::Function ? Part_Functions
                                                                : Part_Solution;
        writer::FileDescription_s contents = data.description(part, grids);
        contents.numVars = static_cast<std::int32_t>(variables.size());
        contents.isMultiGrid = data.layout() != writer::Layout_e::OneD;
        for (std::size_t place = 0; place < boxes.size() && !data.isUnstructured(); ++place)
            contents.grids[place] = {static_cast<std::int32_t>(boxes[place].indices[0].size()),
                                     static_cast<std::int32_t>(boxes[place].indices[1].size()),
                                     static_cast<std::int32_t>(boxes[place].indices[2].size())};
        if (part == Part_Solution)
            contents.scalars.assign(boxes.size(),
                                    data.scalars(data.zones()[boxes.front().zone].step));
        const auto at = [boxes](std::int32_t zone, int direction, std::int32_t index) {
            return boxes[static_cast<std::size_t>(zone)]
                .indices[static_cast<std::size_t>(direction)][static_cast<std::size_t>(index)];
        };
        contents.value = [&data, boxes, variables, at](std::int32_t zone, std::int32_t variable,
                                                       std::int32_t i, std::int32_t j,
                                                       std::int32_t k) {
            return data.value(data.zones()[boxes[static_cast<std::size_t>(zone)].zone],
                              variables[static_cast<std::size_t>(variable)], at(zone, 0, i),
                              at(zone, 1, j), at(zone, 2, k));
        };
        contents.iblank = [&data, boxes, at](std::int32_t zone, std::int32_t i, std::int32_t j,
                                             std::int32_t k) {
            return data.iBlank(data.zones()[boxes[static_cast<std::size_t>(zone)].zone],
                               at(zone, 0, i), at(zone, 1, j), at(zone, 2, k));
        };
        return contents;
    }

    /// All files of a conversion in their order: grids, solutions, functions.
    static std::vector<writer::FileDescription_s> wantedFiles(const ModelSet& data,
                                                              const ModelSelection& selection) {
        std::map<int, Boxes> steps;
        for (const ModelBox_s& box : selection.boxes())
            steps[data.zones()[box.zone].step].push_back(box);
        std::vector<writer::FileDescription_s> files;
        for (const auto& [step, boxes] : steps)
            if (files.empty() || data.moves() || !isSameGrid(data, steps))
                files.push_back(wanted(data, writer::FileKind_e::Grid, boxes, coordinates(data)));
        const std::vector<ModelVariable_s> all = ofPart(data, Part_Solution, nullptr);
        const std::vector<ModelVariable_s> solution = ofPart(data, Part_Solution, &selection);
        const bool isWhole = solution.size() == all.size();
        for (const auto& [step, boxes] : steps)
            if (isWhole && !solution.empty())
                files.push_back(wanted(data, data.solutionKind(), boxes, solution));
        for (const auto& [step, boxes] : steps)
            for (int part = isWhole ? Part_Functions : Part_Solution;
                 part < Part_Functions + data.functionFileCount(); ++part)
                if (const auto variables = ofPart(data, part, &selection); !variables.empty())
                    files.push_back(wanted(data, writer::FileKind_e::Function, boxes, variables));
        return files;
    }

    static std::vector<ModelVariable_s> coordinates(const ModelSet& data) {
        std::vector<ModelVariable_s> found = ofPart(data, Part_Grid, nullptr);
        std::erase_if(found, [](const ModelVariable_s& variable) { return variable.isIBlank; });
        return found;
    }

    /// Null: without a selection.
    static std::vector<ModelVariable_s> ofPart(const ModelSet& data, int part,
                                               const ModelSelection* selection) {
        std::vector<ModelVariable_s> found;
        for (std::size_t index = 0; index < data.variables().size(); ++index)
            if (data.variables()[index].part == part &&
                (selection == nullptr || std::binary_search(selection->variables().begin(),
                                                            selection->variables().end(), index)))
                found.push_back(data.variables()[index]);
        return found;
    }

    static bool isSameGrid(const ModelSet& data, const std::map<int, Boxes>& steps) {
        const auto gridsOf = [&data](const Boxes& boxes) {
            std::vector<std::int32_t> grids;
            for (const ModelBox_s& box : boxes)
                grids.push_back(data.zones()[box.zone].grid);
            return grids;
        };
        return std::all_of(steps.begin(), steps.end(), [&](const auto& step) {
            return gridsOf(step.second) == gridsOf(steps.begin()->second);
        });
    }

    /// What the writer says against it; NaN in text is such a thing.
    static std::string expectFile(const std::string& path,
                                  const writer::FileDescription_s& contents,
                                  const writer::FileForm_s& form) {
        std::string bytes;
        const std::string problem = writer::writePlot3DBytes(bytes, contents, form).problem;
        if (!problem.empty())
            return problem;
        if (form.encoding == Encoding_e::Text)
            EXPECT_EQ(tokensOf(bytesOfFile(path)), tokensOf(bytes)) << path;
        else
            EXPECT_TRUE(bytesOfFile(path) == bytes) << path;
        return {};
    }
};

TEST_F(RandomConversions, AreTheFilesOfTheWriter) {
    int compared = 0;
    forRandomSets(setCount, [&](const ModelSet& data, Dice& draw, const std::string& folder) {
        const ModelSelection selection(data, draw);
        const writer::FileForm_s form = drawnForm(draw);
        const Words options = optionsFor(form);
        if (form.encoding == Encoding_e::Text && data.hasSpoiltValues())
            return; // text holds no NaN, which another test shows
        const bool isLine = data.layout() == writer::Layout_e::OneD;
        SCOPED_TRACE(testing::PrintToString(selection.words()) + testing::PrintToString(options));
        const Ended_s run = ran("convert", {loadWords(data, folder),
                                            selection.words(),
                                            options,
                                            isLine ? Words() : Words{"--multi-grid", "yes"},
                                            {"-o", file(folder + "/out.x")}});
        const int refused = selection.boxes().empty() ? 2 : selection.cutsElements() ? 1 : 0;
        ASSERT_EQ(run.code, refused) << run.err;
        if (refused != 0)
            return;
        const Words written = tokensOf(run.out);
        const std::vector<writer::FileDescription_s> files = wantedFiles(data, selection);
        ASSERT_EQ(written.size(), files.size()) << run.out;
        for (std::size_t place = 0; place < files.size(); ++place)
            EXPECT_EQ(expectFile(written[place], files[place], form), "");
        ++compared;
    });
    EXPECT_GT(compared, setCount / 10);
}

/// Zones of sizes between a few bytes and half a megabyte, which go through buffers of several
/// sizes: PLOT3D files come back bit for bit.
TEST_F(RandomConversions, GiveFilesOfAnySizeBack) {
    for (const std::int32_t planes : {1, 3, 7, 9, 13, 17, 33}) {
        const std::string back = "back" + std::to_string(planes);
        const Sizes sizes = {{61, 67, planes}, {5, 3, 2}, {67, 61, planes}};
        const std::string grid = write("any.x", gridFile(sizes, randomValues(7), placeIBlank));
        const std::string solution = write("any.q", solutionFile(sizes, randomValues(8)));
        const Ended_s run = ended({"convert", grid, solution, "-o", file(back + ".x")});
        ASSERT_EQ(run.code, 0) << run.err;
        EXPECT_TRUE(bytesOfFile(file(back + ".x")) == bytesOfFile(grid)) << planes << " planes";
        EXPECT_TRUE(bytesOfFile(file(back + ".q")) == bytesOfFile(solution)) << planes << " planes";
    }
}

/// A number of `type`, such as ">f4", as it lies in a file.
double numberAt(std::string bytes, const std::string& type) {
    if (type.front() == '>')
        std::reverse(bytes.begin(), bytes.end());
    if (type == ">i4" || type == "<i4") {
        std::int32_t number = 0;
        std::memcpy(&number, bytes.data(), sizeof number);
        return number;
    }
    if (type.back() == '4') {
        float number = 0;
        std::memcpy(&number, bytes.data(), sizeof number);
        return static_cast<double>(number);
    }
    double number = 0;
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

class RandomIndices : public CommandsTest {
protected:
    static void expectChunk(const Json& chunk, const std::string& type, const ModelSet& data,
                            const ModelVariable_s& variable, const ModelBox_s& box) {
        std::ifstream in(chunk[0].get<std::string>(), std::ios::binary);
        const std::size_t width = type.back() == '8' ? 8 : 4;
        in.seekg(chunk[1].get<std::int64_t>());
        ASSERT_EQ(chunk[2], box.count() * width);
        std::string bytes(width, ' ');
        box.forEach([&](std::int64_t i, std::int64_t j, std::int64_t k) {
            in.read(bytes.data(), static_cast<std::streamsize>(width));
            const double found = numberAt(bytes, type);
            const double wanted = data.value(data.zones()[box.zone], variable, i, j, k);
            ASSERT_TRUE(found == wanted || (found != found && wanted != wanted)) << variable.name;
        });
    }
};

TEST_F(RandomIndices, LeadToTheOriginalBytes) {
    int compared = 0;
    forRandomSets(setCount, [&](const ModelSet& data, Dice& draw, const std::string& folder) {
        const ModelSelection selection(data, draw);
        const Boxes boxes = selection.wholeZones();
        const std::string index = file(folder + "/out.json");
        const Ended_s run =
            ran("index", {loadWords(data, folder), selection.wordsOfWholeZones(), {"-o", index}});
        SCOPED_TRACE(testing::PrintToString(selection.wordsOfWholeZones()));
        if (boxes.empty() || data.hasText() || data.layout() == writer::Layout_e::ThreeDPlanes) {
            EXPECT_EQ(run.code == 0, std::filesystem::exists(index));
            return; // some of it may be refused
        }
        ASSERT_EQ(run.code, 0) << run.err;
        const Json refs = Json::parse(bytesOfFile(index))["refs"];
        for (const ModelBox_s& box : boxes)
            for (const std::size_t which : selection.variables()) {
                const ModelVariable_s& variable = data.variables()[which];
                const std::string key = std::to_string(box.zone + 1) + "/" + variable.name;
                ASSERT_TRUE(refs.contains(key + "/.zarray")) << key;
                const Json facts = Json::parse(refs[key + "/.zarray"].get<std::string>());
                const char* const chunk = data.isUnstructured() ? "/0" : "/0.0.0";
                expectChunk(refs[key + chunk], facts["dtype"].get<std::string>(), data, variable,
                            box);
                ++compared;
            }
    });
    EXPECT_GT(compared, setCount / 2);
}

} // namespace
} // namespace plot3d::program
