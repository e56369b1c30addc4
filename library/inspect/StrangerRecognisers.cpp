#include "inspect/Recognisers.h"

namespace plot3dlib {

std::span<const Recogniser> strangerRecognisers() {
    return {};
}

} // namespace plot3dlib
