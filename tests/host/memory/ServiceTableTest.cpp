// The table of operations (checks/Operations.h) is the truth about the host's services. It is held
// against what the SDK's headers declare, what the host's library defines, and what has a scenario.
#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <set>

#include "checks/Operations.h"
#include "memory/ServiceScenarios.h"
#include "support/TextPattern.h"

namespace quorvia::host {
namespace {

using testsupport::TextPattern;

using Names = std::set<std::string>;

/// The operations that a header declares, members with their class. Deleted ones are none.
Names declaredIn(const std::string& header) {
    const TextPattern classHead("^class QUORVIA_HOST_API (\\w+).*");
    const TextPattern operation("^( *)(?:[A-Za-z].*[ *&>])?(~?\\w+)\\(.*");
    const TextPattern notDeclared(".*(= delete;|^ *//|^using|^ *return).*");
    Names names;
    std::string className;
    std::ifstream file(SDK_DIRECTORY "/" + header);
    for (std::string line; std::getline(file, line);) {
        if (line.rfind("};", 0) == 0)
            className.clear();
        if (const auto head = classHead.matchOfWhole(line); !head.empty())
            className = head[1];
        else if (const auto match = operation.matchOfWhole(line);
                 !match.empty() && !notDeclared.fitsWhole(line) &&
                 match[1].length() == (className.empty() ? 0 : 4))
            names.insert(className.empty() ? match[2] : className + "::" + match[2]);
    }
    return names;
}

Names declaredServices() {
    Names all;
    for (const char* header : {"QuorUtil.h", "QuorGUI.h", "QuorUtilityLibrary.h"})
        all.merge(declaredIn(header));
    return all;
}

/// Declared, and yet no operation: they call other operations, or do nothing at the host.
const Names noOperations = {"StringList::StringList",
                            "StringList::~StringList",
                            "StringList::append",
                            "StringList::getRef",
                            "InterruptedException::~InterruptedException",
                            "InterruptedException::what"};

Names operationNames(const char* prefix) {
    Names names;
    for (std::size_t row = 0; row < operationCount; ++row)
        if (const std::string name(OperationId::at(row).name()); name.rfind(prefix, 0) == 0)
            names.insert(name);
    return names;
}

/// The functions that the host's library defines for guests under C names that begin so.
Names definedInLibrary(const char* prefix) {
    Names names;
    const std::string command =
        std::string(NM_PROGRAM) + " -D --defined-only -j '" HOST_LIBRARY "'";
    const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(command.c_str(), "r"), pclose);
    std::array<char, 4096> line{};
    while (output && std::fgets(line.data(), line.size(), output.get()) != nullptr) {
        const std::string symbol(line.data());
        if (symbol.rfind(prefix, 0) == 0)
            names.insert(symbol.substr(0, symbol.find_first_of("\n@")));
    }
    return names;
}

TEST(ServiceTable, HasARowForEachDeclaredService) {
    Names expected;
    for (const std::string& service : declaredServices()) {
        const std::optional<std::size_t> row = rowOf(service);
        EXPECT_EQ(row.has_value(), noOperations.count(service) == 0) << service;
        if (row)
            expected.insert(std::string(OperationId::at(*row).name()));
    }
    EXPECT_EQ(operationNames(""), expected);
}

TEST(ServiceTable, HasEachNameOnce) {
    EXPECT_EQ(operationNames("").size(), operationCount);
}

// What has no C name is defined because its scenario calls it and the test is linked.
TEST(ServiceTable, IsWhatTheLibraryDefines) {
    for (const char* prefix : {"QuorUtil", "QuorGUI"})
        EXPECT_EQ(definedInLibrary(prefix), operationNames(prefix));
}

TEST(ServiceTable, HasAScenarioForEachDeclaredService) {
    Names missing = declaredServices();
    for (const ServiceScenario_s& scenario : allScenarios())
        missing.erase(scenario.service);
    EXPECT_EQ(missing, Names());
}

TEST(ServiceTable, IsHeldAgainstAllThatTheHeadersDeclare) {
    EXPECT_EQ(declaredIn("QuorUtil.h").count("QuorUtilDataSetAddZoneX"), 1U);
    EXPECT_EQ(declaredIn("QuorGUI.h").count("QuorGUIDialogLaunch"), 1U);
    EXPECT_EQ(declaredIn("QuorUtilityLibrary.h").count("TaskProgress::createSubTask"), 1U);
    EXPECT_EQ(declaredIn("QuorUtilityLibrary.h").count("StringList::~StringList"), 1U);
    EXPECT_EQ(declaredIn("QuorUtilityLibrary.h").count("createTaskProgressBar"), 1U);
}

} // namespace
} // namespace quorvia::host
