// The guest as an add-on library. Its copy of the loader stays its own: the names are hidden, those
// of the host are not.
#include "quorvia/HostHandles.h"
#include "quorvia/QuorUtilityLibrary.h"

#include <new>
#include <stdexcept>
#include <string>

#pragma GCC visibility push(hidden)
#include "GuestLoader.h"
#pragma GCC visibility pop

namespace {

// Something that the library holds for as long as it is loaded, and gives back as it goes.
quorvia::HostSet gHeld;

} // namespace

extern "C" __attribute__((visibility("default"))) void InitQuorAddOn113() {
    quorvia::guestloader::registerLoader();
    QuorUtilLockOn();
    gHeld = quorvia::HostSet(QuorUtilSetAlloc(true));
    QuorUtilLockOff();
}
