#include "desktop/parts/Labels.h"

#include <QLabel>

namespace quorvia::host {

void addNamed(QBoxLayout& row, const QString& name, QWidget& widget) {
    auto* label = new QLabel(name, widget.parentWidget());
    label->setBuddy(&widget);
    widget.setAccessibleName(QString(name).remove(QLatin1Char('&')));
    row.addWidget(label);
    row.addWidget(&widget);
}

} // namespace quorvia::host
