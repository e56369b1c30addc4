#include "desktop/parts/DrawnIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace quorvia::host {
namespace {

/// In a square of 16 by 16.
QPainterPath folder() {
    QPainterPath path;
    path.addPolygon(QPolygonF({{1.5, 13}, {1.5, 3}, {6, 3}, {7.5, 5}, {13, 5}, {13, 7}}));
    path.addPolygon(QPolygonF({{1.5, 13}, {4, 7}, {15, 7}, {12.5, 13}, {1.5, 13}}));
    return path;
}

QPainterPath arrowInACircle() {
    QPainterPath path;
    constexpr double turn = 290; // degrees
    path.arcMoveTo(3, 3, 10, 10, 60);
    path.arcTo(3, 3, 10, 10, 60, turn);
    path.addPolygon(QPolygonF({{14.6, 5.4}, {12.6, 8.6}, {10.2, 5.9}}));
    return path;
}

QPainterPath triangle() {
    QPainterPath path;
    path.addPolygon(QPolygonF({{4, 2.5}, {13.5, 8}, {4, 13.5}, {4, 2.5}}));
    return path;
}

QPainterPath bars() {
    QPainterPath path;
    path.addRect(3.5, 3, 3, 10);
    path.addRect(9.5, 3, 3, 10);
    return path;
}

class Engine : public QIconEngine {
public:
    explicit Engine(Icon_e icon) : icon_(icon) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor ink = QGuiApplication::palette().color(group, QPalette::ButtonText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        constexpr double size = 16;
        painter->scale(rect.width() / size, rect.height() / size);
        const bool isFilled = icon_ == Icon_e::Play || icon_ == Icon_e::Pause;
        constexpr double stroke = 1.4;
        painter->setPen(isFilled ? QPen(Qt::NoPen) : QPen(ink, stroke));
        painter->setBrush(isFilled ? QBrush(ink) : QBrush(Qt::NoBrush));
        painter->drawPath(path());
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixels(size);
        pixels.fill(Qt::transparent);
        QPainter painter(&pixels);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixels;
    }
    QIconEngine* clone() const override { return new Engine(icon_); }

private:
    QPainterPath path() const {
        switch (icon_) {
        case Icon_e::Open:
            return folder();
        case Icon_e::Reload:
            return arrowInACircle();
        case Icon_e::Play:
            return triangle();
        case Icon_e::Pause:
            return bars();
        }
        return {};
    }

    Icon_e icon_;
};

} // namespace

QIcon drawnIcon(Icon_e icon) {
    return QIcon(new Engine(icon));
}

} // namespace quorvia::host
