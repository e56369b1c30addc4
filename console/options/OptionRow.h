// What there is to tell of one option, for help texts, the man page and completions.
#pragma once

#include <string>
#include <vector>

namespace console {

struct OptionRow_s {
    std::vector<std::string> names = {};   // "-o", "--output"; of a positional argument "FILE"
    std::string value = {};                // "FILE", "FILE..." of several; empty for a flag
    std::string text = {};                 // without line breaks
    std::string group = {};                // heading that it stands under
    std::vector<std::string> choices = {}; // the words that it can be; empty for anything
    bool isRepeatable = false;
    bool isRequired = false;

    bool takesFile() const { return value.starts_with("FILE") || value == "FOLDER"; }
};

} // namespace console
