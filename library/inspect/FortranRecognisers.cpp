#include "inspect/Recognisers.h"

namespace plot3dlib {

std::span<const Recogniser> fortranRecognisers() {
    return {};
}

} // namespace plot3dlib
