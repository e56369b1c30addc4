// What the picture shows: the variable whose values are its colours, and which surfaces.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QWidget>

#include <plot3d/Box.h>

#include "view/View.h"

namespace quorvia::host {

class ViewBar : public QWidget {
public:
    struct Events_s {
        std::function<void(const std::string& variable)> coloured;
        std::function<void(const plot3d::scene::SurfaceWish_s& surfaces)> cut;
        /// "iso", "+x" and so on.
        std::function<void(const std::string& direction)> lookedFrom;
    };
    ViewBar(Events_s events, QWidget* parent);

    /// `size`: of the largest zone along each direction.
    void setChoices(const std::vector<std::string>& variables, const plot3d::Extent& size);
    /// Tells nobody.
    void showChoice(const std::string& variable, const plot3d::scene::SurfaceWish_s& surfaces);
    /// Plane data are seen from above alone.
    void showDirections(bool areThere) { directions_->setVisible(areThere); }

private:
    void addDirections();
    void tellSurfaces();
    void showPlane();

    Events_s events_;
    QComboBox* colour_;
    QComboBox* surfaces_;
    QSlider* plane_;
    QLabel* planeText_;
    QWidget* directions_;
    std::array<int, 3> sizes_ = {1, 1, 1};      // of the largest zone along I, J and K
    std::array<int, 3> lastPlanes_ = {1, 1, 1}; // from 1
};

} // namespace quorvia::host
