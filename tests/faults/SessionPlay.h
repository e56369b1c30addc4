// Plays a session on the built library, from the opening of the library to its unloading, and holds
// what comes of it against the play without faults.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "describe/Outcome.h"
#include "faults/Faults.h"
#include "faults/Session.h"

namespace quorvia::testsupport {

/// What a step of a session has left: everything that a user of the host can see of it.
struct Standing_s {
    std::optional<host::DataSetOutcome_s> dataSet; // with the statistics and CRC-32 of every field
    std::int32_t plotType = 0;
    Texts instructions;
    std::int64_t messages = 0; // by messagesShown, in this step

    /// But for the messages.
    friend bool operator==(const Standing_s& left, const Standing_s& right) {
        return left.dataSet == right.dataSet && left.plotType == right.plotType &&
               left.instructions == right.instructions;
    }
};

/// One entry for each step.
using Reference = std::vector<Standing_s>;

/// Without faults. Throws std::runtime_error if a step fails, or the add-on breaks the contract.
Reference playWithoutFaults(const Session_s& session);

/// Plays under the fault, up to and with the first step that is refused, then fetches every value,
/// unloads them, resets the frame and unloads the library; behind it the session is played once
/// more without a fault. Gives what was wrong, or nothing: a step comes out like the reference, or
/// it is refused, with a message, and leaves what its kind allows; a value is fetched as it is in
/// the reference, or not at all; nothing leaks, and the contract is kept.
/// `progress` always says, zero-terminated, how far the play has come.
std::string playUnderFault(const Session_s& session, const Reference& reference, Fault_e fault,
                           std::int64_t n, const char** progress);

} // namespace quorvia::testsupport
