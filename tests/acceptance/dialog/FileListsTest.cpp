// Adding, selecting and removing files in the three columns, and the name file.
#include "acceptance/dialog/DialogSession.h"

namespace quorvia::testsupport {
namespace {

class FileLists : public DialogSession, public ::testing::WithParamInterface<const char*> {
protected:
    /// Three files of the column.
    Texts threeFiles() {
        const std::string column = GetParam();
        if (column == "Grid")
            return {series_.grid("a.x"), series_.grid("b.x"), series_.grid("c.x")};
        if (column == "Solution")
            return {series_.solution("a.q", 1), series_.solution("b.q", 2),
                    series_.solution("c.q", 3)};
        return {series_.function("a.f", 2), series_.function("b.f", 2), series_.function("c.f", 2)};
    }
    Json itemsAfter(const Texts& files, const Actions& actions) {
        return listOf(shownAfter(files, actions), GetParam())["items"];
    }
};

TEST_P(FileLists, RemoveSelectedRemovesAllThatIsSelected) {
    const Texts files = threeFiles();
    EXPECT_EQ(
        itemsAfter(files, {selectItems({1, 3}, GetParam()), press("Remove Selected", GetParam())}),
        Json({files[1]}));
    EXPECT_EQ(buttonOf(described("shown"), "Remove Selected", GetParam())["sensitive"], false);
}

TEST_P(FileLists, RemoveAllEmptiesTheList) {
    EXPECT_EQ(itemsAfter(threeFiles(), {press("Remove All", GetParam())}), Json::array());
    EXPECT_EQ(buttonOf(described("shown"), "Remove All           ", GetParam())["sensitive"],
              false);
}

TEST_P(FileLists, AddFilesAppendsWithoutAskingWhatTheyAre) {
    const Texts files = threeFiles();
    const Texts added = {"/data/any.thing", "/data/other.nam"};
    EXPECT_EQ(itemsAfter({files[0]}, {choose(added), press("Add Files...", GetParam())}),
              Json({files[0], added[0], added[1]}));
    EXPECT_EQ(buttonOf(described("shown"), "Remove All           ", GetParam())["sensitive"], true);
}

TEST_P(FileLists, AddFilesKeepsDuplicates) {
    const Texts files = threeFiles();
    EXPECT_EQ(itemsAfter({files[0]}, {choose({files[0]}), press("Add Files...", GetParam())}),
              Json({files[0], files[0]}));
}

TEST_P(FileLists, AddFilesCancelledAddsNothing) {
    const Texts files = threeFiles();
    EXPECT_EQ(itemsAfter({files[0]}, {choose({}), press("Add Files...", GetParam())}),
              Json({files[0]}));
}

INSTANTIATE_TEST_SUITE_P(Of, FileLists, ::testing::Values("Grid", "Solution", "Function"),
                         [](const auto& column) { return std::string(column.param); });

class NameFile : public DialogSession {
protected:
    std::string nameAfter(const Actions& actions) {
        return control(shownAfter({grid_, solution_}, actions), selectionPage,
                       "textField")["value"];
    }
    const std::string grid_ = series_.grid("wing.x");
    const std::string solution_ = series_.solution("wing.q", 1);
};

TEST_F(NameFile, IsChosenOrTyped) {
    EXPECT_EQ(nameAfter({choose({"/data/a.nam"}), press("...")}), "/data/a.nam");
    EXPECT_EQ(
        nameAfter({type("/data/b.nam", "Name File"), toPage(subsetPage), toPage(selectionPage)}),
        "/data/b.nam");
}

TEST_F(NameFile, StaysWhenChoosingIsCancelled) {
    EXPECT_EQ(nameAfter({type("/data/b.nam", "Name File"), choose({}), press("...")}),
              "/data/b.nam");
}

TEST_F(NameFile, NamesTheVariables) {
    const std::string names = directory().write("wing.nam", "A\nB\nC\nD\nE\n");
    playAtDialog({grid_, solution_}, {type(names, "Name File"), press("OK")});
    EXPECT_EQ(last()["dataSet"]["variables"], Json({"X", "Y", "Z", "A", "B", "C", "D", "E"}));
}

} // namespace
} // namespace quorvia::testsupport
