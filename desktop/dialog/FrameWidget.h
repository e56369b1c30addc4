// A border with its caption in the upper line. The styles' own group boxes put the caption above
// the border, where a guest's controls would stand over it.
#pragma once

#include <QString>
#include <QWidget>

namespace quorvia::host {

class FrameWidget : public QWidget {
public:
    FrameWidget(QString caption, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString caption_;
};

} // namespace quorvia::host
