// Views in files: what `plot3d render --save-view` and `--view-file` write and read, too.
#pragma once

#include <QWidget>

#include "desktop/view/DataSetView.h"

namespace quorvia::host {

/// Asks for a file and writes what is in the picture to it, whole or not at all. A failure is told.
void saveViewByHand(QWidget* parent, const DataSetView& view);

/// Asks for a file and shows the view that it describes. What is none is told, and changes nothing.
void openViewByHand(QWidget* parent, DataSetView& view);

} // namespace quorvia::host
