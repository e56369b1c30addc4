#include "dataset/SetupProgress.h"

#include <array>
#include <cstdio>
#include <string>

#include "dataset/CurrentTask.h"
#include "dataset/ItemContext.h"

namespace quorvia::quorutildataio {

namespace {

// The words, three numbers of at most 11 characters, the tail of a path and the closing zero.
using ProgressText = std::array<char, 128>;

int tailLength(std::string_view tail) {
    return static_cast<int>(tail.size());
}

} // namespace

bool stepForField(std::int32_t zone, std::int32_t var, std::int32_t gridNumber,
                  const Plot3DFile_s& file) {
    if (!currentTask)
        return true;
    const std::string_view tail = fileTail(file.fileName.view());
    ProgressText text;
    std::snprintf(text.data(), text.size(),
                  "Setting up Zone=%03d, Var=%03d from Grid %03d in ...%.*s", zone, var, gridNumber,
                  tailLength(tail), tail.data());
    return currentTask->stepWithMessage(text.data());
}

void showConnectivity(std::int32_t zone, std::int32_t gridNumber, const Plot3DFile_s& file) {
    const std::string_view tail = fileTail(file.fileName.view());
    ProgressText text;
    std::snprintf(text.data(), text.size(),
                  "Loading Connectivity for Zone=%03d, from Grid %03d in ...%.*s.", zone,
                  gridNumber, tailLength(tail), tail.data());
    showOnCurrentTask(text.data());
}

void showOnCurrentTask(const char* text) {
    if (currentTask)
        currentTask->setMessage(text);
}

} // namespace quorvia::quorutildataio
