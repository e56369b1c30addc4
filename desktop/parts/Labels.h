// Labels of what can be chosen or typed.
#pragma once

#include <QBoxLayout>
#include <QString>
#include <QWidget>

namespace quorvia::host {

/// Adds the widget with its name before it. The letter behind & goes to it with Alt, and who reads
/// the window aloud hears the name.
void addNamed(QBoxLayout& row, const QString& name, QWidget& widget);

} // namespace quorvia::host
