// File selections: the one of the import menu, with its options, and those that a guest asks for.
#pragma once

#include <string>
#include <vector>

#include <QWidget>

#include "toolkit/User.h"

namespace quorvia::host {

/// What a registered loader says of itself.
struct LoaderTraits_s {
    std::string name;
    std::string fileNameExtensions; // patterns with blanks, commas or semicolons between them
    bool allowsSeveralFiles = false;
    bool allowsAdvancedOptions = false;
    bool allowsAppending = false;
};

struct FileSelection_s {
    std::vector<std::string> files; // whole paths; none for Cancel
    bool advanced = false;
    bool append = false;
};

/// The selection of the import menu. `hasDataSet`: there is something to append to. Remembers the
/// folder.
FileSelection_s selectFilesToImport(QWidget* parent, const LoaderTraits_s& loader, bool hasDataSet);

/// What a guest asks for; none for Cancel. Remembers the folder.
std::vector<std::string> chooseExistingFiles(QWidget* parent, const FileRequest& request);

} // namespace quorvia::host
