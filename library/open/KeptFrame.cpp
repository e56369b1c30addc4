#include "open/KeptFrame.h"

#include "facts/StopQuestion.h"
#include "open/HostLock.h"
#include "open/LoadFailure.h"
#include "session/ReferenceHost.h"
#include "session/SeparateFrame.h"
#include "state/HostState.h"

namespace plot3dlib {

namespace {

using quorvia::host::Frame;
using quorvia::host::ReferenceHost;

constexpr std::int64_t bytesOfFetchedValues = std::int64_t{1} << 30;

ReferenceHost& referenceHost() {
    return ReferenceHost::instance();
}

} // namespace

KeptFrame::KeptFrame() : id_(referenceHost().addFrame().uniqueId()) {
    cache_.setLimit(bytesOfFetchedValues);
}

KeptFrame::~KeptFrame() {
    const HostLock lock;
    if (Frame* const own = frame())
        referenceHost().closeFrame(*own);
}

Frame* KeptFrame::frame() const {
    return referenceHost().state().frames.find(id_);
}

void KeptFrame::withValues(quorvia::host::FieldStorage& field,
                           const std::function<void(const void*)>& use,
                           const std::stop_token& stop) {
    const quorvia::host::SeparateFrame apart; // what the guest says now is not for the host's user
    if (Frame* const own = frame())
        referenceHost().makeCurrent(*own);
    const std::stop_callback stopFetch(stop, [] { referenceHost().requestInterrupt(); });
    if (!cache_.fetch(field)) {
        endIfStopped(stop);
        throw fetchFailureOf(referenceHost().log().messages);
    }
    use(field.values());
}

} // namespace plot3dlib
