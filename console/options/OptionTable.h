// Where a command declares its options and files: what they are called, where their values go, and
// what is told of them. The parser stands behind it and out of sight, since its header costs the
// compiler more than the rest of a command.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace console {

/// Why a text from the command line can't be taken; empty if it can.
using TextCheck = std::function<std::string(const std::string&)>;

/// What more there is to say of an option. The parser owns the option, and must outlive this.
class DeclaredOption {
public:
    explicit DeclaredOption(CLI::Option& option) : option_(&option) {}

    /// The command line is refused without it.
    DeclaredOption required() const;
    /// Each text is looked at before it becomes a value; the command line is refused with the
    /// reason.
    DeclaredOption check(TextCheck check) const;
    /// The command line is refused if one of `names`, which are declared already, comes with it.
    DeclaredOption excludes(std::initializer_list<const char*> names) const;
    /// Of a list: all words up to the next option are its values, not the first one alone.
    DeclaredOption takesSeveral() const;
    /// Nothing is told of it to users; it is understood all the same.
    DeclaredOption hidden() const;

private:
    CLI::Option* option_;
};

/// A heading of the help text, and the options that are declared below it.
///
/// `name` is "--size", or several of these, "-o,--output". `place` takes what the user gives, while
/// the command line is read, and else stays as it is; it is borrowed until then.
/// `value` is how the help calls it: words between bars, "always|never|auto", are the only ones
/// that it can be, and the shell offers them, as it offers names of files for FILE and FOLDER.
/// `help` is of plain sentences, broken into lines by whoever shows them.
class OptionTable {
public:
    OptionTable(CLI::App& parser, std::string heading)
        : parser_(&parser), heading_(std::move(heading)) {}

    /// The same command line under another heading.
    OptionTable under(const std::string& heading) const { return {*parser_, heading}; }

    DeclaredOption flag(const std::string& name, bool& place, const std::string& help) const;
    DeclaredOption text(const std::string& name, std::string& place, const std::string& value,
                        const std::string& help) const;
    DeclaredOption number(const std::string& name, int& place, const std::string& value,
                          const std::string& help) const;
    DeclaredOption number(const std::string& name, double& place, const std::string& value,
                          const std::string& help) const;
    /// An option that may come several times, each time with one value, kept as it stands.
    DeclaredOption list(const std::string& name, std::vector<std::string>& place,
                        const std::string& value, const std::string& help) const;
    /// The words that belong to no option, kept as they stand. `shown`: how they are called.
    DeclaredOption files(std::vector<std::string>& place, const std::string& help,
                         const std::string& shown = "FILE") const;
    /// -o, --output FILE, which is given back, and --overwrite.
    DeclaredOption output(std::string& output, bool& overwrites, const std::string& help) const;

    /// An option that was declared before, under whatever heading.
    DeclaredOption declared(const std::string& name) const;

private:
    CLI::App* parser_;
    std::string heading_;
};

} // namespace console
