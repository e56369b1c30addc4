// What detection finds of each file that was imported, in the tree. A file is looked at once its
// list is opened, beside the windows' thread: a text file is read through for it.
#pragma once

#include <cstddef>
#include <vector>

#include <QObject>
#include <QTreeWidget>

#include <plot3d/FileInfo.h>

#include "desktop/files/ImportList.h"
#include "desktop/parts/LatestWork.h"

namespace quorvia::host {

class FileFindings : public QObject {
public:
    /// The tree is borrowed.
    explicit FileFindings(QTreeWidget& tree);

    /// Adds the list of the files below `root`, closed. What was shown before is gone from the
    /// tree.
    void show(QTreeWidgetItem* root, std::vector<ImportedFile_s> files);
    /// All of the opened list is told.
    bool isSettled() const { return !look_.isRunning(); }
    /// For tests, in which a look must stand still.
    LatestWork& looking() { return look_; }

private:
    void lookFrom(std::size_t place);
    void showFindings(std::size_t place, const plot3d::FileInfo& info);

    QTreeWidget& tree_;
    QTreeWidgetItem* list_ = nullptr; // belongs to the tree
    std::vector<ImportedFile_s> files_;
    LatestWork look_; // last: it uses the others
};

} // namespace quorvia::host
