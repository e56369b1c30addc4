// The range of values that the colours of the picture go over: what it is taken from, and its two
// ends, which can be typed.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include <QBoxLayout>
#include <QComboBox>
#include <QLineEdit>
#include <QStringList>
#include <QWidget>

#include "view/View.h"

namespace quorvia::host {

class RangeBar : public QWidget {
public:
    struct Choice_s {
        plot3d::scene::RangeOver_e over = plot3d::scene::RangeOver_e::Shown;
        std::size_t zone = 1;                       // of RangeOver_e::Zone: its number
        std::optional<plot3d::scene::Range_s> kept; // stays whatever is shown, and goes ahead

        bool operator==(const Choice_s&) const = default;
    };
    struct Events_s {
        std::function<void(const Choice_s& choice)> chosen;
        /// What was typed is no range; gets why.
        std::function<void(const QString& reason)> refused;
    };
    RangeBar(Events_s events, QWidget* parent);

    /// Of a data set without a choice of times the list is shorter.
    void setHasTimes(bool hasTimes) { hasTimes_ = hasTimes; }
    /// The zone, by number, whose range can be chosen.
    void offerZone(std::size_t zone);
    /// Tells nobody. `range`: what the colours go over now.
    void showChoice(const Choice_s& choice, const plot3d::scene::Range_s& range);

private:
    QLineEdit* addEnd(QBoxLayout& row, const QString& name);
    std::vector<Choice_s> choices() const;
    void fillList();
    QString captionOf(const Choice_s& choice) const;
    void takeTyped();
    std::optional<double> valueOf(const QLineEdit& end, double before) const;

    Events_s events_;
    QComboBox* list_;
    QLineEdit* least_;
    QLineEdit* most_;
    bool hasTimes_ = false;
    std::size_t offeredZone_ = 1;
    Choice_s choice_;
    plot3d::scene::Range_s range_;
    std::vector<Choice_s> listed_; // in the order of the list
    QStringList captions_;         // likewise
};

} // namespace quorvia::host
