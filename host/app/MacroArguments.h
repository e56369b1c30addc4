// What the command line of `quorhost macro` asks for.
#pragma once

#include <string>

namespace quorvia::host {

struct MacroArguments_s {
    std::string file;
    std::string jsonFile;  // "-" is standard output; empty: a readable account
    std::string addOnPath; // empty: the one that was built with the program
    bool answerYes = false;

    bool jsonToOutput() const { return jsonFile == "-"; }
};

} // namespace quorvia::host
