// Random data sets and selections, converted to the formats of others and read by readers of
// others, bit for bit.
#include <algorithm>
#include <cmath>

#include "program/commands/CommandsFixture.h"
#include "program/convert/ReadBack.h"

namespace plot3d::program {
namespace {

using quorvia::host::FieldState_e;
using quorvia::testsupport::ExpectedZone_s;

/// The folders that are read, and their readers.
class Readers : public quorvia::testsupport::ReadBackTest {
public:
    using ReadBackTest::convert;
    using ReadBackTest::expectReadBack;
    using ReadBackTest::folder;
    using ReadBackTest::writeExpected;

    void TestBody() override {} // the random sets are that of another
};

class RandomReadBack : public CommandsTest {
protected:
    /// Formats of points have coordinates whatever is selected, so that they always are.
    static std::vector<std::size_t> withGrid(const ModelSet& data,
                                             const std::vector<std::size_t>& selected) {
        std::vector<std::size_t> variables;
        for (std::size_t index = 0; index < data.variables().size(); ++index)
            if (data.variables()[index].part == Part_Grid ||
                std::binary_search(selected.begin(), selected.end(), index))
                variables.push_back(index);
        return variables;
    }

    static ExpectedZone_s expectedZone(const ModelSet& data, const ModelBox_s& box,
                                       const std::vector<std::size_t>& variables) {
        const ModelZone_s& zone = data.zones()[box.zone];
        ExpectedZone_s expected;
        expected.zone = box.zone;
        for (std::size_t axis = 0; axis < 3; ++axis)
            expected.size[axis] = static_cast<std::int64_t>(box.indices[axis].size());
        for (const std::size_t index : variables) {
            const ModelVariable_s& variable = data.variables()[index];
            const std::int32_t type = variable.isIBlank              ? QuorFieldDataType_Int32
                                      : data.isDouble(variable.part) ? QuorFieldDataType_Double
                                                                     : QuorFieldDataType_Float;
            const auto value = [&](std::int64_t i, std::int64_t j, std::int64_t k) {
                const auto at = [](const auto& indices, std::int64_t place) {
                    return indices[static_cast<std::size_t>(place)];
                };
                return data.value(zone, variable, at(box.indices[0], i), at(box.indices[1], j),
                                  at(box.indices[2], k));
            };
            expected.fields.push_back({type, FieldState_e::Deferred, value});
        }
        expected.elements = elementsOf(data, zone);
        return expected;
    }

    /// Nodes from 0; none if the zone is ordered.
    static std::vector<std::vector<std::int32_t>> elementsOf(const ModelSet& data,
                                                             const ModelZone_s& zone) {
        std::vector<std::vector<std::int32_t>> elements;
        if (!data.isUnstructured())
            return elements;
        const writer::FileDescription_s grid = data.description(Part_Grid, {zone.grid});
        const std::int32_t corners = grid.grids[0].j > 0 ? 3 : 4;
        elements.resize(static_cast<std::size_t>(grid.grids[0].j + grid.grids[0].k));
        for (std::size_t element = 0; element < elements.size(); ++element)
            for (std::int32_t corner = 0; corner < corners; ++corner)
                elements[element].push_back(
                    grid.corner(0, static_cast<std::int64_t>(element), corner) - 1);
        return elements;
    }

    static int coordinateCount(const ModelSet& data) {
        return static_cast<int>(std::count_if(
            data.variables().begin(), data.variables().end(), [](const ModelVariable_s& variable) {
                return variable.part == Part_Grid && !variable.isIBlank;
            }));
    }

    DataSet opened(const ModelSet& data, const std::string& folder) const {
        OpenOptions options;
        options.instructions = data.instructions();
        std::vector<std::string> files;
        for (const ModelFile_s& each : data.files())
            files.push_back(path(folder, each));
        if (!data.nameLines().empty())
            files.push_back(file(folder + "/a.nam"));
        return DataSet::open(files, options);
    }
};

TEST_F(RandomReadBack, HoldsTheSelectedValuesInEachFormat) {
    const Readers readers;
    const Words endings = {"cgns", "npz", "pvd"};
    int files = 0;
    forRandomSets(setCount, [&](const ModelSet& data, Dice& draw, const std::string& folder) {
        const ModelSelection selection(data, draw);
        const bool hasStrangeTime =
            std::any_of(data.zones().begin(), data.zones().end(),
                        [](const ModelZone_s& zone) { return !std::isfinite(zone.time); });
        if (!data.isKnownByNames() || hasStrangeTime || selection.boxes().empty() ||
            selection.cutsElements())
            return;
        Words words = loadWords(data, folder);
        words.insert(words.end(), selection.wordsOfPoints().begin(),
                     selection.wordsOfPoints().end());
        const std::vector<std::size_t> variables = withGrid(data, selection.variables());
        std::string names;
        for (const std::size_t index : variables)
            names += (names.empty() ? "" : ",") + data.variables()[index].name;
        words.insert(words.end(), {"--variable", names});
        SCOPED_TRACE(testing::PrintToString(words));
        const std::string where = readers.folder(folder);
        Readers::convert(where, words, endings);
        std::vector<ExpectedZone_s> zones;
        for (const ModelBox_s& box : selection.boxes())
            zones.push_back(expectedZone(data, box, variables));
        Readers::writeExpected(where, opened(data, folder), coordinateCount(data), zones,
                               variables);
        files += static_cast<int>(endings.size());
    });
    EXPECT_GT(files, 0);
    readers.expectReadBack(files);
}

} // namespace
} // namespace plot3d::program
