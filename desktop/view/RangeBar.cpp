#include "desktop/view/RangeBar.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QHBoxLayout>
#include <QSignalBlocker>

#include "desktop/parts/Labels.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {

using plot3d::scene::Range_s;
using plot3d::scene::RangeOver_e;

RangeBar::RangeBar(Events_s events, QWidget* parent)
    : QWidget(parent), events_(std::move(events)), list_(new QComboBox(this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    list_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    addNamed(*layout, QStringLiteral("&Range"), *list_);
    least_ = addEnd(*layout, QStringLiteral("Mi&nimum"));
    most_ = addEnd(*layout, QStringLiteral("Ma&ximum"));
    layout->addStretch();
    connect(list_, QOverload<int>::of(&QComboBox::activated), this, [this](int place) {
        const Choice_s choice = listed_[static_cast<std::size_t>(place)];
        events_.chosen(choice);
    });
    fillList();
}

QLineEdit* RangeBar::addEnd(QBoxLayout& row, const QString& name) {
    auto* end = new QLineEdit(this);
    addNamed(row, name, *end);
    end->setToolTip(QStringLiteral("A number typed here stays, whatever is shown"));
    constexpr int letters = 13;
    end->setMaximumWidth(letters * end->fontMetrics().averageCharWidth());
    connect(end, &QLineEdit::editingFinished, this, [this] { takeTyped(); });
    return end;
}

void RangeBar::offerZone(std::size_t zone) {
    offeredZone_ = zone;
    fillList();
}

void RangeBar::showChoice(const Choice_s& choice, const Range_s& range) {
    choice_ = choice;
    range_ = range;
    fillList();
    const bool isBeingTyped =
        (least_->isModified() || most_->isModified()) && (least_->hasFocus() || most_->hasFocus());
    for (const auto& [end, value] : {std::pair(least_, range.least), std::pair(most_, range.most)})
        if (!isBeingTyped) {
            end->setText(shownNumber(value));
            end->setCursorPosition(0);
        }
}

// ---- The list -----------------------------------------------------------------------------------

QString RangeBar::captionOf(const Choice_s& choice) const {
    if (choice.kept)
        return QStringLiteral("Fixed");
    switch (choice.over) {
    case RangeOver_e::Shown:
        break;
    case RangeOver_e::Time:
        return hasTimes_ ? QStringLiteral("All points, this time") : QStringLiteral("All points");
    case RangeOver_e::AllTimes:
        return QStringLiteral("All points, all times");
    case RangeOver_e::Zone:
        return QStringLiteral("Zone %1").arg(choice.zone);
    }
    return QStringLiteral("Points drawn");
}

std::vector<RangeBar::Choice_s> RangeBar::choices() const {
    std::vector<Choice_s> choices = {{RangeOver_e::Shown, 1, {}}, {RangeOver_e::Time, 1, {}}};
    if (hasTimes_)
        choices.push_back({RangeOver_e::AllTimes, 1, {}});
    if (choice_.over == RangeOver_e::Zone && choice_.zone != offeredZone_)
        choices.push_back({RangeOver_e::Zone, choice_.zone, {}});
    choices.push_back({RangeOver_e::Zone, offeredZone_, {}});
    choices.push_back({RangeOver_e::Shown, 1, choice_.kept.value_or(range_)});
    return choices;
}

void RangeBar::fillList() {
    const QSignalBlocker silence(list_);
    listed_ = choices();
    QStringList captions;
    for (const Choice_s& choice : listed_)
        captions.append(captionOf(choice));
    if (captions != captions_) { // else left alone: it may be open
        captions_ = captions;
        list_->clear();
        list_->addItems(captions);
    }
    const auto current = std::find(listed_.begin(), listed_.end(), choice_);
    list_->setCurrentIndex(static_cast<int>(current - listed_.begin()));
}

// ---- What is typed ------------------------------------------------------------------------------

/// An end that nobody typed at keeps all its digits.
std::optional<double> RangeBar::valueOf(const QLineEdit& end, double before) const {
    if (!end.isModified())
        return before;
    bool isNumber = false;
    const double value =
        end.text().trimmed().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

void RangeBar::takeTyped() {
    if (!least_->isModified() && !most_->isModified())
        return;
    const std::optional<double> least = valueOf(*least_, range_.least);
    const std::optional<double> most = valueOf(*most_, range_.most);
    for (const auto& [end, value] : {std::pair(least_, least), std::pair(most_, most)})
        if (!value) {
            events_.refused(QStringLiteral("\"%1\" is no number.").arg(end->text()));
            return;
        }
    if (!(*least < *most)) {
        events_.refused(QStringLiteral("The minimum must lie below the maximum."));
        return;
    }
    least_->setModified(false);
    most_->setModified(false);
    events_.chosen({RangeOver_e::Shown, 1, Range_s{*least, *most}});
}

} // namespace quorvia::host
