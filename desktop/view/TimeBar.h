// The time of the view: a slider over the steps, and playing them one after the other.
#pragma once

#include <functional>
#include <vector>

#include <QLabel>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

namespace quorvia::host {

class TimeBar : public QWidget {
public:
    /// Gets the step that is wanted, from 0.
    using Chosen = std::function<void(int step)>;

    TimeBar(Chosen chosen, QWidget* parent);

    /// The bar is there for two steps or more.
    void setTimes(std::vector<double> times);
    /// Tells nobody.
    void showStep(int step);
    int step() const { return slider_->value(); }
    /// Round in a circle.
    void goBy(int steps);
    /// While the last step is still being prepared no other is asked for.
    void setBusy(bool isBusy) { isBusy_ = isBusy; }
    bool isPlaying() const { return play_->isChecked(); }
    void play(bool isPlaying) { play_->setChecked(isPlaying); }

private:
    void showText();

    Chosen chosen_;
    std::vector<double> times_;
    QToolButton* play_;
    QSlider* slider_;
    QLabel* text_;
    QTimer timer_;
    bool isBusy_ = false;
};

} // namespace quorvia::host
