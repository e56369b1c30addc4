// What happened at the host since it was last reset, in order: all that a user would have seen, and
// all that a guest did against the contract.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "state/TextLog.h"

namespace quorvia::host {

enum class MessageKind { Error, Information, Question };

struct Message {
    MessageKind kind = MessageKind::Error;
    std::string text;
    std::optional<bool> answer; // of a question: true for OK or Yes
};

struct StateChange {
    std::int32_t code = 0; // QuorStateChange_e
    std::vector<std::int64_t> members;
};

enum class UndoKind { Begin, End };

struct UndoEvent {
    UndoKind kind = UndoKind::Begin;
    std::int32_t category = 0;   // of a begin
    std::optional<bool> success; // of an end
};

struct HostLog {
    std::vector<Message> messages;
    TextLog progress;                      // every text that a progress bar showed
    std::vector<std::string> instructions; // the list handed over last, also when it was refused
    bool instructionsHandedOver = false;   // some list was handed over and the host took it
    std::vector<StateChange> stateChanges; // told by the guest
    std::vector<UndoEvent> undo;
    std::int64_t redraws = 0;
    std::vector<std::vector<std::int64_t>> autoStyledZones; // one entry for each call
    std::vector<std::string> helpTargets;
    std::int64_t solutionTimeNotifications = 0; // many changes that were held back make one
    std::vector<std::string> violations;        // each begins with the operation's name
    std::vector<std::string> transcript; // one line for each call, while recording is switched on
};

} // namespace quorvia::host
