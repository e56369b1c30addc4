// Why texts on the command line can't be taken, as console::OptionTable asks for it: empty if they
// can.
#pragma once

#include <cstdint>
#include <string>

#include <plot3d/Error.h>

namespace plot3d::program {

std::string wholeNumberBetween(const std::string& text, std::int64_t least, std::int64_t most);
/// A finite real of 0 or more.
std::string notNegative(const std::string& text);
/// Of threads to work on.
std::string threadCount(const std::string& text);

/// The check of texts that `parse` understands: what the plot3d::Error says that it throws.
template <typename Parse>
auto parsedBy(Parse parse) {
    return [parse](const std::string& text) -> std::string {
        try {
            parse(text);
            return {};
        } catch (const Error& error) {
            return error.message();
        }
    };
}

} // namespace plot3d::program
