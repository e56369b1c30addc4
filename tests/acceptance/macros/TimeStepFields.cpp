#include "acceptance/macros/TimeStepFields.h"

namespace quorvia::testsupport {

namespace {

using plot3dwriter::Layout_e;

std::int32_t coordinatesOf(Layout_e layout) {
    return layout == Layout_e::OneD ? 1 : layout == Layout_e::TwoD ? 2 : 3;
}

std::int32_t solutionVariablesOf(Layout_e layout) {
    return layout == Layout_e::OneD ? 3 : layout == Layout_e::TwoD ? 4 : 5;
}

/// Of one zone, in the order of its variables.
std::vector<FieldOfFile_s> fieldsOfZone(const SmallFiles& files, std::size_t grid,
                                        const TimeStepFields_s& step) {
    std::vector<FieldOfFile_s> fields;
    const auto add = [&](std::int32_t count, FieldForm_e form, double shift) {
        for (std::int32_t variable = 0; variable < count; ++variable)
            fields.push_back({.dims = files.grids[grid],
                              .grid = static_cast<std::int32_t>(grid),
                              .variable = variable,
                              .shift = shift,
                              .form = form});
    };
    add(coordinatesOf(files.layout), step.gridForm, 0);
    add(step.hasIBlank ? 1 : 0, FieldForm_e::IBlank, 0);
    if (step.solutionShift)
        add(solutionVariablesOf(files.layout), step.solutionForm, *step.solutionShift);
    add(step.functionCount, step.solutionForm, step.functionShift);
    return fields;
}

} // namespace

void expectTimeStep(const Json& outcome, const SmallFiles& files, const TimeStepFields_s& step) {
    ASSERT_FALSE(outcome["dataSet"].isNull());
    const Json& zones = outcome["dataSet"]["zones"];
    ASSERT_GE(zones.size(), step.firstZone - 1 + files.grids.size());
    for (std::size_t grid = 0; grid < files.grids.size(); ++grid) {
        const Json& fields = zones[step.firstZone - 1 + grid]["fields"];
        const std::vector<FieldOfFile_s> expected = fieldsOfZone(files, grid, step);
        ASSERT_EQ(fields.size(), expected.size());
        for (std::size_t field = 0; field < expected.size(); ++field)
            EXPECT_TRUE(holds(fields[field], expected[field]))
                << "zone " << step.firstZone + grid << ", variable " << field + 1 << ": "
                << fields[field].dump();
    }
}

} // namespace quorvia::testsupport
