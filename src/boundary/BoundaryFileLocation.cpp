#include "boundary/BoundaryFileLocation.h"

#include <string>

#include "plot3dfile/bytes/FileSystem.h"
#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

bool findBoundaryFile(Plot3DLoadOptions_s& options) {
    options.boundaryFile.clear();
    if (options.gridFiles.empty())
        return false;
    for (const char* extension : {".fvbnd", ".FVBND"}) {
        const std::string name = options.gridFiles.front() + extension;
        if (fileSystem().open(name) != nullptr) {
            options.boundaryFile = name;
            return true;
        }
        if (fileSystem().hasFile(name)) // it would be missed, where nobody asked for it by name
            QuorUtilDialogErrMsg(cannotOpenText(name).c_str());
    }
    return false;
}

} // namespace quorvia::quorutildataio
