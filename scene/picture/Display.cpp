#include "picture/Display.h"

#include <cstdlib>

#include <X11/Xlib.h>

namespace plot3d::scene {

std::string displayProblem() {
    const char* const name = std::getenv("DISPLAY");
    if (name == nullptr || *name == '\0')
        return "there is no display";
    Display* const display = XOpenDisplay(name);
    if (display == nullptr)
        return "the display " + std::string(name) + " can't be opened";
    int opcode = 0;
    int event = 0;
    int error = 0;
    const bool canDraw = XQueryExtension(display, "GLX", &opcode, &event, &error) != 0;
    XCloseDisplay(display);
    return canDraw ? std::string() : "the display " + std::string(name) + " knows no OpenGL";
}

} // namespace plot3d::scene
