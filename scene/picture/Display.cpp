#include "picture/Display.h"

#include <cstdlib>

#include <X11/Xlib.h>

namespace plot3d::scene {

class DisplayLink::Connection {
public:
    explicit Connection(const char* name) : display_(XOpenDisplay(name)) {}
    ~Connection() {
        if (display_ != nullptr)
            XCloseDisplay(display_);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    bool isOpen() const { return display_ != nullptr; }
    bool knowsOpenGl() const {
        int opcode = 0;
        int event = 0;
        int error = 0;
        return XQueryExtension(display_, "GLX", &opcode, &event, &error) != 0;
    }

private:
    Display* display_;
};

DisplayLink::DisplayLink() {
    const char* const name = std::getenv("DISPLAY");
    if (name == nullptr || *name == '\0') {
        problem_ = "there is no display";
        return;
    }
    connection_ = std::make_unique<Connection>(name);
    if (!connection_->isOpen())
        problem_ = "the display " + std::string(name) + " can't be opened";
    else if (!connection_->knowsOpenGl())
        problem_ = "the display " + std::string(name) + " knows no OpenGL";
}

DisplayLink::~DisplayLink() = default;

} // namespace plot3d::scene
