// How all windows of the program look, on every desktop.
#pragma once

#include <QProxyStyle>

namespace quorvia::host {

class DesktopStyle : public QProxyStyle {
public:
    DesktopStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    /// Words tell what a button does.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

} // namespace quorvia::host
