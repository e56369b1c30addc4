#include "desktop/values/ScopeBar.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QHBoxLayout>

#include "desktop/parts/Labels.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {

using Over_e = ValuesScope_s::Over_e;

ScopeBar::ScopeBar(std::shared_ptr<const plot3d::DataSet> data, const ValuesScope_s& scope,
                   std::function<void()> changed, QWidget* parent)
    : QWidget(parent), data_(std::move(data)), changed_(std::move(changed)),
      over_(new QComboBox(this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    const bool hasTimes = data_->timeSteps().size() > 1;
    over_->addItem(QStringLiteral("One zone"), static_cast<int>(Over_e::Zone));
    if (hasTimes)
        over_->addItem(QStringLiteral("One time"), static_cast<int>(Over_e::Time));
    over_->addItem(hasTimes ? QStringLiteral("All times") : QStringLiteral("All zones"),
                   static_cast<int>(Over_e::AllTimes));
    const Over_e over = scope.over == Over_e::Time && !hasTimes ? Over_e::AllTimes : scope.over;
    over_->setCurrentIndex(over_->findData(static_cast<int>(over)));
    addNamed(*layout, QStringLiteral("Values &of"), *over_);
    zone_ = addNumbers("Zone", data_->zones().size(), scope.zone);
    step_ = addNumbers("Time step", data_->timeSteps().size(), scope.step);
    text_ = new QLabel(this);
    text_->setTextFormat(Qt::PlainText);
    layout->addWidget(text_);
    layout->addStretch();
    showChoice();
    connect(over_, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        showChoice();
        changed_();
    });
}

QSpinBox* ScopeBar::addNumbers(const char* name, std::size_t count, std::size_t first) {
    auto* numbers = new QSpinBox(this);
    numbers->setAccessibleName(QLatin1String(name));
    constexpr auto most = static_cast<std::size_t>(std::numeric_limits<int>::max());
    numbers->setRange(1, static_cast<int>(std::min(std::max<std::size_t>(count, 1), most)));
    numbers->setValue(static_cast<int>(first) + 1);
    numbers->setKeyboardTracking(false); // a number half typed is not meant
    layout()->addWidget(numbers);
    connect(numbers, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] {
        showChoice();
        changed_();
    });
    return numbers;
}

ValuesScope_s ScopeBar::scope() const {
    return {static_cast<Over_e>(over_->currentData().toInt()),
            static_cast<std::size_t>(zone_->value()) - 1,
            static_cast<std::size_t>(step_->value()) - 1};
}

void ScopeBar::showChoice() {
    const ValuesScope_s now = scope();
    zone_->setVisible(now.over == Over_e::Zone);
    step_->setVisible(now.over == Over_e::Time);
    text_->setVisible(now.over != Over_e::AllTimes);
    if (now.over == Over_e::Zone)
        text_->setText(shown(data_->zones()[now.zone].name));
    else if (now.over == Over_e::Time)
        text_->setText(textOf(*data_, now));
}

} // namespace quorvia::host
