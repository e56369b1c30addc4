// File selections: the one of the import menu, with its options, and those that a guest asks for.
#pragma once

#include <string>
#include <vector>

#include <QWidget>

#include "state/Loader.h"
#include "toolkit/User.h"

namespace quorvia::host {

struct FileSelection_s {
    std::vector<std::string> files; // whole paths; none for Cancel
    bool advanced = false;
    bool append = false;
};

/// The selection of the import menu. The loader's extensions are patterns with blanks, commas or
/// semicolons between them. `hasDataSet`: there is something to append to. Remembers the folder.
FileSelection_s selectFilesToImport(QWidget* parent, const Loader_s& loader, bool hasDataSet);

/// What a guest asks for; none for Cancel. Remembers the folder.
std::vector<std::string> chooseExistingFiles(QWidget* parent, const FileRequest_s& request);

/// Where the user wants something to be written, asked before a file is overwritten; empty if he
/// cancels. `filter` is "Kind (*.ending)"; the ending is added to a name without one.
QString chooseFileToSave(QWidget* parent, const QString& title, const QString& filter);

/// The same for a file that is there.
QString chooseFileToOpen(QWidget* parent, const QString& title, const QString& filter);

} // namespace quorvia::host
