#include "desktop/dialog/FrameWidget.h"

#include <utility>

#include <QPainter>

namespace quorvia::host {

FrameWidget::FrameWidget(QString caption, QWidget* parent)
    : QWidget(parent), caption_(std::move(caption)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void FrameWidget::paintEvent(QPaintEvent*) {
    constexpr int indent = 10;
    constexpr int captionGap = 4; // between the border and the caption
    constexpr double round = 3.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int captionHeight = caption_.isEmpty() ? 0 : fontMetrics().height();
    const QRect caption(indent, 0, fontMetrics().horizontalAdvance(caption_), captionHeight);
    if (!caption_.isEmpty()) {
        const QRect gap = caption.adjusted(-captionGap, 0, captionGap, 0);
        painter.setClipRegion(QRegion(rect()).subtracted(gap));
    }
    constexpr double halfALine = 0.5; // lines lie on pixels
    const QRectF border =
        QRectF(rect()).adjusted(halfALine, captionHeight / 2 + halfALine, -halfALine, -halfALine);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRoundedRect(border, round, round);
    painter.setClipping(false);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(caption, Qt::AlignVCenter | Qt::TextSingleLine, caption_);
}

} // namespace quorvia::host
