#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

QuorAddOnHandle addOnID = nullptr;

} // namespace quorvia::quorutildataio
