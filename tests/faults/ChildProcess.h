// Runs a piece of a test in a child process, so that its crash is a result like any other.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace quorvia::testsupport {

/// Where the child writes what the parent shall know even if the child is killed.
struct ChildNotes_s {
    const char* progress = ""; // a text that parent and child have in common
    std::int64_t count = 0;
};

struct ChildResult_s {
    std::string problem; // what `work` gave, or how the child died; empty: all is well
    std::int64_t count = 0;
};

/// `work` gives what was wrong, or nothing. A child that uses more than a minute of the processor
/// is taken to hang and is killed.
ChildResult_s runInChild(const std::function<std::string(ChildNotes_s&)>& work);

} // namespace quorvia::testsupport
