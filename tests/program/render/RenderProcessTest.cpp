// plot3d render as a process: displays, pictures, Ctrl-C.
#ifdef PLOT3D_HAS_SCENE

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "scene/SceneFixture.h"

namespace plot3d::program {
namespace {

namespace fs = std::filesystem;

struct Said_s {
    int code = -1;
    std::string text; // on both streams
};

std::string contentOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// Processes whose parent is `parent`.
std::vector<pid_t> childrenOf(pid_t parent) {
    std::ifstream list("/proc/" + std::to_string(parent) + "/task/" + std::to_string(parent) +
                       "/children");
    return {std::istream_iterator<pid_t>(list), std::istream_iterator<pid_t>()};
}

class RenderProcessTest : public plot3dtest::SceneTest {
protected:
    pid_t start(std::vector<std::string> words, const char* path, const char* display) const {
        words.insert(words.begin(), program_);
        std::vector<char*> pointers;
        for (std::string& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        const pid_t child = fork();
        if (child != 0)
            return child;
        const int out = open(folder_.file("said").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(out, STDOUT_FILENO);
        dup2(out, STDERR_FILENO);
        unsetenv("DISPLAY");
        if (display != nullptr)
            setenv("DISPLAY", display, 1);
        if (path != nullptr)
            setenv("PATH", path, 1);
        execv(program_.c_str(), pointers.data());
        _exit(127);
    }
    Said_s ended(pid_t child) const {
        int status = 0;
        waitpid(child, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status),
                contentOf(folder_.file("said"))};
    }
    Said_s run(const std::vector<std::string>& words, const char* path = nullptr,
               const char* display = nullptr) const {
        return ended(start(words, path, display));
    }
    std::vector<std::string> render(const std::vector<std::string>& files,
                                    const std::vector<std::string>& more) const {
        std::vector<std::string> words = {"render"};
        words.insert(words.end(), files.begin(), files.end());
        words.insert(words.end(), more.begin(), more.end());
        return words;
    }
    /// As it is without the package for pictures: from now on it runs beside all libraries but
    /// that.
    void leaveOutTheScene() {
        const fs::path built = fs::path(PLOT3D_PROGRAM).parent_path().parent_path();
        fs::create_directories(folder_.path() / "tree" / "bin");
        fs::create_directories(folder_.path() / "tree" / "lib");
        program_ = (folder_.path() / "tree" / "bin" / "plot3d").string();
        fs::copy_file(PLOT3D_PROGRAM, program_);
        for (const auto& entry : fs::directory_iterator(built / "lib"))
            if (entry.path().filename() != "libplot3dscene.so")
                fs::create_symlink(entry.path(),
                                   folder_.path() / "tree" / "lib" / entry.path().filename());
    }
    std::string program_ = PLOT3D_PROGRAM;
    std::string picture() const { return folder_.file("picture.png"); }
};

TEST_F(RenderProcessTest, DrawsWithoutADisplayAndWithoutOptions) {
    const Said_s said = run(render(sample({"cylinder"}), {"-o", picture()}));
    EXPECT_EQ(said.code, 0);
    EXPECT_EQ(said.text, picture() + "\n");
    EXPECT_EQ(contentOf(picture()).substr(1, 3), "PNG");
}

TEST_F(RenderProcessTest, SaysInOneLineWhatIsMissingWithoutXvfb) {
    const Said_s said = run(render(sample({"ball"}), {"-o", picture()}), "/nowhere");
    EXPECT_EQ(said.code, 1);
    EXPECT_EQ(said.text, "plot3d: error: no picture can be drawn: there is no display\n"
                         "try: install Xvfb (Debian: xvfb), which is then used by itself, or set "
                         "DISPLAY\n");
    EXPECT_FALSE(fs::exists(picture()));
}

TEST_F(RenderProcessTest, LooksBeforeItMakesAWindowOnADisplayThatIsNotThere) {
    const Said_s said = run(render(sample({"ball"}), {"-o", picture()}), "/nowhere", ":987");
    EXPECT_EQ(said.code, 1);
    EXPECT_EQ(said.text.rfind("plot3d: error: no picture can be drawn: the display :987 can't be "
                              "opened\n",
                              0),
              0U);
    EXPECT_EQ(run(render(sample({"ball"}), {"-o", picture()}), nullptr, ":987").code, 0);
}

TEST_F(RenderProcessTest, SaysWhatToInstallWithoutTheLibraryForPictures) {
    leaveOutTheScene();
    const Said_s said = run(render(sample({"ball"}), {"-o", picture()}));
    EXPECT_EQ(said.code, 1);
    EXPECT_EQ(said.text, "plot3d: error: pictures are not part of this installation: there is no "
                         "libplot3dscene.so\n"
                         "try: install the package plot3d-render, or build with VTK "
                         "(PLOT3D_BUILD_SCENE)\n");
    EXPECT_EQ(run({"info", sample({"ball"})[1]}).code, 0);
}

TEST_F(RenderProcessTest, EndsItsDisplayAndLeavesNothingBehindAfterCtrlC) {
    const pid_t child = start(
        render(sample({"cylinder", "--size", "201x101x51"}), {"-o", picture()}), nullptr, nullptr);
    std::vector<pid_t> displays;
    while (displays.empty() && kill(child, 0) == 0)
        displays = childrenOf(child);
    ASSERT_EQ(displays.size(), 1U);
    kill(child, SIGINT);
    const Said_s said = ended(child);
    EXPECT_EQ(said.code, 130);
    EXPECT_NE(said.text.find("plot3d: stopped"), std::string::npos);
    EXPECT_FALSE(fs::exists(picture()));
    // It is told when its parent ends; that it goes, whenever it does, is what counts.
    while (kill(displays[0], 0) == 0)
        std::this_thread::yield();
}

TEST_F(RenderProcessTest, DrawsAllTimesWithOneRangeAndMakesAFilmByFfmpeg) {
    // In the place of ffmpeg: takes down what it was asked for as the film.
    const std::string ffmpeg = folder_.write(
        "ffmpeg", "#!/bin/sh\nfor last; do :; done\necho \"$@\" > \"${last#file:}\"\n");
    chmod(ffmpeg.c_str(), 0700);
    const std::string path = folder_.path().string() + ":" + std::getenv("PATH");
    const Said_s said = run(render(sample({"vortex", "--steps", "3"}),
                                   {"-o", picture(), "--all-times", "--size", "160x120"}),
                            path.c_str());
    EXPECT_EQ(said.code, 0) << said.text;
    for (const char* name : {"picture_0001.png", "picture_0002.png", "picture_0003.png"})
        EXPECT_TRUE(fs::exists(folder_.file(name))) << name;
    EXPECT_NE(contentOf(folder_.file("picture.mp4")).find("picture_%04d.png"), std::string::npos);
}

TEST_F(RenderProcessTest, DrawsAllTimesWithoutAFilmWhereThereIsNoFfmpeg) {
    // A PATH with Xvfb and what it needs to start, but no ffmpeg.
    const std::string bin = folder_.file("bin");
    fs::create_directory(bin);
    for (const char* name : {"Xvfb", "xkbcomp", "sh"})
        if (fs::exists("/usr/bin/" + std::string(name)))
            fs::create_symlink("/usr/bin/" + std::string(name), bin + "/" + name);
    const Said_s said = run(render(sample({"vortex", "--steps", "2"}),
                                   {"-o", picture(), "--all-times", "--size", "160x120"}),
                            bin.c_str());
    EXPECT_EQ(said.code, 0);
    EXPECT_NE(said.text.find("plot3d: no animation: ffmpeg is not installed\n"), std::string::npos);
    EXPECT_FALSE(fs::exists(folder_.file("picture.mp4")));
}

} // namespace
} // namespace plot3d::program

#endif
