#include "app/macro/Macro.h"

namespace quorvia::host {

bool needsAddOn(const MacroCommand& command) {
    return std::holds_alternative<SelectCommand_s>(command) ||
           std::holds_alternative<InstructionsCommand_s>(command) ||
           std::holds_alternative<ReplayCommand_s>(command) ||
           std::holds_alternative<StateChangeCommand_s>(command) ||
           std::holds_alternative<DescribeCommand_s>(command);
}

} // namespace quorvia::host
