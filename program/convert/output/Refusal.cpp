#include "convert/output/Refusal.h"

#include <plot3d/Error.h>

namespace plot3d::program {

void refuseContents(const std::string& message, const std::string& next) {
    throw Error(ErrorKind::Unsupported, message, {.next = next});
}

} // namespace plot3d::program
