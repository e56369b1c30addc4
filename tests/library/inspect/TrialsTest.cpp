// The trials as they are told: each reading with what did not fit, and what else a file could be.
#include <algorithm>

#include "InspectFixture.h"

namespace plot3d {
namespace {

using writer::Encoding_e;

class Trials : public InspectTest {
protected:
    static InspectOptions everything() {
        InspectOptions options;
        options.allReadings = true;
        return options;
    }

    static std::string wordsOf(const Trial& trial) {
        if (!trial.misfit)
            return "fits";
        return trial.misfit->what + " (" + trial.misfit->expected + " | " + trial.misfit->found +
               ")";
    }
    /// The last trial that was not taken.
    static std::string lastMisfit(const FileInfo& info) {
        std::string words;
        for (const Trial& trial : info.trials)
            if (trial.misfit)
                words = wordsOf(trial);
        return words;
    }
    static std::int64_t fitting(const FileInfo& info) {
        return std::count_if(info.trials.begin(), info.trials.end(),
                             [](const Trial& trial) { return !trial.misfit; });
    }
};

TEST_F(Trials, EndWithTheOneThatFits) {
    const FileInfo info = inspectBytes("wing.x", gridBytes(Encoding_e::Binary, true));
    ASSERT_EQ(info.trials.size(), 6U); // with a count in both precisions, with and without I-blank
    EXPECT_EQ(wordsOf(info.trials[0]),
              "grid 1 ends behind the file even with one byte a point (at least "
              "15,552,479,239 bytes | 492 bytes)");
    EXPECT_EQ(wordsOf(info.trials[4]), "120 bytes too many behind byte 372 (360 bytes behind the "
                                       "header | 480 bytes)");
    EXPECT_EQ(info.trials[4].misfit->byte, 12);
    EXPECT_EQ(wordsOf(info.trials[5]), "fits");
    EXPECT_TRUE(info.trials[5].candidate.iBlank);
    EXPECT_EQ(info.trials[5].candidate.byteOrder, ByteOrder::Little);
}

// As a Classic solution, which a load tries first, the grids would have 3 x 2 and 5 x 1 points, and
// the file just as many bytes.
TEST_F(Trials, AreTakenByTheKindThatTheNameTells) {
    const writer::FileDescription_s contents =
        quorvia::testsupport::describeFunction({{3, 2, 1}, {1, 4, 1}}, 5, writer::Layout_e::TwoD);
    const FileInfo info = inspectBytes("wing.f", bytesOf(contents, {}));
    EXPECT_EQ(info.kind, FileKind::Function);
    EXPECT_EQ(info.variables, 5);
    ASSERT_EQ(info.warnings.size(), 1U);
    EXPECT_EQ(nextOf(info.warnings[0], info),
              "plot3d stats --grid GRID --function FILE --set AUTODETECT=No --set "
              "DATASTRUCTURE=2D --set STYLE=PLOT3DFUNCTION --set ISMULTIGRID=Yes");
}

TEST_F(Trials, AreLeftAwayIfNobodyAsks) {
    InspectOptions options;
    options.trials = false;
    const FileInfo info = inspectBytes("wing.x", gridBytes(Encoding_e::Binary), options);
    EXPECT_TRUE(info.ok);
    EXPECT_EQ(info.trials.size(), 0U);
}

TEST_F(Trials, GoOnToAllKindsIfAsked) {
    const FileInfo info = inspectBytes("wing.x", gridBytes(Encoding_e::Binary), everything());
    EXPECT_EQ(fitting(info), 2); // whole, and planes
    EXPECT_TRUE(std::any_of(info.trials.begin(), info.trials.end(), [](const Trial& trial) {
        return trial.candidate.style == Style::Overflow;
    }));
    EXPECT_EQ(info.kind, FileKind::Grid);
    EXPECT_EQ(info.alsoFits, std::vector<FileKind>());
}

TEST_F(Trials, TellFurtherKindsThatFit) {
    // 2 variables of 13 points in 64 bits take as many bytes as X and Y of 13 x 2 points in 32.
    const writer::FileForm_s form =
        formOf(Encoding_e::Binary, writer::ByteOrder_e::Little, writer::Precision_e::Double);
    const LayoutCase_s line = {writer::FileKind_e::Function, writer::Layout_e::OneD, false, false};
    const FileInfo info = inspectBytes("mesh.bin", bytesOf(line, form));
    EXPECT_EQ(info.kind, FileKind::Grid);
    EXPECT_EQ(info.alsoFits, std::vector{FileKind::Function});
    InspectOptions asFunction;
    asFunction.as = FileKind::Function;
    EXPECT_EQ(inspectBytes("mesh.bin", bytesOf(line, form), asFunction).kind, FileKind::Function);
}

TEST_F(Trials, OfTextTellLineAndColumn) {
    const FileInfo info = inspectBytes("wing.q", "2 3 5\n1.0 2.0 3.0\n4.0 5.0 6.0\n7.0 8.0\n");
    const auto scalars =
        std::find_if(info.trials.begin(), info.trials.end(), [](const Trial& trial) {
            return trial.misfit &&
                   trial.misfit->what == "the scalars of grid 1 do not end their line";
        });
    ASSERT_NE(scalars, info.trials.end());
    EXPECT_EQ(scalars->misfit->line, 3);
    EXPECT_EQ(scalars->misfit->column, 5);
}

TEST_F(Trials, OfFortranTellTheSecondSearchAsRelaxed) {
    std::string bytes = gridBytes(Encoding_e::Fortran);
    const FileInfo good = inspectBytes("wing.x", bytes);
    EXPECT_FALSE(good.trials.back().candidate.relaxed);
    const FileInfo solution = inspectBytes("wing.x", solutionBytes(Encoding_e::Fortran));
    EXPECT_TRUE(solution.trials.back().candidate.relaxed);
    EXPECT_FALSE(solution.trials.back().misfit);
    EXPECT_EQ(solution.trials.back().candidate.layout, Layout::OneD);
}

} // namespace
} // namespace plot3d
