// The texts of the dataset stage on the progress bar.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// The steps for the fields of one zone. A long list of files shows a text for each of its fields,
/// so that the words around the variable's number are put together once.
class FieldSteps {
public:
    /// Zone and grid count from 1.
    FieldSteps(std::int32_t zone, std::int32_t gridNumber, const Plot3DFile_s& file);

    /// The field of variable `var`, from 1, is about to be set up: one step on currentTask. False
    /// (not told): the user wants the load to stop.
    [[nodiscard]] bool step(std::int32_t var);

private:
    std::string text_;           // of the latest step
    std::size_t place_;          // of the variable's number
    std::size_t digitCount_ = 0; // of that number
};

/// The connectivity of a grid is about to be read: a text, no step. Numbers from 1.
void showConnectivity(std::int32_t zone, std::int32_t gridNumber, const Plot3DFile_s& file);

/// Shows `text` on currentTask, if there is one; whether to stop does not matter at such places.
void showOnCurrentTask(const char* text);

} // namespace quorvia::quorutildataio
