// The example of docs/library.md, as it stands there.
#include <fstream>
#include <sstream>

#include <plot3d/plot3d.h>

#include "SeriesFixture.h"

namespace plot3dtest {
namespace {

std::size_t playExample() {
    std::size_t valueCount = 0;
    // example begins
    const auto data = plot3d::DataSet::open({"wing.x", "wing_2.q", "wing_10.q"});
    for (const plot3d::TimeStep& step : data.timeSteps())
        for (const std::size_t zone : step.zones) {
            const std::vector<double> density = data.values(zone, data.variable("RHO"));
            // density[i + size.i * (j + size.j * k)], with size = data.zones()[zone].size
            valueCount += density.size();
        }
    // example ends
    return valueCount;
}

/// The lines between two others, without what they are set in by, and without blank ones.
std::vector<std::string> linesBetween(const std::string& file, const std::string& begin,
                                      const std::string& end) {
    std::vector<std::string> lines;
    std::ifstream in(file);
    bool isInside = false;
    for (std::string line; std::getline(in, line);) {
        line.erase(0, line.find_first_not_of(' '));
        if (isInside && line == end)
            return lines;
        if (isInside && !line.empty())
            lines.push_back(line);
        isInside = isInside || line == begin;
    }
    return {};
}

class DocumentedExample : public SeriesTest {};

TEST_F(DocumentedExample, IsTheOneThatIsPlayedHere) {
    auto shown = linesBetween(LIBRARY_PAGE, "```cpp", "```");
    auto played = linesBetween(EXAMPLE_SOURCE, "// example begins", "// example ends");
    std::erase(played, "valueCount += density.size();");
    ASSERT_GT(shown.size(), 4u);
    shown.erase(shown.begin()); // the include
    EXPECT_EQ(shown, played);
}

TEST_F(DocumentedExample, Reads) {
    writeStep("wing.x", writer::FileKind_e::Grid, 0);
    writeStep("wing_2.q", writer::FileKind_e::ClassicSolution, 1, 0.25);
    const auto last = writeStep("wing_10.q", writer::FileKind_e::ClassicSolution, 2, 0.5);
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(std::filesystem::path(last).parent_path());
    EXPECT_EQ(playExample(), 4u * 30u);
    std::filesystem::current_path(before);
}

} // namespace
} // namespace plot3dtest
