// Blocks of host memory.
#include <algorithm>
#include <string_view>

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

std::string_view directoryOf(std::string_view path) {
    const auto isSeparator = [](char letter) { return letter == '/' || letter == '\\'; };
    const auto end = std::find_if(path.rbegin(), path.rend(), isSeparator);
    return path.substr(0, static_cast<std::size_t>(path.rend() - end));
}

} // namespace

extern "C" {

char* QuorUtilStringAlloc(std::int64_t byteCount, const char* label) {
    Call call("QuorUtilStringAlloc", byteCount, label);
    const auto allocate = [&]() -> char* {
        if (byteCount < 0 || label == nullptr) {
            call.violate("negative size, or no label");
            return nullptr;
        }
        char* block = call.host().memory.allocate(call.operation(), byteCount, label);
        if (block == nullptr)
            call.refuse("no memory for ", byteCount, " bytes");
        return block;
    };
    return call.serve<char*>(nullptr, allocate);
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
    return call.serve<char*>(nullptr, [&]() -> char* {
        if (path == nullptr) {
            call.violate("path is null");
            return nullptr;
        }
        return call.host().memory.copyText(call.operation(), directoryOf(path));
    });
}

} // extern "C"
