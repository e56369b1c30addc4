#include "SeriesFixture.h"

namespace plot3dtest {

writer::FileForm_s SeriesTest::doubleForm() {
    return quorvia::testsupport::binary(writer::ByteOrder_e::Little, writer::Precision_e::Double);
}

std::string SeriesTest::writeStep(const std::string& name, writer::FileKind_e kind, int step,
                                  double time, writer::FileForm_s form,
                                  writer::Layout_e layout) const {
    writer::FileDescription_s contents = quorvia::testsupport::describe(
        kind, {{2, 3, 5}, {5, 2, 3}}, layout,
        [step](std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
               std::int32_t k) { return valueOf(step, grid, variable, i, j, k); });
    contents.numVars = 2; // where the header tells it
    quorvia::testsupport::setScalars(contents, {0.5, 1.0, 100.0, time});
    return write(name, contents, form);
}

::testing::AssertionResult SeriesTest::isOfStep(const plot3d::DataSet& data, std::size_t zone,
                                                std::size_t first, std::size_t last, int step,
                                                std::int32_t grid) {
    const plot3d::Extent size = data.zones()[zone].size;
    for (std::size_t variable = first; variable <= last; ++variable) {
        const std::vector<double> found = data.values(zone, variable);
        std::size_t index = 0;
        for (std::int64_t k = 0; k < size.k; ++k)
            for (std::int64_t j = 0; j < size.j; ++j)
                for (std::int64_t i = 0; i < size.i; ++i, ++index)
                    if (const double wanted = valueOf(
                            step, grid, static_cast<std::int32_t>(variable - first), i, j, k);
                        found[index] != wanted)
                        return ::testing::AssertionFailure()
                               << "zone " << zone << ", variable " << variable << ", value "
                               << index << ": found " << found[index] << ", expected " << wanted;
    }
    return ::testing::AssertionSuccess();
}

} // namespace plot3dtest
