#include "console/options/OptionParser.h"

#include <algorithm>

#include <CLI/CLI.hpp>

namespace console {
namespace {

/// Words between bars, "always|never"; nothing if the value's name is anything else.
std::vector<std::string> choicesIn(const std::string& valueName) {
    std::vector<std::string> choices;
    if (valueName.find('|') == std::string::npos)
        return choices;
    for (std::size_t start = 0; start <= valueName.size();) {
        const std::size_t end = std::min(valueName.find('|', start), valueName.size());
        choices.push_back(valueName.substr(start, end - start));
        start = end + 1;
    }
    return choices;
}

std::vector<std::string> namesOf(const CLI::Option& option) {
    std::vector<std::string> names;
    if (option.get_positional())
        return {option.get_name(true)};
    for (const std::string& name : option.get_snames())
        names.push_back("-" + name);
    for (const std::string& name : option.get_lnames())
        names.push_back("--" + name);
    return names;
}

OptionRow_s rowOf(const CLI::Option& option) {
    OptionRow_s row;
    row.names = namesOf(option);
    row.value = option.get_type_size() == 0 ? std::string() : option.get_type_name();
    row.text = option.get_description();
    std::replace(row.text.begin(), row.text.end(), '\n', ' ');
    row.group = option.get_group();
    row.choices = choicesIn(row.value);
    row.isRepeatable = option.get_expected_max() > 1;
    row.isRequired = option.get_required();
    return row;
}

enum class Kind_e : unsigned char { Positional, Option };

std::vector<OptionRow_s> rowsOf(const CLI::App& parser, Kind_e kind) {
    std::vector<OptionRow_s> rows;
    for (const CLI::Option* option : parser.get_options()) {
        const Kind_e itsKind = option->get_positional() ? Kind_e::Positional : Kind_e::Option;
        if (itsKind == kind && !option->get_group().empty()) // else it is hidden
            rows.push_back(rowOf(*option));
    }
    return rows;
}

std::string lineOf(const CLI::ParseError& error) {
    std::string text = error.what();
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

/// In words of ours, where the parser's text begins with the name of an option.
std::string mismatchOf(const CLI::App& parser, const std::string& text) {
    const std::string name = text.substr(0, text.find(':'));
    const CLI::Option* const option = parser.get_option_no_throw(name);
    if (option == nullptr)
        return text;
    return option->count() > 1 ? name + " is given more than once"
                               : name + " needs " + option->get_type_name();
}

} // namespace

OptionParser::OptionParser() : parser_(std::make_unique<CLI::App>()) {
    parser_->set_help_flag();
    parser_->allow_extras();
}

OptionParser::~OptionParser() = default;

OptionTable OptionParser::table() {
    return {*parser_, "Options"};
}

std::vector<OptionRow_s> OptionParser::positionals() const {
    return rowsOf(*parser_, Kind_e::Positional);
}

std::vector<OptionRow_s> OptionParser::options() const {
    return rowsOf(*parser_, Kind_e::Option);
}

std::string OptionParser::parse(std::vector<std::string> words) {
    std::reverse(words.begin(), words.end()); // the parser takes them from the back
    try {
        parser_->parse(words);
        return {};
    } catch (const CLI::ArgumentMismatch& error) {
        return mismatchOf(*parser_, lineOf(error));
    } catch (const CLI::ParseError& error) {
        return lineOf(error);
    }
}

std::vector<std::string> OptionParser::unknownWords() const {
    return parser_->remaining();
}

std::vector<std::string> OptionParser::textsOf(const std::string& option) const {
    return parser_->get_option(option)->results();
}

} // namespace console
