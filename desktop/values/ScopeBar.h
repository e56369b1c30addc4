// Chooses which values are counted.
#pragma once

#include <functional>
#include <memory>

#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QWidget>

#include "desktop/values/ValuesScope.h"

namespace quorvia::host {

class ScopeBar : public QWidget {
public:
    ScopeBar(std::shared_ptr<const plot3d::DataSet> data, const ValuesScope_s& scope,
             std::function<void()> changed, QWidget* parent);

    ValuesScope_s scope() const;

private:
    QSpinBox* addNumbers(const char* name, std::size_t count, std::size_t first);
    void showChoice();

    std::shared_ptr<const plot3d::DataSet> data_;
    std::function<void()> changed_;
    QComboBox* over_;
    QSpinBox* zone_; // from 1
    QSpinBox* step_; // likewise
    QLabel* text_;   // what the number stands for
};

} // namespace quorvia::host
