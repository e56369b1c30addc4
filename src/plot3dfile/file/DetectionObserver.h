// Looks on while a file's structure is found.
#pragma once

namespace quorvia::quorutildataio {

struct Plot3DFile_s;

class DetectionObserver {
public:
    virtual ~DetectionObserver() = default;

    /// A reading was tried: it stands in the record, and what did not fit in its `misfit`. `fits`:
    /// nothing did not. True: the reading is taken, which ends the search; whoever only looks on
    /// gives `fits`. False (not told): it is not, and the search goes on.
    [[nodiscard]] virtual bool takesTrial(const Plot3DFile_s& file, bool fits) = 0;

    /// Asked in the host's place, after every 64 MiB of a walk over records. False (not told):
    /// stop.
    [[nodiscard]] virtual bool goesOn() = 0;
};

} // namespace quorvia::quorutildataio
