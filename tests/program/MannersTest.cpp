#include <sstream>

#include <gtest/gtest.h>
#include <plot3d/Error.h>

#include "manners/FileList.h"
#include "manners/ProgressWatch.h"
#include "manners/ShellWords.h"
#include "manners/Talk.h"

namespace plot3d::program {
namespace {

class Manners : public testing::Test {
protected:
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    Surroundings_s surroundings{in, out, err, 0, 0, false, ProgressWish_e::Auto, false, {}};
};

TEST_F(Manners, AnErrorIsOneLineAndWhatToTry) {
    tellError(err, Error(ErrorKind::NotPlot3D, "ends early",
                         {.file = "a.q",
                          .byte = 819228,
                          .expected = "484 bytes",
                          .found = "nothing",
                          .next = "plot3d info a.q"}));
    EXPECT_EQ(err.str(), "plot3d: error: a.q: ends early at byte 819,228, expected 484 bytes, "
                         "found nothing\ntry: plot3d info a.q\n");
}

TEST_F(Manners, AnErrorGoesOnBehindASentenceWithoutItsFullStop) {
    tellError(err, Error(ErrorKind::NotPlot3D, "It ends early.", {.file = "a.q", .byte = 8}));
    EXPECT_EQ(err.str(), "plot3d: error: a.q: It ends early at byte 8\n");
}

TEST_F(Manners, AnErrorWithoutFactsIsOneLine) {
    tellError(err, Error(ErrorKind::Refused, "no\ngood"));
    EXPECT_EQ(err.str(), "plot3d: error: no?good\n");
}

TEST_F(Manners, ExitCodesGoByTheKindOfFailure) {
    EXPECT_EQ(exitCodeOf(ErrorKind::NotFound), 1);
    EXPECT_EQ(exitCodeOf(ErrorKind::Usage), 2);
    EXPECT_EQ(exitCodeOf(ErrorKind::Unreadable), 3);
    EXPECT_EQ(exitCodeOf(ErrorKind::Interrupted), 130);
}

TEST_F(Manners, QuietLeavesWarningsOut) {
    tellWarning(surroundings, "odd");
    surroundings.quiet = true;
    tellWarning(surroundings, "odder");
    EXPECT_EQ(err.str(), "plot3d: warning: odd\n");
}

TEST_F(Manners, ADashIsAListOnStandardInput) {
    in.str("b.q\n\n c d.q\r\n");
    EXPECT_EQ(filesNamed({"a.q", "-", "e.q", "-"}, in),
              (std::vector<std::string>{"a.q", "b.q", " c d.q", "e.q"}));
}

TEST_F(Manners, WordsAreQuotedForTheShell) {
    EXPECT_EQ(shellLine({"plot3d", "info", "a b.q", "it's", "", "x=1,2"}),
              "plot3d info 'a b.q' 'it'\\''s' '' x=1,2");
}

TEST_F(Manners, ProgressIsForTerminalsUnlessAskedFor) {
    EXPECT_EQ(progressColumns(surroundings), 0);
    surroundings.progress = ProgressWish_e::Always;
    EXPECT_EQ(progressColumns(surroundings), 80);
    surroundings.progress = ProgressWish_e::Auto;
    surroundings.errColumns = 100;
    EXPECT_EQ(progressColumns(surroundings), 100);
    surroundings.quiet = true;
    EXPECT_EQ(progressColumns(surroundings), 0);
    surroundings.progress = ProgressWish_e::Never;
    surroundings.quiet = false;
    EXPECT_EQ(progressColumns(surroundings), 0);
}

TEST_F(Manners, ProgressOfAPartCountsAsThatPart) {
    surroundings.errColumns = 60;
    surroundings.progress = ProgressWish_e::Always;
    ProgressWatch progress(surroundings);
    progress.setPart(0.5, 1);
    progress.watch().progress({"reading", 0.5, -1});
    EXPECT_EQ(err.str(), "\r\x1b[K[##################......]  75% reading");
}

TEST_F(Manners, AStopIsAnError) {
    std::stop_source source;
    throwIfStopped(source.get_token());
    source.request_stop();
    EXPECT_THROW(throwIfStopped(source.get_token()), Error);
}

} // namespace
} // namespace plot3d::program
