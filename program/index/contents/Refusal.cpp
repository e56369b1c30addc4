#include "index/contents/Refusal.h"

#include <plot3d/Error.h>

namespace plot3d::program {

void refuseIndex(const std::string& message, const std::string& file) {
    throw Error(ErrorKind::Unsupported, message, {.file = file});
}

} // namespace plot3d::program
