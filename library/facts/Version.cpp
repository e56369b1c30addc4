#include <plot3d/Version.h>

namespace plot3d {

const char* version() {
    return PLOT3D_VERSION;
}

} // namespace plot3d
