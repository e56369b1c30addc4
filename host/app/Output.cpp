#include "app/Output.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <ostream>

#include <fmt/core.h>

namespace quorvia::host {

bool writeJson(std::string_view json, const std::string& file, const Console_s& console) {
    if (file == "-") {
        console.out << json;
        return true;
    }
    errno = 0;
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out << json;
    out.close();
    if (out)
        return true;
    tellError(console.err, fmt::format("{}: the JSON can't be written: {}", file,
                                       errno != 0 ? std::strerror(errno) : "unknown failure"));
    return false;
}

bool finishOutput(const Console_s& console) {
    console.out.flush();
    if (!console.out)
        tellError(console.err, "standard output can't be written");
    return static_cast<bool>(console.out);
}

} // namespace quorvia::host
