// What a reload keeps of what is seen, and what is said of it.
#pragma once

#include <cstddef>
#include <set>
#include <string>

#include <QString>

#include "desktop/tree/DataSetTree.h"
#include "desktop/view/DataSetView.h"

namespace quorvia::host {

/// View, colour, camera, time and ticks, taken before other data are shown. Tree and view are
/// borrowed.
class KeptView {
public:
    KeptView(DataSetTree& tree, DataSetView& view);
    /// Where the new data lack something of it, they are shown as they would be at first.
    void putBack() const;

private:
    DataSetTree& tree_;
    DataSetView& view_;
    std::set<QString> ticks_;
    std::string text_; // empty: there was no picture
};

/// "Reloaded: 2 new steps, 5 in all".
QString reloadedText(std::size_t steps, std::size_t stepsBefore, std::size_t newFiles);

} // namespace quorvia::host
