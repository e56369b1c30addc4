#include "console/ProgressLine.h"

#include <sstream>

#include <gtest/gtest.h>

namespace console {
namespace {

using std::chrono::duration;

class ProgressLineTest : public testing::Test {
protected:
    static constexpr int columns = 50;

    std::ostringstream err;
};

TEST_F(ProgressLineTest, IsDrawnInPlaceAndCleared) {
    ProgressLine progress(err, columns);
    progress.show(0.25, "Examining");
    progress.clear();
    EXPECT_EQ("\r\x1b[K[######..................]  25% Examining\r\x1b[K", err.str());
}

TEST_F(ProgressLineTest, IsNotDrawnWithoutATerminal) {
    ProgressLine progress(err, 0);
    progress.show(0.5, "Examining");
    progress.clear();
    EXPECT_EQ("", err.str());
}

TEST_F(ProgressLineTest, IsCutToTheWidthOfTheTerminal) {
    ProgressLine progress(err, columns);
    progress.show(1, "a text of more columns than there are left here");
    EXPECT_EQ("\r\x1b[K[########################] 100% a text of more co", err.str());
}

TEST_F(ProgressLineTest, EndsWithItsOwner) {
    { ProgressLine(err, columns).show(0, "x"); }
    EXPECT_EQ("\r\x1b[K[........................]   0% x\r\x1b[K", err.str());
}

TEST(PaceTest, TellsBytesRateAndTimeLeft) {
    Pace pace;
    pace.note(duration<double>(10), 0, 0);
    pace.note(duration<double>(12), 0.25, 1'700'000'000);
    EXPECT_EQ(pace.text(), "1.7 GB, 850 MB/s, 6 s left");
}

TEST(PaceTest, TellsNothingTooEarly) {
    Pace pace;
    EXPECT_EQ(pace.text(), "");
    pace.note(duration<double>(10), 0, 0);
    pace.note(duration<double>(10.4), 0.25, 1'700'000'000);
    EXPECT_EQ(pace.text(), "");
}

TEST(PaceTest, OfTheNextFileBeginsAnew) {
    Pace pace;
    pace.note(duration<double>(10), 0.8, 5000);
    pace.note(duration<double>(12), 0.1, 0);
    pace.note(duration<double>(13), 0.2, 3000);
    EXPECT_EQ(pace.text(), "3.0 kB, 3.0 kB/s, 8 s left");
}

TEST(PaceTest, WithoutBytesTellsTheTimeAlone) {
    Pace pace;
    pace.note(duration<double>(0), 0, -1);
    pace.note(duration<double>(1), 0.5, -1);
    EXPECT_EQ(pace.text(), "1 s left");
}

} // namespace
} // namespace console
