// From layout units to the pixels of the user's screen and font. A line of text, and with it a
// button or a field, is 144 units high, and a letter takes about 120: height and width have scales
// of their own, since no font has that shape.
#pragma once

#include <cstdint>

#include <QRect>
#include <QWidget>

#include "toolkit/Dialog.h"

namespace quorvia::host {

class DialogScale {
public:
    /// The smallest scale at which fields hold a line of text and every caption of the dialog fits
    /// its control, in the font and style of `widget`.
    static DialogScale fitting(const Dialog_s& dialog, const QWidget& widget);

    int width(std::int32_t units) const { return qRound(x_ * units); }
    int height(std::int32_t units) const { return qRound(y_ * units); }
    QRect rect(const Geometry_s& geometry) const;

private:
    DialogScale(double x, double y) : x_(x), y_(y) {}
    double x_; // pixels to a unit
    double y_;
};

} // namespace quorvia::host
