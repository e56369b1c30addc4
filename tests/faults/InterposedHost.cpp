// Two services of the host, on the way from the add-on to it: the memory that it lends, which can
// fail, and the messages that it is asked to show, which are counted even where it has no memory
// for them.
#include <cstdint>

#include <dlfcn.h>

#include "faults/FaultPoints.h"

using namespace quorvia::testsupport;

namespace {

template <typename Function>
Function* ofHost(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

char* QuorUtilStringAlloc(std::int64_t byteCount, const char* label) {
    static auto* const allocate = ofHost<char*(std::int64_t, const char*)>("QuorUtilStringAlloc");
    return failsAt(Point_e::HostBlock) ? nullptr : allocate(byteCount, label);
}

void QuorUtilDialogErrMsg(const char* text) {
    static auto* const show = ofHost<void(const char*)>("QuorUtilDialogErrMsg");
    noteMessageSent();
    show(text);
}

void QuorUtilPostLastErrorMessage() {
    static auto* const show = ofHost<void()>("QuorUtilPostLastErrorMessage");
    noteMessageSent();
    show();
}

} // extern "C"
