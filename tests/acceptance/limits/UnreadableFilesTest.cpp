// Names behind which there is no file to read, and files that go away or change between two looks.
#include <filesystem>

#include <sys/stat.h>
#include <unistd.h>

#include "BadInputFixture.h"

namespace quorvia::testsupport {
namespace {

namespace fs = std::filesystem;

class UnreadableFiles : public BadInputTest {
protected:
    std::string writeGrid(const std::string& name = "grid.x") const {
        return directory().write(name, bytesOf(smallGrid()));
    }
    static std::string cannotOpen(const std::string& file) {
        return "The file " + file + " could not be opened.";
    }
    /// Removes the file when the load shows a text that begins so.
    static void removeWhenShown(const std::string& file, const std::string& text) {
        host().settings().progressObserver = [=](const host::ProgressState_s& state) {
            if (state.text.rfind(text, 0) == 0)
                fs::remove(file);
        };
    }
    static host::FetchResult_s fetchX() { return host().fetch(1, 1); }
};

// The name is wrong. Creating the record of the file tells so, and opening it for detection again.
TEST_F(UnreadableFiles, FileThatIsNotThereIsToldByName) {
    const std::string missing = directory().file("missing.x");
    expectRefusal({.gridFiles = {missing}}, {cannotOpen(missing), cannotOpen(missing)});
}

// A folder was picked. It opens, but there is nothing to read from it.
TEST_F(UnreadableFiles, DirectoryIsNoFile) {
    const std::string folder = directory().file("folder.x");
    fs::create_directory(folder);
    expectRefusal({.gridFiles = {folder}}, {cannotOpen(folder), cannotOpen(folder)});
}

// Nobody writes to the pipe: opening it for reading must not wait for somebody.
TEST_F(UnreadableFiles, PipeDoesNotHoldTheHost) {
    const std::string pipe = directory().file("pipe.x");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    expectRefusal({.gridFiles = {pipe}}, {cannotOpen(pipe), cannotOpen(pipe)});
}

// A device that never ends.
TEST_F(UnreadableFiles, DeviceIsNoFile) {
    expectRefusal({.gridFiles = {"/dev/zero"}}, {cannotOpen("/dev/zero"), cannotOpen("/dev/zero")});
}

TEST_F(UnreadableFiles, FileWithoutPermissionIsToldByName) {
    if (geteuid() == 0)
        GTEST_SKIP() << "the superuser may read every file";
    const std::string locked = writeGrid();
    fs::permissions(locked, fs::perms::none);
    expectRefusal({.gridFiles = {locked}}, {cannotOpen(locked), cannotOpen(locked)});
}

TEST_F(UnreadableFiles, LinkToItselfIsToldByName) {
    const std::string link = directory().file("link.x");
    fs::create_symlink(link, link);
    expectRefusal({.gridFiles = {link}}, {cannotOpen(link), cannotOpen(link)});
}

TEST_F(UnreadableFiles, NameLongerThanTheSystemAllowsIsToldWhole) {
    const std::string file = directory().file(std::string(5000, 'n'));
    expectRefusal({.gridFiles = {file}}, {cannotOpen(file), cannotOpen(file)});
}

// The file was found good, and is gone when its zones are made.
TEST_F(UnreadableFiles, FileThatVanishesBehindDetectionIsToldOnce) {
    const std::string grid = writeGrid();
    removeWhenShown(grid, "Creating the dataset");
    EXPECT_EQ(attempt({.gridFiles = {grid}}), Fate_e::Refused);
    ASSERT_FALSE(messages().empty());
    EXPECT_EQ(messages().front(), cannotOpen(grid));
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(UnreadableFiles, FileThatVanishesBehindTheLoadIsToldWithEachFetch) {
    const std::string grid = writeGrid();
    expectLoads({.gridFiles = {grid}});
    fs::remove(grid);
    EXPECT_FALSE(fetchX().ok);
    EXPECT_FALSE(fetchX().ok);
    EXPECT_EQ(messages(), (Texts{cannotOpen(grid), cannotOpen(grid)}));
}

// Another program writes the file anew while its old contents are on the screen.
TEST_F(UnreadableFiles, FileThatShrinksBehindTheLoadGivesNoValues) {
    const std::string grid = writeGrid();
    expectLoads({.gridFiles = {grid}});
    fs::resize_file(grid, 60);
    EXPECT_FALSE(fetchX().ok);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(UnreadableFiles, FileThatComesBackBehindTheLoadGivesItsValues) {
    const std::string grid = writeGrid();
    expectLoads({.gridFiles = {grid}});
    fs::remove(grid);
    EXPECT_FALSE(fetchX().ok);
    writeGrid();
    EXPECT_EQ(values(1, 1)[29], 1 + 100 * 2 + 10000 * 4);
}

TEST_F(UnreadableFiles, FolderInTheFilesPlaceGivesNoValues) {
    const std::string grid = writeGrid();
    expectLoads({.gridFiles = {grid}});
    fs::remove(grid);
    fs::create_directory(grid);
    EXPECT_FALSE(fetchX().ok);
    EXPECT_EQ(messages(), Texts{cannotOpen(grid)});
}

TEST_F(UnreadableFiles, SecondSolutionFileThatIsMissingEndsTheLoad) {
    const std::string missing = directory().file("b.q");
    Load_s load = solutionLoad(bytesOf(smallSolution()));
    load.solutionFiles.push_back(missing);
    EXPECT_EQ(attempt(load), Fate_e::Refused);
    ASSERT_FALSE(messages().empty());
    EXPECT_EQ(messages().front(), cannotOpen(missing));
}

// Names are a help, and the load goes on without them.
TEST_F(UnreadableFiles, NameFileThatIsAFolderIsToldAndLeavesTheUsualNames) {
    const std::string folder = directory().file("names.nam");
    fs::create_directory(folder);
    Load_s load = solutionLoad(bytesOf(smallSolution()));
    load.nameFile = folder;
    EXPECT_TRUE(LoadedAddOnTest::load(load).ok);
    EXPECT_EQ(messages(), Texts{"The Name File " + folder + " could not be opened."});
    EXPECT_EQ(variableNames().size(), 8U);
}

TEST_F(UnreadableFiles, NamesInUtf8AndWithLineEndsAreNamesLikeOthers) {
    for (const std::string name :
         {"Flügel Größe.x", "流れ.x", "two\nlines.x", "tab\tand \"quotes\".x"}) {
        host().frame().reset();
        expectLoads({.gridFiles = {writeGrid(name)}});
        EXPECT_EQ(values(1, 2)[0], 0.25) << name;
    }
}

// No UTF-8 at all: bytes are a name too.
TEST_F(UnreadableFiles, NameThatIsNoUtf8IsPassedOnAsItStands) {
    expectLoads({.gridFiles = {writeGrid("caf\xe9.x")}});
    EXPECT_EQ(values(1, 3)[0], 0.5);
}

} // namespace
} // namespace quorvia::testsupport
