#include "desktop/view/TimeBar.h"

#include <utility>

#include <QHBoxLayout>
#include <QSignalBlocker>

#include "desktop/parts/DrawnIcon.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {

TimeBar::TimeBar(Chosen chosen, QWidget* parent)
    : QWidget(parent), chosen_(std::move(chosen)), play_(new QToolButton(this)),
      slider_(new QSlider(Qt::Horizontal, this)), text_(new QLabel(this)) {
    setObjectName(QStringLiteral("timeBar"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{play_, slider_, text_})
        layout->addWidget(part);
    play_->setObjectName(QStringLiteral("play"));
    play_->setAccessibleName(QStringLiteral("Play"));
    play_->setToolTip(QStringLiteral("Play the time steps (Space in the picture)"));
    play_->setCheckable(true);
    play_->setIcon(drawnIcon(Icon_e::Play));
    slider_->setObjectName(QStringLiteral("time"));
    slider_->setAccessibleName(QStringLiteral("Time step"));
    slider_->setPageStep(1);
    connect(slider_, &QSlider::valueChanged, this, [this](int step) {
        showText();
        chosen_(step);
    });
    constexpr int millisecondsBetweenSteps = 100;
    timer_.setInterval(millisecondsBetweenSteps);
    connect(&timer_, &QTimer::timeout, this, [this] {
        if (!isBusy_)
            goBy(1);
    });
    connect(play_, &QToolButton::toggled, this, [this](bool isOn) {
        play_->setIcon(drawnIcon(isOn ? Icon_e::Pause : Icon_e::Play));
        isOn ? timer_.start() : timer_.stop();
    });
}

void TimeBar::setTimes(std::vector<double> times) {
    times_ = std::move(times);
    play(false);
    const QSignalBlocker silence(slider_);
    slider_->setRange(0, times_.empty() ? 0 : static_cast<int>(times_.size()) - 1);
    slider_->setValue(0);
    setVisible(times_.size() > 1);
    showText();
}

void TimeBar::showStep(int step) {
    const QSignalBlocker silence(slider_);
    slider_->setValue(step);
    showText();
}

void TimeBar::goBy(int steps) {
    const int count = static_cast<int>(times_.size());
    if (count > 1)
        slider_->setValue(((step() + steps) % count + count) % count);
}

void TimeBar::showText() {
    if (times_.empty())
        return;
    text_->setText(QStringLiteral("Time %1, step %2 of %3")
                       .arg(shownNumber(times_[static_cast<std::size_t>(step())]))
                       .arg(step() + 1)
                       .arg(times_.size()));
}

} // namespace quorvia::host
