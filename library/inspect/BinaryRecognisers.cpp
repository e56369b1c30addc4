#include "inspect/Recognisers.h"

namespace plot3dlib {

std::span<const Recogniser> binaryRecognisers() {
    return {};
}

} // namespace plot3dlib
