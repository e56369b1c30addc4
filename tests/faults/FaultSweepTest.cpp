// Every n-th thing of every kind fails in sessions of every kind; each n in a process of its own.
// faults/SampledPoints.h tells which n are taken.

#include <gtest/gtest.h>

#include "faults/ChildProcess.h"
#include "faults/SampledPoints.h"
#include "faults/SessionPlay.h"

namespace quorvia::testsupport {
namespace {

class FaultSweep : public ::testing::TestWithParam<std::tuple<std::size_t, Fault_e>> {
protected:
    static const Session_s& session() { return sessions().all()[std::get<0>(GetParam())]; }
    static Fault_e fault() { return std::get<1>(GetParam()); }
    static std::string name() { return session().name + "/" + nameOf(fault()); }

    static ChildResult_s play(const Reference& reference, std::int64_t n) {
        return runInChild([&](ChildNotes_s& notes) {
            std::string problem = playUnderFault(session(), reference, fault(), n, &notes.progress);
            notes.count = faultPoints();
            return problem;
        });
    }
};

TEST_P(FaultSweep, EndsLikeTheFaultlessOrIsRefused) {
    if (!isWanted(name()))
        GTEST_SKIP() << "another point was asked for";
    watchFilesOf(sessions().folder());
    const Reference reference = playWithoutFaults(session());
    expectWellAtEachPoint(name(), [&](std::int64_t n) { return play(reference, n); });
}

std::vector<std::size_t> allPlaces() {
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < sessions().all().size(); ++place)
        places.push_back(place);
    return places;
}

INSTANTIATE_TEST_SUITE_P(Sessions, FaultSweep,
                         ::testing::Combine(::testing::ValuesIn(allPlaces()),
                                            ::testing::ValuesIn(allFaults())),
                         [](const ::testing::TestParamInfo<FaultSweep::ParamType>& row) {
                             return sessions().all()[std::get<0>(row.param)].name + "_" +
                                    nameOf(std::get<1>(row.param));
                         });

} // namespace
} // namespace quorvia::testsupport
