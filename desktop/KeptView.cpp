#include "desktop/KeptView.h"

#include "desktop/parts/Texts.h"

namespace quorvia::host {

KeptView::KeptView(DataSetTree& tree, DataSetView& view)
    : tree_(tree), view_(view), ticks_(tree.unusualTicks()), text_(view.viewText()) {}

void KeptView::putBack() const {
    tree_.putUnusualTicks(ticks_);
    if (text_.empty() || !view_.showView(text_).empty())
        return; // the text was the view's own, and is none only of data that can't be seen
    view_.showZones(tree_.ticked());
}

QString reloadedText(std::size_t steps, std::size_t stepsBefore, std::size_t newFiles) {
    if (steps > stepsBefore)
        return QStringLiteral("Reloaded: %1, %L2 in all")
            .arg(shownCount(steps - stepsBefore, "new step", "new steps"))
            .arg(steps);
    return newFiles == 0 ? QStringLiteral("Reloaded: no new steps")
                         : QStringLiteral("Reloaded: no new steps in %1")
                               .arg(shownCount(newFiles, "new file", "new files"));
}

} // namespace quorvia::host
