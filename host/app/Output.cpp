#include "app/Output.h"

#include <ostream>

#include <fmt/core.h>

#include "console/WholeFile.h"

namespace quorvia::host {

bool writeJsonTo(const std::string& file, const Console_s& console,
                 const std::function<void(std::ostream&)>& write) {
    if (file == "-") {
        write(console.out);
        return true;
    }
    console::WholeFile whole(file);
    write(whole.stream());
    std::string reason;
    if (whole.replace(reason))
        return true;
    tellError(console.err, fmt::format("{}: the JSON can't be written: {}", file, reason));
    return false;
}

bool finishOutput(const Console_s& console) {
    console.out.flush();
    if (!console.out)
        tellError(console.err, "standard output can't be written");
    return static_cast<bool>(console.out);
}

} // namespace quorvia::host
