// What a read on demand needs of a source file, shared by all fields of the file, so that nothing
// of a load has to outlive it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Nothing writes it after its creation. Lives until the last field of the file has let go of it.
struct Plot3DVariable_s : Plot3DRecordForm_s {
    std::string fileName;
};

/// A cache while one file set is set up: one Plot3DVariable_s for each Plot3DFile_s. The key is an
/// address, so no entry may outlive the records of a load.
class Plot3DVarRepo {
public:
    virtual ~Plot3DVarRepo() = default;

    /// The one of the process.
    static Plot3DVarRepo& instance();

    /// The file's shared record, made at the first call. `file` is borrowed. Throws std::bad_alloc;
    /// nothing is kept then.
    std::shared_ptr<Plot3DVariable_s> getVariable(const Plot3DFile_s& file);
    /// Drops all entries.
    void clear();

private:
    struct Entry_s {
        const Plot3DFile_s* file;
        std::shared_ptr<Plot3DVariable_s> variable;
    };
    std::vector<Entry_s> entries_; // a file set has few files
};

/// Empties the repository of the process when its scope ends.
class VarRepoClearing {
public:
    VarRepoClearing() = default;
    ~VarRepoClearing() { Plot3DVarRepo::instance().clear(); }
    VarRepoClearing(const VarRepoClearing&) = delete;
    VarRepoClearing& operator=(const VarRepoClearing&) = delete;
};

} // namespace quorvia::quorutildataio
