#include "desktop/dialog/DialogScale.h"

#include <algorithm>

#include <QComboBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

constexpr double unitsOfALine = 144.0;
constexpr double unitsOfALetter = 120.0;
constexpr double mostStretch = 1.6; // a caption far too long is cut rather than followed

int lineHeight() {
    const QLineEdit field;
    const QPushButton button(QStringLiteral("Xg"));
    const QComboBox menu;
    return std::max(
        {field.sizeHint().height(), button.sizeHint().height(), menu.sizeHint().height()});
}

int indicatorWidth(const QWidget& widget, QStyle::PixelMetric indicator,
                   QStyle::PixelMetric spacing) {
    constexpr int focusFrame = 6;
    return widget.style()->pixelMetric(indicator) + widget.style()->pixelMetric(spacing) +
           focusFrame;
}

int widestItem(const Control_s& control, const QFontMetrics& metrics) {
    int widest = 0;
    for (const std::string& item : control.items)
        widest = std::max(widest, metrics.horizontalAdvance(shown(item)));
    return widest;
}

/// Pixels that the control needs so that nothing of its captions is cut; 0 if it has none.
int neededWidth(const Control_s& control, const QWidget& widget) {
    const QFontMetrics metrics = widget.fontMetrics();
    const int caption = metrics.horizontalAdvance(shown(control.caption).trimmed());
    switch (control.kind) {
    case ControlKind_e::Toggle:
        return caption +
               indicatorWidth(widget, QStyle::PM_IndicatorWidth, QStyle::PM_CheckBoxLabelSpacing);
    case ControlKind_e::RadioBox:
        return widestItem(control, metrics) + indicatorWidth(widget,
                                                             QStyle::PM_ExclusiveIndicatorWidth,
                                                             QStyle::PM_RadioButtonLabelSpacing);
    case ControlKind_e::Button:
        return caption + 2 * widget.style()->pixelMetric(QStyle::PM_ButtonMargin);
    case ControlKind_e::OptionMenu: {
        constexpr int arrowAndFrame = 36;
        return widestItem(control, metrics) + arrowAndFrame;
    }
    default:
        return 0;
    }
}

} // namespace

DialogScale DialogScale::fitting(const Dialog_s& dialog, const QWidget& widget) {
    const double smallest = widget.fontMetrics().averageCharWidth() / unitsOfALetter;
    double x = smallest;
    for (const Control_s& control : dialog.controls)
        if (control.geometry.width > 0)
            x = std::max(x, static_cast<double>(neededWidth(control, widget)) /
                                static_cast<double>(control.geometry.width));
    return {std::min(x, smallest * mostStretch), lineHeight() / unitsOfALine};
}

QRect DialogScale::rect(const Geometry_s& geometry) const {
    return {width(geometry.x), height(geometry.y), width(geometry.width), height(geometry.height)};
}

} // namespace quorvia::host
