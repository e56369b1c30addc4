// Whether a window can be made, asked without VTK, which would end the process.
#pragma once

#include <memory>
#include <string>

namespace plot3d::scene {

/// A connection to the display that DISPLAY names. It stays open for as long as windows are made
/// there: a server that loses its last client may start afresh, and refuses others meanwhile.
class DisplayLink {
public:
    DisplayLink();
    ~DisplayLink();
    DisplayLink(const DisplayLink&) = delete;
    DisplayLink& operator=(const DisplayLink&) = delete;

    /// Why no window can be made; empty if one can.
    const std::string& problem() const { return problem_; }

private:
    class Connection;
    std::unique_ptr<Connection> connection_;
    std::string problem_;
};

} // namespace plot3d::scene
