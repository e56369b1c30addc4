// What a look at a file found, in lines for a person: what plot3d info prints, and what a window
// lists.
#pragma once

#include <string>
#include <vector>

#include <plot3d/FileInfo.h>

namespace plot3d::analysis {

enum class Lists_e : unsigned char { Shortened, Whole };

struct Finding_s {
    enum class Kind_e : unsigned char { Fact, Warning, Problem };
    Kind_e kind = Kind_e::Fact;
    std::string label; // empty: goes on with the one before
    std::string text;
    std::vector<std::string> next; // arguments of a command to type; mostly none
};

/// The kind comes first. Shortened lists say that --all shows the rest.
std::vector<Finding_s> findingsOf(const FileInfo& info, Lists_e lists);

} // namespace plot3d::analysis
