// What OK stores for the launch that follows.
#include "dialog/DialogOkFixture.h"

namespace quorvia::quorutildataio {
namespace {

class RetainedFiles : public DialogOk {
protected:
    /// What the dialog shows when it comes back after OK.
    struct Shown_s {
        Texts grids;
        Texts solutions;
        Texts functions;
        std::string nameFile;
    };
    Shown_s afterRefusedOk() {
        Shown_s shown;
        makeDataSet();
        open({pressOk(), meanwhile([&shown] {
                  shown = {items(gridList), items(solutionList), items(functionList),
                           text(nameFileField)};
              })});
        return shown;
    }
};

TEST_F(RetainedFiles, ComeBackAfterARefusedOk) {
    retain({"a.x", "b.x"}, {"a.q"}, {}, "n.nam");
    const Shown_s shown = afterRefusedOk();
    EXPECT_EQ(shown.grids, (Texts{"a.x", "b.x"}));
    EXPECT_EQ(shown.solutions, Texts{"a.q"});
    EXPECT_EQ(shown.functions, Texts());
    EXPECT_EQ(shown.nameFile, "n.nam");
}

TEST_F(RetainedFiles, OfFunctionsComeBackInPlaceOfTheSolutions) {
    retain({"a.x"}, {"a.q"}, {"a.f", "b.f"});
    const Shown_s shown = afterRefusedOk();
    EXPECT_EQ(shown.grids, Texts{"a.x"});
    EXPECT_EQ(shown.solutions, (Texts{"a.f", "b.f"}));
    EXPECT_EQ(shown.functions, Texts());
    EXPECT_EQ(gRetainedSolutionFiles, (Texts{"a.f", "b.f"}));
    EXPECT_EQ(gRetainedFunctionFiles, Texts());
}

TEST_F(RetainedFiles, AreThoseOfTheDialogAlsoWhereAListIsEmpty) {
    makeDataSet();
    retain({"a.x"}, {"a.q"});
    open({press(gridRemoveAll), pressOk()});
    EXPECT_EQ(gRetainedGridFiles, Texts());
    EXPECT_EQ(gRetainedSolutionFiles, Texts{"a.q"});
    retain({"a.x"}, {"a.q"});
    open({press(solutionRemoveAll), pressOk()});
    EXPECT_EQ(gRetainedGridFiles, Texts{"a.x"});
    EXPECT_EQ(gRetainedSolutionFiles, Texts());
}

TEST_F(RetainedFiles, AreLeftAloneByARefusalForMissingFiles) {
    retain({"a.x"}, {}, {}, "n.nam");
    open({press(gridRemoveAll), pressOk()});
    EXPECT_EQ(gRetainedGridFiles, Texts{"a.x"});
    EXPECT_EQ(gRetainedNameFile, "n.nam");
}

TEST_F(RetainedFiles, AreStoredAlsoByALoadThatGoesThrough) {
    retain({grid_}, {}, {functionFile("a.f")});
    open({pressOk()});
    EXPECT_TRUE(isAnythingLoaded());
    EXPECT_EQ(gRetainedGridFiles, Texts{grid_});
    EXPECT_EQ(gRetainedSolutionFiles, Texts{directory_.file("a.f")});
}

} // namespace
} // namespace quorvia::quorutildataio
