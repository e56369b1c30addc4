// The commands of a macro in few words, for the account that people read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/macro/Macro.h"
#include "describe/Outcome.h"

namespace quorvia::host {

/// The command's name and what matters most of it. Texts stand as they came.
std::string commandText(const MacroCommand& command);

/// "3 zones, 6 variables", or "no data set".
std::string sizeText(const std::optional<DataSetOutcome_s>& dataSet);

/// "1 zone", "3 zones".
std::string counted(std::size_t count, std::string_view thing);

} // namespace quorvia::host
