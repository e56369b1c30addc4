// One call of a host service: every service begins by making a Call. It counts the call, asks
// whether it is to fail on purpose, demands the lock, blames bad handles by the operation's name,
// and writes the line of the transcript.
//
// A service happens whole or not at all. What needs memory is done by `serve` (or `withinMemory`),
// all of it before the first change; without memory the service fails, and that is never the
// guest's doing. Everything else here needs no memory and never throws: a transcript and a blame
// for which there is none are counted and told later (HostState_s::tellLosses).
#pragma once

#include <cstddef>
#include <new>
#include <string>

#include "state/HostState.h"

namespace quorvia::host {

class Call {
public:
    template <typename... Arguments>
    explicit Call(OperationId operation, const Arguments&... arguments) : operation_(operation) {
        begin();
        if (host().transcript.isOn())
            write([&] { beginLine({host().transcript.describe(arguments)...}); });
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    /// Whether the call is to fail on purpose; the text of the host's last error is set then.
    bool fails() noexcept;
    OperationId operation() const { return operation_; }
    HostState_s& host() const { return host_; }

    /// What `work` gives. If it runs out of memory, or the call is to fail on purpose, `failure`.
    template <typename Result, typename Work>
    Result withinMemory(Result failure, Work work) {
        if (fails())
            return failure;
        try {
            return work();
        } catch (const std::bad_alloc&) {
            refuse("no memory");
            return failure;
        }
    }
    /// The same, written into the transcript.
    template <typename Result, typename Work>
    Result serve(Result failure, Work work) {
        return result(withinMemory(failure, work));
    }
    template <typename Work>
    bool serve(Work work) {
        return serve(false, work);
    }
    /// For services that have no result and can't be made to fail: without memory nothing happens.
    template <typename Work>
    void tryTo(Work work) {
        try {
            work();
        } catch (const std::bad_alloc&) {
            refuse("no memory");
        }
    }

    // The texts come in parts (checks/TextParts), so that they are put together here.

    /// Counts a breach of the contract.
    template <typename... Parts>
    void violation(const Parts&... what) noexcept {
        host_.addViolation(operation_.name(), ": ", what...);
    }
    /// Keeps the text as the host's last error; gives false.
    template <typename... Parts>
    bool refuse(const Parts&... why) noexcept {
        host_.keepLastError(operation_.name(), ": ", why...);
        return false;
    }
    /// Both: the guest should not have asked, and gets a failure.
    template <typename... Parts>
    bool violate(const Parts&... what) noexcept {
        violation(what...);
        return refuse(what...);
    }

    /// What stands behind a handle; null, and a violation, if it is not one of its kind.
    template <typename Handle>
    auto* object(Handle handle) noexcept {
        auto* found = host().handles.of(handle).find(handle);
        if (found == nullptr)
            violate([&] { return host().handles.whyInvalid(handle); });
        return found;
    }
    /// Takes the handle out of use and nulls it; null is allowed.
    template <typename Handle>
    void giveBack(Handle* handle) noexcept {
        if (handle == nullptr) {
            violation("reference is null");
            return;
        }
        if (*handle != nullptr && object(*handle) != nullptr)
            host().handles.of(*handle).remove(*handle);
        *handle = nullptr;
    }

    /// The data set; null, and a violation, if there is none.
    DataSet* dataSet() noexcept;
    Zone_s* zone(std::int32_t number) noexcept;
    const Variable_s* variable(std::int32_t number) noexcept;
    Field_s* field(std::int32_t zoneNumber, std::int32_t variableNumber) noexcept;

    /// Writes the result into the transcript and passes it on.
    template <typename Result>
    Result result(Result value) noexcept {
        note([&] { return host().transcript.describe(value); });
        return value;
    }
    /// The same for a result that comes through an out argument.
    template <typename Result>
    void out(const Result& value) noexcept {
        note([&] { return host().transcript.describe(value); });
    }

    /// Adds what `text` gives to the line of the transcript, if there is one.
    template <typename Text>
    void note(Text text) noexcept {
        if (line_ != 0)
            write([&] { endLine(text()); });
    }

private:
    void begin() noexcept;
    template <typename Work>
    void write(Work work) noexcept {
        try {
            work();
        } catch (const std::bad_alloc&) {
            ++host_.log.lostLines;
        }
    }
    void beginLine(std::initializer_list<std::string> arguments);
    void endLine(const std::string& resultText);

    OperationId operation_;
    HostState_s& host_ = hostState();
    bool fails_ = false;
    std::size_t line_ = 0; // number of the line in the transcript, from 1; 0 for none
    bool hasResult_ = false;
};

} // namespace quorvia::host
