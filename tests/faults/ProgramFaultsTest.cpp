// The program quorhost under faults: it ends as without them, with the same output, or with an exit
// code and a line on standard error that say so. It is never ended by an abort.
#include <array>
#include <limits>
#include <ostream>
#include <streambuf>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "app/Program.h"
#include "faults/ChildProcess.h"
#include "faults/Faults.h"
#include "faults/SampledPoints.h"
#include "faults/Session.h"

namespace quorvia::testsupport {
namespace {

/// Takes what is written without any allocation, as a stream to a terminal does.
class FixedBuffer : public std::streambuf {
public:
    FixedBuffer() { clear(); }
    void clear() { setp(bytes_.data(), bytes_.data() + bytes_.size()); }
    std::string text() const { return {pbase(), pptr()}; }

private:
    std::array<char, 256 * 1024> bytes_;
};

struct ProgramRun_s {
    int exitCode = -1;
    std::string out;
    std::string err;
};

ProgramRun_s runQuorhost(const Texts& arguments) {
    static FixedBuffer outBuffer;
    static FixedBuffer errBuffer;
    outBuffer.clear();
    errBuffer.clear();
    std::ostream out(&outBuffer);
    std::ostream err(&errBuffer);
    constexpr int noTerminal = 0;
    const int exitCode = host::run(arguments, {out, err, noTerminal});
    const FaultPause pause;
    return {exitCode, outBuffer.text(), errBuffer.text()};
}

struct CommandLine_s {
    const char* name;
    Texts (*arguments)();
};

Texts loadOfFiles() {
    const SessionFiles files = sessions().filesOf("program");
    return {"load",    files.grid("a.x"), files.solution("1.q", 1), files.solution("2.q", 2),
            "--addon", PLOT3D_ADDON_PATH};
}

Texts loadAsJson() {
    Texts arguments = loadOfFiles();
    arguments.insert(arguments.end(), {"--json", "-"});
    return arguments;
}

/// Two loads, a fetch, and a description of each.
Texts macro() {
    const Texts load = loadOfFiles();
    const Texts files(load.begin() + 1, load.begin() + 4);
    nlohmann::json commands = nlohmann::json::array();
    commands.push_back({{"select", {{"files", files}}}});
    commands.push_back({{"describe", "first"}});
    commands.push_back({{"replay", true}});
    commands.push_back({{"fetch", {{"zone", 1}, {"variable", 3}}}});
    const std::string file =
        sessions().write("session.json", nlohmann::json{{"commands", commands}}.dump());
    return {"macro", file, "--json", "-", "--addon", PLOT3D_ADDON_PATH};
}

class ProgramFaults : public ::testing::TestWithParam<std::tuple<CommandLine_s, Fault_e>> {
protected:
    static Fault_e fault() { return std::get<1>(GetParam()); }
    static std::string name() {
        return std::string("Program") + std::get<0>(GetParam()).name + "/" + nameOf(fault());
    }

    ChildResult_s play(const ProgramRun_s& reference, std::int64_t n) const {
        return runInChild([&](ChildNotes_s& notes) {
            notes.progress = "run of the program";
            armFault(fault(), n, ProgramMemory_e::IsTheHosts);
            const ProgramRun_s run = runQuorhost(arguments_);
            disarmFault();
            notes.count = faultPoints();
            return problemOf(run, reference);
        });
    }
    static std::string problemOf(const ProgramRun_s& run, const ProgramRun_s& reference) {
        if (run.exitCode != 0)
            return run.err.empty() && run.out == reference.out ? "failed without a word" : "";
        const bool tells = run.out.find("could not be read") != std::string::npos; // of a field
        if (run.out != reference.out && run.err.empty() && !tells)
            return "exit code 0, but other output:\n" + run.out;
        return "";
    }

    const Texts arguments_ = std::get<0>(GetParam()).arguments();
};

TEST_P(ProgramFaults, AreToldWithAnExitCode) {
    if (!isWanted(name()))
        GTEST_SKIP() << "another point was asked for";
    watchFilesOf(sessions().folder());
    const ProgramRun_s reference = runQuorhost(arguments_);
    ASSERT_EQ(reference.exitCode, 0) << reference.err;
    const auto countPoints = [&] {
        const ChildResult_s counted = play(reference, std::numeric_limits<std::int64_t>::max());
        EXPECT_EQ(counted.problem, "") << "without a fault";
        EXPECT_GT(counted.count, 0) << "nothing of this kind happens";
        return counted.count;
    };
    for (const std::int64_t n : pointsToTry(countPoints, name())) {
        const ChildResult_s played = play(reference, n);
        if (!played.problem.empty())
            ADD_FAILURE() << played.problem << "\nrepeat with PLOT3D_FAULT=" << name() << "/" << n;
    }
}

constexpr CommandLine_s commandLines[] = {
    {"Load", loadOfFiles}, {"LoadAsJson", loadAsJson}, {"Macro", macro}};

INSTANTIATE_TEST_SUITE_P(
    CommandLines, ProgramFaults,
    ::testing::Combine(::testing::ValuesIn(commandLines),
                       ::testing::Values(Fault_e::HostMemoryOnce, Fault_e::MemoryFromOn,
                                         Fault_e::AddOnMemoryOnce, Fault_e::ReadFails,
                                         Fault_e::OpenFails)),
    [](const ::testing::TestParamInfo<ProgramFaults::ParamType>& row) {
        return std::get<0>(row.param).name + std::string("_") + nameOf(std::get<1>(row.param));
    });

} // namespace
} // namespace quorvia::testsupport
