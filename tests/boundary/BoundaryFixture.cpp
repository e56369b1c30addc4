#include "BoundaryFixture.h"

namespace quorvia::testsupport {

namespace {

std::vector<std::int64_t> selected(std::int32_t start, std::int32_t end, std::int32_t skip) {
    std::vector<std::int64_t> indices;
    for (std::int64_t index = start; index < end; index += skip)
        indices.push_back(index);
    indices.push_back(end);
    return indices;
}

} // namespace

void BoundaryTest::writeBoundaries(const std::string& gridFile, const Texts& names,
                                   const Texts& lines) {
    std::string content = "FVBND 1 4\n";
    for (const std::string& name : names)
        content += name + "\n";
    content += "BOUNDARIES\n";
    for (const std::string& line : lines)
        content += line + "\n";
    directory.write(gridFile + ".fvbnd", content);
}

void BoundaryTest::loadWell() {
    ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
    ASSERT_EQ(messages(), Texts());
}

std::int32_t BoundaryTest::parentOf(std::int32_t zoneNumber) {
    const std::int64_t parent = zone(zoneNumber).parentZoneId;
    return parent != 0 ? dataSet().zoneNumber(parent) : 0;
}

Numbers BoundaryTest::partOf(std::int32_t zoneNumber, std::int32_t var, const Part_s& part,
                             std::int32_t skipI, std::int32_t skipJ, std::int32_t skipK) {
    const host::Zone_s& parent = zone(zoneNumber);
    const Numbers whole = values(zoneNumber, var);
    Numbers some;
    for (const std::int64_t k : selected(part.kStart, part.kEnd, skipK))
        for (const std::int64_t j : selected(part.jStart, part.jEnd, skipJ))
            for (const std::int64_t i : selected(part.iStart, part.iEnd, skipI))
                some.push_back(whole.at(
                    static_cast<std::size_t>(((k - 1) * parent.j + (j - 1)) * parent.i + i - 1)));
    return some;
}

void BoundaryTest::expectShows(std::int32_t boundaryZone, std::int32_t parent, const Part_s& part) {
    const auto count = static_cast<std::int32_t>(variableNames().size());
    ASSERT_GT(count, 0);
    for (std::int32_t var = 1; var <= count; ++var) {
        EXPECT_EQ(values(boundaryZone, var), partOf(parent, var, part)) << "variable " << var;
        EXPECT_EQ(fieldType(boundaryZone, var), fieldType(parent, var)) << "variable " << var;
    }
}

} // namespace quorvia::testsupport
