#include "desktop/DialogScale.h"

#include <algorithm>

#include <QComboBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

#include "desktop/Texts.h"

namespace quorvia::host {
namespace {

constexpr double kUnitsOfALine = 144.0;
constexpr double kUnitsOfALetter = 120.0;
constexpr double kMostStretch = 1.6; // a caption far too long is cut rather than followed

int lineHeight() {
    const QLineEdit field;
    const QPushButton button(QStringLiteral("Xg"));
    const QComboBox menu;
    return std::max(
        {field.sizeHint().height(), button.sizeHint().height(), menu.sizeHint().height()});
}

int indicatorWidth(const QWidget& widget, QStyle::PixelMetric indicator,
                   QStyle::PixelMetric spacing) {
    constexpr int kFocusFrame = 6;
    return widget.style()->pixelMetric(indicator) + widget.style()->pixelMetric(spacing) +
           kFocusFrame;
}

int widestItem(const Control& control, const QFontMetrics& metrics) {
    int widest = 0;
    for (const std::string& item : control.items)
        widest = std::max(widest, metrics.horizontalAdvance(shown(item)));
    return widest;
}

/// Pixels that the control needs so that nothing of its captions is cut; 0 if it has none.
int neededWidth(const Control& control, const QWidget& widget) {
    const QFontMetrics metrics = widget.fontMetrics();
    const int caption = metrics.horizontalAdvance(shown(control.caption).trimmed());
    switch (control.kind) {
    case ControlKind::Toggle:
        return caption +
               indicatorWidth(widget, QStyle::PM_IndicatorWidth, QStyle::PM_CheckBoxLabelSpacing);
    case ControlKind::RadioBox:
        return widestItem(control, metrics) + indicatorWidth(widget,
                                                             QStyle::PM_ExclusiveIndicatorWidth,
                                                             QStyle::PM_RadioButtonLabelSpacing);
    case ControlKind::Button:
        return caption + 2 * widget.style()->pixelMetric(QStyle::PM_ButtonMargin);
    case ControlKind::OptionMenu: {
        constexpr int kArrowAndFrame = 36;
        return widestItem(control, metrics) + kArrowAndFrame;
    }
    default:
        return 0;
    }
}

} // namespace

DialogScale DialogScale::fitting(const Dialog& dialog, const QWidget& widget) {
    const double smallest = widget.fontMetrics().averageCharWidth() / kUnitsOfALetter;
    double x = smallest;
    for (const Control& control : dialog.controls)
        if (control.geometry.width > 0)
            x = std::max(x, static_cast<double>(neededWidth(control, widget)) /
                                static_cast<double>(control.geometry.width));
    return {std::min(x, smallest * kMostStretch), lineHeight() / kUnitsOfALine};
}

QRect DialogScale::rect(const Geometry& geometry) const {
    return {width(geometry.x), height(geometry.y), width(geometry.width), height(geometry.height)};
}

} // namespace quorvia::host
