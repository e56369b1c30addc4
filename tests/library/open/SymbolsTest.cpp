// What the shared library gives to programs: read from the file.
#include <array>
#include <cstdio>
#include <memory>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace plot3dtest {
namespace {

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
    const std::regex line("[0-9a-f ]* ([A-Za-z]) (.*)\n");
    for (std::sregex_iterator match(output.begin(), output.end(), line), end; match != end; ++match)
        symbols.push_back({(*match)[1].str()[0], (*match)[2]});
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
    const std::regex ofTheNamespace("((typeinfo|typeinfo name|vtable) for )?plot3d::.*");
    for (const std::string& name : exported())
        EXPECT_TRUE(std::regex_match(name, ofTheNamespace)) << name;
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
