#include "desktop/parts/WorkRow.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "desktop/parts/Texts.h"

namespace quorvia::host {

WorkRow::WorkRow(LatestWork& work, const char* cancelName, QWidget* parent)
    : QWidget(parent), work_(work), text_(new QLabel(this)), bar_(new QProgressBar(this)) {
    text_->setTextFormat(Qt::PlainText);
    bar_->setRange(0, 100);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setAutoDefault(false);
    cancel->setObjectName(QLatin1String(cancelName));
    connect(cancel, &QPushButton::clicked, this, [this] { work_.cancel(); });
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text_);
    layout->addWidget(bar_, 1);
    layout->addWidget(cancel);
}

void WorkRow::showState() {
    const LatestWork::State_s state = work_.state();
    text_->setText(shown(state.text));
    constexpr double percent = 100;
    bar_->setValue(static_cast<int>(state.fraction * percent));
}

} // namespace quorvia::host
