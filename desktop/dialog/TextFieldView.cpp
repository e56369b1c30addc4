#include "desktop/dialog/TextFieldView.h"

#include <utility>

#include "desktop/parts/Texts.h"

namespace quorvia::host {

TextFieldView::TextFieldView(const Control_s& control, ActionSink act, QWidget* parent)
    : ControlView(new QLineEdit(parent)), field_(*static_cast<QLineEdit*>(widget())),
      id_(control.id), act_(std::move(act)) {
    // A field is not left when another window comes to the front: a box, or another program.
    QObject::connect(&field_, &QLineEdit::editingFinished, &field_, [this] {
        if (field_.isActiveWindow())
            commit();
    });
}

void TextFieldView::commit() {
    if (!field_.isModified())
        return;
    field_.setModified(false);
    act_(TypeText_s{id_, field_.text().toStdString()});
}

// What is being typed is the user's until he leaves the field.
void TextFieldView::showValue(const Control_s& control) {
    const QString text = shown(control.text);
    if (field_.isModified() || field_.text() == text)
        return;
    field_.setText(text);
    field_.setCursorPosition(0);
}

} // namespace quorvia::host
