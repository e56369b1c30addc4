// Every call that the host can refuse is refused once, for every operation and every call of a
// small load: nothing may leak, no handle may be used that was never given, and a load without
// faults works afterwards.
#include <new>

#include "DatasetFixture.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

const GridList gridPair = {{2, 3, 5}, {3, 2, 2}};

class HostFaults : public DatasetTest, public ::testing::WithParamInterface<std::string> {
protected:
    TimeSteps timeSeries(const FileForm_s& form) {
        FileDescription_s grid = describeGrid(gridPair);
        grid.hasIBlank = true;
        Plot3DFile_s& x = write("x", grid, form);
        Plot3DFile_s& q1 = write("q1", describeSolution(gridPair, 1), form);
        Plot3DFile_s& q2 = write("q2", describeSolution(gridPair, 2), form);
        Plot3DFile_s& f1 = write("f1", describeFunction(gridPair, 2), form);
        Plot3DFile_s& f2 = write("f2", describeFunction(gridPair, 2), form);
        return {step(&x, &q1, {&f1}), step(&x, &q2, {&f2})};
    }
    TimeSteps surface() {
        return {step(&write("s", describeGrid({{11, 5, 0}}, Layout_e::Unstructured)))};
    }

    void loadWithEveryFault(const TimeSteps& steps) {
        for (std::int64_t n = 1;; ++n) {
            host().clearFaults();
            host().failCall(GetParam(), n);
            try {
                load(steps);
            } catch (const std::bad_alloc&) { // names that the host could not take
            }
            const bool met = host().callCount(GetParam()) >= n;
            forgetPositions(steps);
            if (!met)
                break;
        }
        host().clearFaults();
        EXPECT_TRUE(load(steps));
        forgetPositions(steps);
    }

    /// A load has records of its own.
    static void forgetPositions(const TimeSteps& steps) {
        for (const Plot3DFileHandler& handler : steps) {
            handler.gridFile->varOffsets.reset();
            handler.gridFile->iBlankOffsets.reset();
        }
    }
};

TEST_P(HostFaults, LeaveNothingBehind) {
    loadWithEveryFault(timeSeries(binary()));
    options.solutionFiles.clear();
    options.functionFiles.clear();
    loadWithEveryFault(surface());
}

TEST_P(HostFaults, LeaveNothingBehindWhenAllIsReadAtOnce) {
    options.solutionsShareStructure = false;
    loadWithEveryFault(timeSeries(text()));
}

TEST_P(HostFaults, LeaveNothingBehindWithoutSharingAndPlainArrays) {
    host().settings().sharingAllowed = false;
    host().settings().plainArrays = false;
    loadWithEveryFault(timeSeries(text()));
}

INSTANTIATE_TEST_SUITE_P(OfEveryOperation, HostFaults,
                         ::testing::ValuesIn(host::ReferenceHost::operationsThatCanFail()),
                         [](const auto& row) {
                             std::string name = row.param;
                             std::erase(name, ':');
                             return name;
                         });

} // namespace
