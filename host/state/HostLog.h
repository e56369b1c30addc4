// What happened at the host since it was last reset, in order: all that a user would have seen, and
// all that a guest did against the contract. Most services have nobody whom they could tell that
// the log has no memory: it keeps room ahead, and counts what it could not keep all the same.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "state/Spare.h"
#include "state/TextLog.h"

namespace quorvia::host {

enum class MessageKind_e { Error, Information, Question };

struct Message_s {
    MessageKind_e kind = MessageKind_e::Error;
    std::string text;
    std::optional<bool> answer; // of a question: true for OK or Yes
};

struct StateChange_s {
    std::int32_t code = 0; // QuorStateChange_e
    std::vector<std::int64_t> members;
};

enum class UndoKind_e { Begin, End };

struct UndoEvent_s {
    UndoKind_e kind = UndoKind_e::Begin;
    std::int32_t category = 0;   // of a begin
    std::optional<bool> success; // of an end
};

struct HostLog_s {
    HostLog_s();

    std::vector<Message_s> messages;
    TextLog progress;                        // every text that a progress bar showed
    std::vector<std::string> instructions;   // the list handed over last, also when it was refused
    bool instructionsHandedOver = false;     // some list was handed over and the host took it
    std::vector<StateChange_s> stateChanges; // told by the guest
    std::vector<UndoEvent_s> undo;
    std::int64_t redraws = 0;
    std::vector<std::vector<std::int64_t>> autoStyledZones; // one entry for each call
    std::vector<std::string> helpTargets;
    std::int64_t solutionTimeNotifications = 0; // many changes that were held back make one
    std::vector<std::string> violations;        // each begins with the operation's name
    std::vector<std::string> transcript; // one line for each call, while recording is switched on

    // What there was no memory for, and nobody was told of yet (HostState_s::tellLosses).
    std::int64_t lostEntries = 0; // of the log, or parts of them
    std::int64_t lostViolations = 0;
    std::int64_t lostLines = 0; // of the transcript, or parts of them

    // None of these fails. Texts are copied.

    /// False: it could not be kept.
    bool addMessage(MessageKind_e kind, std::string_view text, std::optional<bool> answer) noexcept;
    void addStateChange(std::int32_t code, const std::set<std::int64_t>& members) noexcept;
    void addUndo(const UndoEvent_s& event) noexcept;
    void addAutoStyled(const std::set<std::int64_t>& zones) noexcept;
    void addHelpTarget(std::string_view target) noexcept;

private:
    template <typename Entry>
    bool add(std::vector<Entry>& entries, Entry entry) noexcept;
    std::string copyOf(std::string_view text) noexcept;
    std::vector<std::int64_t> copyOf(const std::set<std::int64_t>& numbers) noexcept;

    Spare<std::string> spareText_;
    Spare<std::vector<std::int64_t>> spareNumbers_;
};

} // namespace quorvia::host
