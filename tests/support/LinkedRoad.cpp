// The add-on linked in, where debuggers and sanitizers see all of it, and entered as the library
// is. There is no way out.
#include "addon/AddOnEntry.h"
#include "support/AddOnRoad.h"

namespace quorvia::testsupport {

std::string bringAddOnIn() {
    InitQuorAddOn113();
    return "";
}

void takeAddOnOut() {}

} // namespace quorvia::testsupport
