#include "console/options/OptionTable.h"

#include <utility>

#include <CLI/CLI.hpp>

namespace console {
namespace {

template <typename Value>
DeclaredOption addValue(CLI::App& parser, const std::string& heading, const std::string& name,
                        Value& place, const std::string& value, const std::string& help) {
    return DeclaredOption(*parser.add_option(name, place, help)->type_name(value)->group(heading));
}

/// The parser's own lists would take brackets and braces in file names for a syntax of theirs.
CLI::Option* addList(CLI::App& parser, const std::string& name, std::vector<std::string>& list,
                     const std::string& help) {
    const auto take = [&list](const CLI::results_t& texts) {
        list = texts;
        return true;
    };
    constexpr int noLimit = -1;
    return parser.add_option(name, take, help)->type_size(1)->expected(1, noLimit);
}

} // namespace

DeclaredOption DeclaredOption::required() const {
    option_->required();
    return *this;
}

DeclaredOption DeclaredOption::check(TextCheck check) const {
    option_->check(std::move(check));
    return *this;
}

DeclaredOption DeclaredOption::excludes(std::initializer_list<const char*> names) const {
    for (const char* name : names)
        option_->excludes(name);
    return *this;
}

DeclaredOption DeclaredOption::takesSeveral() const {
    option_->type_name(option_->get_type_name() + "...")->allow_extra_args();
    return *this;
}

DeclaredOption DeclaredOption::hidden() const {
    option_->group("");
    return *this;
}

DeclaredOption OptionTable::flag(const std::string& name, bool& place,
                                 const std::string& help) const {
    return DeclaredOption(*parser_->add_flag(name, place, help)->group(heading_));
}

DeclaredOption OptionTable::text(const std::string& name, std::string& place,
                                 const std::string& value, const std::string& help) const {
    return addValue(*parser_, heading_, name, place, value, help);
}

DeclaredOption OptionTable::number(const std::string& name, int& place, const std::string& value,
                                   const std::string& help) const {
    return addValue(*parser_, heading_, name, place, value, help);
}

DeclaredOption OptionTable::number(const std::string& name, double& place, const std::string& value,
                                   const std::string& help) const {
    return addValue(*parser_, heading_, name, place, value, help);
}

DeclaredOption OptionTable::list(const std::string& name, std::vector<std::string>& place,
                                 const std::string& value, const std::string& help) const {
    constexpr bool severalAtOnce = false;
    CLI::Option& option = *addList(*parser_, name, place, help);
    option.type_name(value)->allow_extra_args(severalAtOnce)->group(heading_);
    return DeclaredOption(option);
}

DeclaredOption OptionTable::files(std::vector<std::string>& place, const std::string& help,
                                  const std::string& shown) const {
    CLI::Option& option = *addList(*parser_, "FILE", place, help);
    option.type_name(shown)->allow_extra_args()->group(heading_);
    return DeclaredOption(option);
}

DeclaredOption OptionTable::output(std::string& output, bool& overwrites,
                                   const std::string& help) const {
    const DeclaredOption option = text("-o,--output", output, "FILE", help);
    flag("--overwrite", overwrites, "Replace a result that is there already");
    return option;
}

DeclaredOption OptionTable::declared(const std::string& name) const {
    return DeclaredOption(*parser_->get_option(name));
}

} // namespace console
