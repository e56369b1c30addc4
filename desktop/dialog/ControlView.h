// One control of a guest's dialog on the screen.
#pragma once

#include <functional>
#include <memory>

#include <QString>
#include <QWidget>

#include "desktop/dialog/DialogScale.h"
#include "toolkit/Control.h"
#include "toolkit/DialogAction.h"

namespace quorvia::host {

/// Takes what the user does.
using ActionSink = std::function<void(DialogAction)>;

class ControlView {
public:
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    /// Shows caption, items, value and sensitivity as the control has them now. What the user does
    /// is not told by it.
    void refresh(const Control_s& control);
    /// Tells what the user has typed and not left yet.
    virtual void commit() {}

    /// Belongs to its parent.
    QWidget* widget() const { return widget_; }

protected:
    explicit ControlView(QWidget* widget) : widget_(widget) {}
    virtual void showValue(const Control_s& control) = 0;

private:
    friend std::unique_ptr<ControlView> makeControlView(const Dialog_s& dialog,
                                                        const Control_s& control, ActionSink act,
                                                        const DialogScale& scale, QWidget* parent);
    QWidget* widget_;
    QString hint_; // shown while it is not sensitive
};

/// A view of the dialog's control at its place within `parent`.
std::unique_ptr<ControlView> makeControlView(const Dialog_s& dialog, const Control_s& control,
                                             ActionSink act, const DialogScale& scale,
                                             QWidget* parent);

} // namespace quorvia::host
