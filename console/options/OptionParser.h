// The command line of one command: holds what was declared of it, reads the user's words into that,
// and tells what there is.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "console/options/OptionRow.h"
#include "console/options/OptionTable.h"

namespace console {

class OptionParser {
public:
    OptionParser();
    ~OptionParser();
    OptionParser(const OptionParser&) = delete;
    OptionParser& operator=(const OptionParser&) = delete;

    /// Where options without a heading of their own are declared.
    OptionTable table();

    /// What was declared and is not hidden, in that order: files, and options.
    std::vector<OptionRow_s> positionals() const;
    std::vector<OptionRow_s> options() const;

    /// Puts the words behind a command's name where they belong. Gives what is wrong with them, in
    /// one line; empty if nothing is. What comes ahead of the fault may have been put in its place.
    [[nodiscard]] std::string parse(std::vector<std::string> words);
    /// Of the words read, those that nothing was declared for. They are no fault here.
    std::vector<std::string> unknownWords() const;
    /// The texts that the user gave an option.
    std::vector<std::string> textsOf(const std::string& option) const;

private:
    std::unique_ptr<CLI::App> parser_;
};

} // namespace console
