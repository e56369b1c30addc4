// The program quorhost under faults: it ends as without them, with the same output, or with an exit
// code and a line on standard error that say so. It is never ended by an abort.
#include <algorithm>
#include <array>
#include <ostream>
#include <streambuf>

#include <gtest/gtest.h>

#include "acceptance/macros/MacroSession.h"
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

/// The line is on the standard error of the child: the program had no way back.
const std::string endedWithoutMemory = "run of the program: the process exited with code 1";

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

std::string firstDifference(const std::string& found, const std::string& expected) {
    const auto shortest = static_cast<std::ptrdiff_t>(std::min(found.size(), expected.size()));
    const auto differs = std::mismatch(found.begin(), found.begin() + shortest, expected.begin());
    const auto place = static_cast<std::size_t>(differs.first - found.begin());
    const std::size_t from = place - std::min<std::size_t>(place, 200);
    return found.substr(from, 400) + "\nin place of\n" + expected.substr(from, 400);
}

void dropMembers(Json& value) {
    for (const char* lost : {"progress", "instructions", "auxData"})
        if (value.isObject())
            value.erase(lost);
    for (Json& member : value)
        if (member.isObject() || member.isArray())
            dropMembers(member);
}

/// A host without memory may show fewer texts, and keep fewer auxiliary data and instructions, all
/// of which the add-on goes on without. Zones and values it may not lose.
std::string withoutWhatAHostMayLose(const std::string& out) {
    if (!Json::isJson(out))
        return out.substr(0, out.find("\nAuxiliary data"));
    Json outcome = Json::parse(out);
    dropMembers(outcome);
    return outcome.dump();
}

struct CommandLine_s {
    const char* name;
    Texts (*arguments)();
};

Texts loadOfFiles() {
    const SmallFiles files = sessions().filesOf("program");
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
    const Json select = command("select", command("files", files));
    // The second load is not by what the host keeps of the first one, which may be less without
    // memory.
    const Json commands = Json::array({select, command("describe", "first"), select,
                                       command("fetch", {{"zone", 1}, {"variable", 3}})});
    const std::string file = sessions().write("session.json", command("commands", commands).dump());
    return {"macro", file, "--json", "-", "--addon", PLOT3D_ADDON_PATH};
}

class ProgramFaults : public ::testing::TestWithParam<std::tuple<CommandLine_s, Fault_e>> {
protected:
    static Fault_e fault() { return std::get<1>(GetParam()); }
    static std::string name() {
        return std::string("Program") + std::get<0>(GetParam()).name + "/" + nameOf(fault());
    }

    static std::string toCompare(const std::string& out) {
        const bool isOfTheHostsMemory =
            fault() == Fault_e::HostMemoryOnce || fault() == Fault_e::MemoryFromOn;
        return isOfTheHostsMemory ? withoutWhatAHostMayLose(out) : out;
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
        // Of a field, or of one of a macro's loads.
        const bool tells = run.out.find("could not be read") != std::string::npos ||
                           run.out.find("\"ok\": false") != std::string::npos;
        const std::string found = toCompare(run.out);
        const std::string expected = toCompare(reference.out);
        if (found != expected && run.err.empty() && !tells)
            return "exit code 0, but other output, first\n" + firstDifference(found, expected);
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
    expectWellAtEachPoint(name(), [&](std::int64_t n) {
        ChildResult_s played = play(reference, n);
        if (isOfMemory(fault()) && played.problem == endedWithoutMemory)
            played.problem.clear();
        return played;
    });
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
