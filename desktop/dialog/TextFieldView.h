// A text field of one line. The guest gets the whole text when the user leaves the field.
#pragma once

#include <QLineEdit>

#include "desktop/dialog/ControlView.h"

namespace quorvia::host {

class TextFieldView : public ControlView {
public:
    TextFieldView(const Control_s& control, ActionSink act, QWidget* parent);
    void commit() override;

protected:
    void showValue(const Control_s& control) override;

private:
    QLineEdit& field_;
    std::int32_t id_;
    ActionSink act_;
};

} // namespace quorvia::host
