// The host's rule for times in file names, and how it can be set aside.
#include "services/FileNameTimes.h"
#include "HostFixture.h"

namespace quorvia::host {
namespace {

TEST(TimeFromFileName, IsTheLastNumber) {
    const std::pair<const char*, double> cases[] = {
        {"q.0001000", 1000.0},    // an extension that is a number
        {"wing_t0.25.q", 0.25},   // a point with digits behind it
        {"step-12.q", 12.0},      // '-' separates behind a letter
        {"step3-12.q", 12.0},     // and behind a digit
        {"t_-5.q", -5.0},         // elsewhere it is a sign
        {"-7.25", -7.25},         // also at the front
        {"wing_12.p3d", 12.0},    // the digit of an extension that is no number
        {"t1.25e-03.q", 0.00125}, // an exponent behind a fraction
        {"t1.5e3.q", 1500.0},     //
        {"t1.5e-3", 0.0015},      // also at the end, which is no extension then
        {"run2e3.q", 3.0},        // no fraction, no exponent
        {"q.7.", 7.0},            // a point at the end
        {"/d.5/q2", 2.0},         // directories don't count
        {"d9\\q4.q", 4.0}};
    for (const auto& [name, time] : cases)
        EXPECT_EQ(timeFromFileName(name), std::optional(time)) << name;
}

TEST(TimeFromFileName, IsMissingWithoutANumber) {
    for (const char* name : {"wing.q", "", "run3/case5/wing.x7", "p.f90", "step-.q"})
        EXPECT_EQ(timeFromFileName(name), std::nullopt) << name;
}

class ExtractTimesTest : public HostTest {
protected:
    static bool extract(const Texts& names, std::vector<double>& times) {
        const HostStringList list(QuorUtilStringListAlloc());
        for (const std::string& name : names)
            QuorUtilStringListAppendString(list.get(), name.c_str());
        times.assign(names.size(), -1.0);
        return QuorUtilExtractTimesFromFileNames(list.get(), times.data(), false);
    }
    std::vector<double> times_;
};

TEST_F(ExtractTimesTest, FillsTheTimesInOrder) {
    EXPECT_TRUE(extract({"q.0020", "q.0010"}, times_));
    EXPECT_EQ(times_, (std::vector<double>{20.0, 10.0}));
}

TEST_F(ExtractTimesTest, NeedsATimeInEveryName) {
    EXPECT_FALSE(extract({"q.0020", "wing.q"}, times_));
    EXPECT_EQ(times_, (std::vector<double>{-1.0, -1.0}));
}

TEST_F(ExtractTimesTest, FindsNoneInNoNames) {
    EXPECT_FALSE(extract({}, times_));
}

TEST_F(ExtractTimesTest, TakesTheTimesThatTheHostIsGiven) {
    host().settings().timesFromFileNames = std::vector<double>{3.5};
    EXPECT_TRUE(extract({"wing.q"}, times_));
    EXPECT_EQ(times_, std::vector<double>{3.5});
    EXPECT_FALSE(extract({"wing.q", "wing2.q"}, times_));
}

TEST_F(ExtractTimesTest, WithholdsTimes) {
    host().settings().timesFromFileNames = std::vector<double>{};
    EXPECT_FALSE(extract({"q.0020"}, times_));
}

} // namespace
} // namespace quorvia::host
