// Three times of two grids that move, with I-blank, in every format.
#include <iterator>

#include "plot3dwriter/Plot3DWriter.h"
#include "program/convert/ReadBack.h"
#include "support/BytesOfFile.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::FileDescription_s;
using plot3dwriter::FileForm_s;
using plot3dwriter::FileKind_e;
using plot3dwriter::Layout_e;

constexpr int stepCount = 3;

class ConvertedSeries : public ReadBackTest {
protected:
    /// m_1.x, m_1.q, ... in the form; gives their names.
    std::vector<std::string> writeSeries(const std::string& where, const FileForm_s& form) const {
        std::vector<std::string> files;
        for (int step = 0; step < stepCount; ++step)
            for (const auto& [kind, ending] : {std::pair(FileKind_e::Grid, ".x"),
                                               std::pair(FileKind_e::ClassicSolution, ".q")}) {
                files.push_back(where + "/m_" + std::to_string(step + 1) + ending);
                writeFile(files.back(), contentsOfStep(kind, step), form);
            }
        return files;
    }

    static std::vector<ExpectedZone_s> expectedZones() {
        std::vector<ExpectedZone_s> zones;
        for (int step = 0; step < stepCount; ++step)
            for (std::int32_t grid = 0; grid < 2; ++grid) {
                zones.push_back(expectedZone(step, grid));
                zones.back().zone = zones.size() - 1;
            }
        return zones;
    }

private:
    static ExpectedZone_s expectedZone(int step, std::int32_t grid) {
        const auto dims =
            contentsOfStep(FileKind_e::Grid, step).grids[static_cast<std::size_t>(grid)];
        ExpectedZone_s zone;
        zone.size = {dims.i, dims.j, dims.k};
        addFields(zone, FileKind_e::Grid, 3, step, grid);
        zone.fields.push_back({QuorFieldDataType_Int32, host::FieldState_e::Deferred,
                               [grid](std::int64_t i, std::int64_t j, std::int64_t k) {
                                   return static_cast<double>(iblankAt(grid, i, j, k));
                               }});
        addFields(zone, FileKind_e::ClassicSolution, 5, step, grid);
        return zone;
    }

    static void addFields(ExpectedZone_s& zone, FileKind_e kind, std::int32_t count, int step,
                          std::int32_t grid) {
        for (std::int32_t variable = 0; variable < count; ++variable)
            zone.fields.push_back({QuorFieldDataType_Float, host::FieldState_e::Deferred,
                                   [=](std::int64_t i, std::int64_t j, std::int64_t k) {
                                       return valueAt(kind, grid, variable, i, j, k) + 7.0 * step;
                                   }});
    }
};

TEST_F(ConvertedSeries, IsReadBackInEachFormat) {
    const std::string where = folder("series");
    const std::vector<std::string> files = writeSeries(where, {});
    const auto data = plot3d::DataSet::open(files);
    ASSERT_EQ(data.timeSteps().size(), 3U);
    const std::vector<std::string> endings = {"cgns", "npz", "csv", "pvd"};
    convert(where, files, endings);
    writeExpected(where, data, 3, expectedZones());
    expectReadBack(static_cast<int>(endings.size()));
}

TEST_F(ConvertedSeries, BecomesTheFilesOfEachTime) {
    const std::string where = folder("series");
    std::vector<std::string> words = writeSeries(where, {});
    words.insert(words.begin(), "convert");
    words.insert(words.end(),
                 {"--encoding", "fortran4", "--byte-order", "big", "-o", where + "/out.x"});
    ASSERT_EQ(runProgram(words), 0);
    writeSeries(where, fortran(ByteOrder_e::Big));
    for (const char* const name : {"_1.x", "_1.q", "_2.x", "_2.q", "_3.x", "_3.q"})
        EXPECT_TRUE(bytesOfFile(where + "/out" + name) == bytesOfFile(where + "/m" + name)) << name;
}

TEST_F(ConvertedSeries, KeepsOneGridFileForGridsThatStandStill) {
    const std::string where = folder("series");
    std::vector<std::string> words = writeSeries(where, {});
    words = {"convert", words[0], words[1], words[3], words[5], "-o", where + "/out.x"};
    ASSERT_EQ(runProgram(words), 0);
    EXPECT_TRUE(bytesOfFile(where + "/out.x") == bytesOfFile(where + "/m_1.x"));
    EXPECT_TRUE(bytesOfFile(where + "/out_3.q") == bytesOfFile(where + "/m_3.q"));
    EXPECT_FALSE(std::filesystem::exists(where + "/out_1.x"));
}

TEST_F(ConvertedSeries, GivesOneTimeOfItAlone) {
    const std::string where = folder("series");
    std::vector<std::string> words = writeSeries(where, {});
    words.insert(words.begin(), "convert");
    words.insert(words.end(), {"--time", "0.25", "-o", where + "/out.x"});
    ASSERT_EQ(runProgram(words), 0);
    EXPECT_TRUE(bytesOfFile(where + "/out.x") == bytesOfFile(where + "/m_2.x"));
    EXPECT_TRUE(bytesOfFile(where + "/out.q") == bytesOfFile(where + "/m_2.q"));
}

} // namespace
} // namespace quorvia::testsupport
