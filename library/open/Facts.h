// Facts of an error, where there are few of them.
#pragma once

#include <string>
#include <utility>

#include <plot3d/Error.h>

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

} // namespace plot3dlib
