// Facts of an error, where there are few of them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <plot3d/Error.h>
#include <plot3d/FileInfo.h>

namespace plot3dlib {

inline plot3d::ErrorFacts ofFile(std::string file, std::string next = "") {
    plot3d::ErrorFacts facts;
    facts.file = std::move(file);
    facts.next = std::move(next);
    return facts;
}

inline plot3d::ErrorFacts expecting(std::string expected, std::string found = "") {
    plot3d::ErrorFacts facts;
    facts.expected = std::move(expected);
    facts.found = std::move(found);
    return facts;
}

/// A command to type: its words, quoted for a shell where they must be.
std::string commandOf(const std::vector<std::string>& words);

/// Of what a look into the file has found wrong. `grids` are the grid files that go with it: a
/// single one is named in the command to type.
plot3d::ErrorFacts factsOf(const plot3d::FileInfo& info, const std::vector<std::string>& grids);

} // namespace plot3dlib
