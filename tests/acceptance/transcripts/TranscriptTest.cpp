// What small loads ask of the host, call by call and in order, held against golden files.
#include <filesystem>

#include "acceptance/transcripts/GoldenFile.h"
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

/// Files lie in the working directory, so that no transcript holds the name of a machine's folder.
class TranscriptOfLoad : public LoadedAddOnTest {
protected:
    void SetUp() override { std::filesystem::current_path(directory().path()); }
    void TearDown() override {
        std::filesystem::current_path(startFolder_);
        LoadedAddOnTest::TearDown();
    }

    static void expectTranscript(const char* goldenName, const Load_s& load) {
        host().recordTranscript(true);
        LoadedAddOnTest::load(load);
        expectRecorded(goldenName);
    }
    static void expectTranscriptOfSelection(const char* goldenName, const Texts& files) {
        host().recordTranscript(true);
        select(files);
        expectRecorded(goldenName);
    }

    SmallFiles files{""};

private:
    static void expectRecorded(const char* goldenName) {
        const Texts calls = host().log().transcript;
        host().recordTranscript(false);
        EXPECT_TRUE(isGolden(goldenName, calls));
    }

    const std::filesystem::path startFolder_ = std::filesystem::current_path();
};

TEST_F(TranscriptOfLoad, GridFileAlone) {
    expectTranscript("grid-file.txt", {.gridFiles = {files.grid("a.x")}});
}

TEST_F(TranscriptOfLoad, SelectedGridWithTwoSolutions) {
    files.grids = {{2, 3, 5}};
    constexpr bool hasIBlank = true;
    const std::string grid = files.grid("a.x", hasIBlank);
    expectTranscriptOfSelection("two-solutions.txt",
                                {grid, files.solution("1.q", 0.25), files.solution("2.q", 0.75)});
}

TEST_F(TranscriptOfLoad, SolutionsOfTheSameTimeTakeThoseOfTheirNames) {
    files.grids = {{2, 3, 5}};
    const std::string grid = files.grid("a.x");
    expectTranscriptOfSelection("times-of-names.txt",
                                {grid, files.solution("1.q", 0.5), files.solution("2.q", 0.5)});
}

TEST_F(TranscriptOfLoad, SomeGridsOfAFile) {
    files.grids = {{2, 3, 5}, {3, 5, 2}, {5, 2, 3}};
    const std::string grid = files.grid("a.x");
    expectTranscript("grid-set.txt", {.gridFiles = {grid},
                                      .solutionFiles = {files.solution("a.q", 0.25)},
                                      .settings = {{"FILEGRIDSET", "1,3"}}});
}

TEST_F(TranscriptOfLoad, TextFiles) {
    files.grids = {{2, 3, 5}};
    files.form.encoding = plot3dwriter::Encoding_e::Text;
    const std::string grid = files.grid("a.x");
    expectTranscript("text.txt",
                     {.gridFiles = {grid}, .solutionFiles = {files.solution("a.q", 0.25)}});
}

TEST_F(TranscriptOfLoad, UnstructuredGridWithTwoSolutions) {
    const std::string grid = files.surface("a.x");
    expectTranscript("unstructured.txt", {.gridFiles = {grid},
                                          .solutionFiles = {files.surfaceSolution("1.q", 0.25),
                                                            files.surfaceSolution("2.q", 0.75)},
                                          .settings = {{"SOLUTIONSSHARESTRUCTURE", "Yes"}}});
}

TEST_F(TranscriptOfLoad, FunctionFilesOnOneGrid) {
    files.grids = {{2, 3, 5}};
    const std::string grid = files.grid("a.x");
    expectTranscript("functions.txt",
                     {.gridFiles = {grid},
                      .functionFiles = {files.function("a.f", 2), files.function("b.f", 2)}});
}

TEST_F(TranscriptOfLoad, SeveralGridFilesOfOneStructure) {
    files.grids = {{2, 3, 5}};
    const Texts grids = {files.grid("1.x"), files.grid("2.x")};
    expectTranscript(
        "grid-files.txt",
        {.gridFiles = grids,
         .solutionFiles = {files.solution("1.q", 0.25), files.solution("2.q", 0.75)},
         .settings = {{"SOLUTIONSSHARESTRUCTURE", "Yes"}, {"ASSIGNSTRANDIDS", "Yes"}}});
}

TEST_F(TranscriptOfLoad, WithoutSharingBetweenZones) {
    files.grids = {{2, 3, 5}};
    host().settings().sharingAllowed = false;
    const std::string grid = files.grid("a.x");
    expectTranscriptOfSelection("no-sharing.txt",
                                {grid, files.solution("1.q", 0.25), files.solution("2.q", 0.75)});
}

TEST_F(TranscriptOfLoad, RefusedByTheCountsOfFiles) {
    const Texts grids = {files.grid("1.x"), files.grid("2.x")};
    expectTranscript("refused-counts.txt",
                     {.gridFiles = grids, .solutionFiles = {files.solution("1.q", 0.25)}});
}

TEST_F(TranscriptOfLoad, FailsInTheDataSetStage) {
    files.grids = {{2, 3, 5}};
    const std::string grid = files.grid("a.x");
    const std::string solution = files.solution("a.q", 0.25);
    host().failCall("QuorUtilDataValueCustomLOD", 5);
    expectTranscript("failed-field.txt", {.gridFiles = {grid}, .solutionFiles = {solution}});
}

} // namespace
} // namespace quorvia::testsupport
