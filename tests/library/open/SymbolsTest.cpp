// What the shared library gives to programs: read from the file.
#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TextPattern.h"

namespace plot3dtest {
namespace {

using quorvia::testsupport::Match;
using quorvia::testsupport::TextPattern;

struct Symbol_s {
    char type; // as nm gives it
    std::string name;
};

std::vector<Symbol_s> dynamicSymbols() {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen("nm -DC '" PLOT3D_FILE "'", "r"),
                                                     pclose);
    std::string output;
    std::array<char, 4096> chunk;
    while (pipe && fgets(chunk.data(), static_cast<int>(chunk.size()), pipe.get()) != nullptr)
        output += chunk.data();
    std::vector<Symbol_s> symbols;
    const TextPattern line("[0-9a-f ]* ([A-Za-z]) (.*)\n");
    for (const Match& match : line.allMatches(output))
        symbols.push_back({match[1][0], match[2]});
    return symbols;
}

std::vector<std::string> exported() {
    std::vector<std::string> names;
    for (const Symbol_s& symbol : dynamicSymbols())
        if (symbol.type != 'U' && symbol.type != 'w' && symbol.type != 'v')
            names.push_back(symbol.name);
    return names;
}

TEST(LibrarySymbols, ExportTheNamespaceAlone) {
    const TextPattern ofTheNamespace("((typeinfo|typeinfo name|vtable) for )?plot3d::.*");
    for (const std::string& name : exported())
        EXPECT_TRUE(ofTheNamespace.fitsWhole(name)) << name;
}

TEST(LibrarySymbols, HaveWhatTheHeadersDeclare) {
    std::string all;
    for (const std::string& name : exported())
        all += name + "\n";
    for (const char* name :
         {"plot3d::DataSet::open(", "plot3d::DataSet::of(", "plot3d::version()",
          "plot3d::registerAddOn()", "plot3d::FieldReader::read(", "typeinfo for plot3d::Error"})
        EXPECT_NE(all.find(name), std::string::npos) << name;
}

} // namespace
} // namespace plot3dtest
