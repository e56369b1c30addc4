#include "manners/Options.h"

#include <CLI/CLI.hpp>

namespace plot3d::program {
namespace {

CLI::Option* addList(CLI::App& app, const std::string& name, std::vector<std::string>& list,
                     const std::string& description) {
    const auto take = [&list](const CLI::results_t& texts) {
        list = texts;
        return true;
    };
    constexpr int noLimit = -1;
    return app.add_option(name, take, description)->type_size(1)->expected(1, noLimit);
}

} // namespace

CLI::Option* addFiles(CLI::App& app, std::vector<std::string>& files,
                      const std::string& description) {
    return addList(app, "FILE", files, description)->type_name("FILE")->allow_extra_args();
}

CLI::Option* addRepeatable(CLI::App& app, const std::string& name, std::vector<std::string>& list,
                           const std::string& valueName, const std::string& description) {
    constexpr bool oneForEachMention = false;
    return addList(app, name, list, description)
        ->type_name(valueName)
        ->allow_extra_args(oneForEachMention);
}

void addOutput(CLI::App& app, std::string& output, bool& overwrites,
               const std::string& description) {
    app.add_option("-o,--output", output, description)->type_name("FILE")->required();
    app.add_flag("--overwrite", overwrites, "Replace a result that is there already");
}

} // namespace plot3d::program
