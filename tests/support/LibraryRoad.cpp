// The add-on as a user's host gets it: the built library, opened once for the whole program.
#include "session/AddOnLibrary.h"
#include "support/AddOnRoad.h"

namespace quorvia::testsupport {

static std::unique_ptr<host::AddOnLibrary> gLibrary;

std::string bringAddOnIn() {
    std::string error;
    gLibrary = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
    return error;
}

void takeAddOnOut() {
    if (gLibrary != nullptr)
        gLibrary->unload();
    gLibrary.reset();
}

} // namespace quorvia::testsupport
