// The commands to type next, typed: the file is good then.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "InspectFixture.h"

namespace plot3d {
namespace {

using writer::Encoding_e;
using writer::FileKind_e;

class NextCommand : public InspectTest {
protected:
    static int run(const Strings& command) {
        std::vector<char*> arguments;
        for (const std::string& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t quiet;
        posix_spawn_file_actions_init(&quiet);
        posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        pid_t child = 0;
        const int spawned =
            posix_spawnp(&child, arguments[0], &quiet, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&quiet);
        int status = -1;
        if (spawned != 0 || waitpid(child, &status, 0) != child)
            return -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    /// Runs what is proposed for a file of these bytes; gives what is told of the result.
    FileInfo cured(const std::string& name, const std::string& bytes,
                   const std::string& ending = "") {
        const FileInfo info = inspectBytes(name, bytes);
        const FileProblem* problem = info.problem ? &*info.problem : nullptr;
        if (problem == nullptr && !info.warnings.empty())
            problem = &info.warnings.front();
        if (problem == nullptr) {
            ADD_FAILURE() << "nothing is wrong";
            return info;
        }
        EXPECT_EQ(run(problem->next), 0) << nextOf(*problem, info);
        return inspect(info.file + ending, asOf(name));
    }

    static InspectOptions asOf(const std::string& name) {
        InspectOptions options;
        if (name.ends_with(".x"))
            options.as = FileKind::Grid;
        if (name.ends_with(".q"))
            options.as = FileKind::Solution;
        return options;
    }

    static void expectGood(const FileInfo& info) {
        EXPECT_TRUE(info.ok) << problemOf(info);
        EXPECT_EQ(info.warnings.size(), 0U) << warningOf(info);
        EXPECT_EQ(info.bytes.used, info.bytes.size);
    }

    static std::string text(FileKind_e kind, bool isMultiGrid) {
        return bytesOf(LayoutCase_s{kind, writer::Layout_e::ThreeDWhole, isMultiGrid, false},
                       formOf(Encoding_e::Text));
    }
    static std::string grids() { return text(FileKind_e::Grid, true); }
};

TEST_F(NextCommand, TakesLinesOutOfText) {
    expectGood(cured("wing.x", "\n \n" + grids()));
    expectGood(cured("wing.x", "wing of the year 2010\n" + grids()));
    expectGood(cured("wing.x", "# wing\n  # of 2010\n" + grids()));
}

TEST_F(NextCommand, PartsCountAndSizes) {
    std::string bytes = grids();
    bytes.replace(bytes.find('\n'), 1, " ");
    const FileInfo info = cured("wing.x", bytes);
    expectGood(info);
    EXPECT_EQ(info.grids.size(), 3U);
}

TEST_F(NextCommand, AddsTheCountOfVariables) {
    for (const bool isMultiGrid : {false, true}) {
        std::string bytes = text(FileKind_e::Function, isMultiGrid);
        for (auto at = bytes.find(" 2\n"); at != std::string::npos && at < 40;
             at = bytes.find(" 2\n", at))
            bytes.erase(at, 2);
        const FileInfo info = cured("wing.f", bytes);
        EXPECT_TRUE(info.ok) << problemOf(info);
        EXPECT_EQ(info.variables, 2);
    }
}

TEST_F(NextCommand, CutsWhatStandsBehindLongReals) {
    const writer::FileForm_s form =
        formOf(Encoding_e::Binary, writer::ByteOrder_e::Little, writer::Precision_e::Double);
    const std::string good = bytesOf(LayoutCase_s{FileKind_e::ClassicSolution}, form);
    expectGood(cured("wing.q", good + "1234567", ".cut"));
    expectGood(cured("wing.x", gridBytes(Encoding_e::Fortran) + "12345", ".cut"));
}

TEST_F(NextCommand, CopiesTheSecondGrid) {
    for (const Encoding_e encoding : {Encoding_e::Text, Encoding_e::Binary, Encoding_e::Fortran}) {
        const std::string one = gridBytes(encoding);
        expectGood(cured("wing.x", one + one, ".2"));
    }
}

TEST_F(NextCommand, SetsTheVersionOfABoundaryFile) {
    expectGood(cured("wing.x.fvbnd", "FVBND 1 3\nwall\nBOUNDARIES\n1 1 1 $ 1 1 1 $ F 0\n"));
}

TEST_F(NextCommand, DecompressesAFile) {
    const std::string plain = directory.write("wing.x", grids());
    ASSERT_EQ(run({"gzip", plain}), 0);
    const FileInfo info = inspect(plain + ".gz");
    EXPECT_EQ(problemOf(info), "The file is compressed by gzip.");
    ASSERT_EQ(run(info.problem->next), 0);
    expectGood(inspect(plain));
}

} // namespace
} // namespace plot3d
