#include <memory>
#include <string_view>

#include <plot3d/Version.h>

#include "picture/OffscreenPainter.h"

extern "C" plot3d::scene::Painter* plot3dScenePainter(const char* version) {
    if (std::string_view(version) != plot3d::version())
        return nullptr;
    return std::make_unique<plot3d::scene::OffscreenPainter>().release();
}
