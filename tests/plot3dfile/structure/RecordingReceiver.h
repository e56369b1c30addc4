// A receiver that writes down each item of a walk, with the position of its first value, and
// consumes it as the loader would.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plot3dfile/layout/LayoutParsers.h"

namespace quorvia::quorutildataio {

class RecordingReceiver {
public:
    struct Item_s {
        std::string text; // "variable 2 grid 0 zone 0 in plane -1"
        Plot3DItemKind_e kind;
        std::int32_t grid;
        std::int32_t varIndex;
        std::int32_t plane;
        std::int64_t position; // of the first value, in bytes from the file's start
    };

    std::vector<Item_s> items;
    std::int64_t stopAfter = -1; // items, then the walk is stopped; negative: never
    bool takesTimes = true;

    /// Borrows this receiver.
    Plot3DItemReceiver_s receiver();

    /// The texts of all items, in order.
    std::vector<std::string> texts() const;

private:
    static bool takeItem(Plot3DFile_s& file, Plot3DItemKind_e kind, std::int32_t grid,
                         std::int32_t zone, bool include, std::int32_t varIndex, std::int32_t plane,
                         bool report, void* clientData);
    static bool takeTime(Plot3DFile_s& file, std::int32_t zone, bool include, void* clientData);
    bool note(Item_s item);
};

} // namespace quorvia::quorutildataio
