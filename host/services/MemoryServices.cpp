// Blocks of host memory.
#include <algorithm>

#include "services/Call.h"

using namespace quorvia::host;

namespace {

void giveBackBlock(Call& call, const void* address) {
    if (address == nullptr)
        return;
    if (!call.host().memory.giveBack(address))
        call.violation("block was given back already, or is not the host's");
    call.host().transcript.forgetName(address);
}

} // namespace

extern "C" {

char* QuorUtilStringAlloc(std::int64_t byteCount, const char* label) {
    Call call("QuorUtilStringAlloc", byteCount, label);
    if (call.fails())
        return call.result<char*>(nullptr);
    if (byteCount < 0 || label == nullptr) {
        call.violate("negative size, or no label");
        return call.result<char*>(nullptr);
    }
    char* block = call.host().memory.allocate(call.operation(), byteCount, label);
    if (block == nullptr)
        call.refuse("no memory for " + std::to_string(byteCount) + " bytes");
    return call.result(block);
}

void QuorUtilStringDealloc(char** block) {
    Call call("QuorUtilStringDealloc", block != nullptr ? *block : nullptr);
    if (block == nullptr) {
        call.violation("reference is null");
        return;
    }
    giveBackBlock(call, *block);
    *block = nullptr;
}

void QuorUtilArrayDealloc(void** array) {
    Call call("QuorUtilArrayDealloc", static_cast<char*>(array != nullptr ? *array : nullptr));
    if (array == nullptr) {
        call.violation("reference is null");
        return;
    }
    giveBackBlock(call, *array);
    *array = nullptr;
}

char* QuorUtilGetBasePath(const char* path) {
    Call call("QuorUtilGetBasePath", path);
    if (call.fails())
        return call.result<char*>(nullptr);
    if (path == nullptr) {
        call.violate("path is null");
        return call.result<char*>(nullptr);
    }
    const std::string_view whole = path;
    const auto isSeparator = [](char letter) { return letter == '/' || letter == '\\'; };
    const auto end = std::find_if(whole.rbegin(), whole.rend(), isSeparator);
    const std::string_view directory =
        whole.substr(0, static_cast<std::size_t>(whole.rend() - end));
    return call.result(call.host().memory.copyText(call.operation(), directory));
}

} // extern "C"
