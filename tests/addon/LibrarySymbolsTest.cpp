// What the built library gives to and takes from the program that loads it: read from the file.
#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "support/TextPattern.h"

namespace {

using quorvia::testsupport::Match;
using quorvia::testsupport::TextPattern;

struct Symbol_s {
    char type; // as nm gives it; U and w are undefined
    std::string name;
};

/// The dynamic symbols of the library, names of C++ spelled out, versions kept.
std::vector<Symbol_s> dynamicSymbols() {
    const std::string command = "nm -DC --with-symbol-versions '" PLOT3DLOADER_FILE "'";
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 4096> chunk;
    while (pipe && fgets(chunk.data(), static_cast<int>(chunk.size()), pipe.get()) != nullptr)
        output += chunk.data();

    std::vector<Symbol_s> symbols;
    const TextPattern lineForm("^[0-9a-f ]* ([A-Za-z]) (.*)$");
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
        if (const Match match = lineForm.matchOfWhole(line); !match.empty())
            symbols.push_back({match[1][0], match[2]});
    return symbols;
}

bool isUndefined(const Symbol_s& symbol) {
    return symbol.type == 'U' || symbol.type == 'w' || symbol.type == 'v';
}

/// The operations that the contract with the host declares.
std::set<std::string> hostOperations() {
    const TextPattern declaration("\\b(Quor(?:Util|GUI)[A-Z]\\w*)\\(");
    std::set<std::string> names;
    for (const char* name : {"/QuorUtil.h", "/QuorGUI.h"}) {
        std::ifstream header(std::string(SDK_HEADERS) + name);
        const std::string text((std::istreambuf_iterator<char>(header)), {});
        for (const Match& match : declaration.allMatches(text))
            names.insert(match[1]);
    }
    return names;
}

bool isOfTheRuntime(const std::string& name) {
    static const TextPattern versioned("@(GLIBC|GLIBCXX|CXXABI|GCC)_");
    static const TextPattern ofTheLinker("^(_ITM_\\w+TMCloneTable|__gmon_start__)$");
    return versioned.fitsPart(name) || ofTheLinker.fitsPart(name);
}

bool isOfTheUtilityLibrary(const std::string& name) {
    static const TextPattern classes(
        "^(typeinfo for |typeinfo name for |vtable for )?quorvia::(TaskProgress|"
        "SolutionTimeNotificationDeferrer|StringList|InterruptedException)(::|$)");
    static const TextPattern functions("^quorvia::(createTaskProgressBar|utf8ToWideString)\\b");
    return classes.fitsPart(name) || functions.fitsPart(name);
}

/// Libraries built for a sanitizer call it.
bool isOfASanitizer(const std::string& name) {
    return name.rfind("__asan_", 0) == 0 || name.rfind("__ubsan_", 0) == 0;
}

TEST(LibrarySymbols, ExportTheEntryAlone) {
    std::vector<std::string> exported;
    for (const Symbol_s& symbol : dynamicSymbols())
        if (!isUndefined(symbol))
            exported.push_back(symbol.name);
    EXPECT_EQ(exported, std::vector<std::string>{"InitQuorAddOn113"});
}

TEST(LibrarySymbols, NeedTheHostAndTheRuntimeAlone) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "a sanitizer takes over symbols of the C and C++ runtime, without a version";
#endif
    const std::set<std::string> operations = hostOperations();
    ASSERT_GT(operations.size(), 50u);
    int needed = 0;
    for (const Symbol_s& symbol : dynamicSymbols()) {
        if (!isUndefined(symbol))
            continue;
        ++needed;
        EXPECT_TRUE(operations.count(symbol.name) > 0 || isOfTheUtilityLibrary(symbol.name) ||
                    isOfTheRuntime(symbol.name) || isOfASanitizer(symbol.name))
            << symbol.name;
    }
    EXPECT_GT(needed, 0);
}

TEST(LibrarySymbols, HaveNoneThatWouldKeepTheLibraryFromUnloading) {
    for (const Symbol_s& symbol : dynamicSymbols())
        EXPECT_NE(symbol.type, 'u') << symbol.name;
}

TEST(LibrarySymbols, LetTheLibraryBeLoadedUnloadedAndLoadedAgain) {
    for (int round = 1; round <= 2; ++round) {
        void* library = dlopen(PLOT3DLOADER_FILE, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(library, nullptr) << dlerror();
        EXPECT_NE(dlsym(library, "InitQuorAddOn113"), nullptr);
        EXPECT_EQ(dlclose(library), 0);
        EXPECT_EQ(dlopen(PLOT3DLOADER_FILE, RTLD_NOW | RTLD_NOLOAD), nullptr);
    }
}

} // namespace
