#include "inspect/Recognisers.h"

namespace plot3dlib {

std::span<const Recogniser> textRecognisers() {
    return {};
}

} // namespace plot3dlib
