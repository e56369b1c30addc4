#include "boundary/BoundaryFileLocation.h"

#include <string>

#include "plot3dfile/bytes/FileSystem.h"

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
    }
    return false;
}

} // namespace quorvia::quorutildataio
