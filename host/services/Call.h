// One call of a host service: every service begins by making a Call. It counts the call, asks
// whether it is to fail on purpose, demands the lock, blames bad handles by the operation's name,
// and writes the line of the transcript.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "state/HostState.h"

namespace quorvia::host {

class Call {
public:
    template <typename... Arguments>
    explicit Call(OperationId operation, const Arguments&... arguments) : operation_(operation) {
        begin();
        if (host().transcript.isOn())
            beginLine({host().transcript.describe(arguments)...});
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    /// Whether the call is to fail on purpose; the text of the host's last error is set then.
    bool fails();
    OperationId operation() const { return operation_; }
    HostState& host() const { return host_; }

    /// Counts a breach of the contract.
    void violation(std::string_view what);
    /// Keeps `why` as the host's last error; gives false.
    bool refuse(std::string_view why);
    /// Both: the guest should not have asked, and gets a failure.
    bool violate(std::string_view what);

    /// What stands behind a handle; null, and a violation, if it is not one of its kind.
    template <typename Handle>
    auto* object(Handle handle) {
        auto* found = host().handles.of(handle).find(handle);
        if (found == nullptr)
            violate(host().handles.whyInvalid(handle));
        return found;
    }
    /// Takes the handle out of use and nulls it; null is allowed.
    template <typename Handle>
    void giveBack(Handle* handle) {
        if (handle == nullptr) {
            violation("reference is null");
            return;
        }
        if (*handle != nullptr && object(*handle) != nullptr)
            host().handles.of(*handle).remove(*handle);
        *handle = nullptr;
    }

    /// The data set; null, and a violation, if there is none.
    DataSet* dataSet();
    Zone* zone(std::int32_t number);
    const Variable* variable(std::int32_t number);
    Field* field(std::int32_t zoneNumber, std::int32_t variableNumber);

    /// Writes the result into the transcript and passes it on.
    template <typename Result>
    Result result(Result value) {
        if (line_ != 0)
            endLine(host().transcript.describe(value));
        return value;
    }
    /// The same for a result that comes through an out argument.
    template <typename Result>
    void out(const Result& value) {
        result(value);
    }

    /// Adds what `text` gives to the line of the transcript, if there is one.
    template <typename Text>
    void note(Text text) {
        if (line_ != 0)
            endLine(text());
    }

private:
    void begin();
    void beginLine(std::initializer_list<std::string> arguments);
    void endLine(const std::string& resultText);

    OperationId operation_;
    HostState& host_ = hostState();
    bool fails_ = false;
    std::size_t line_ = 0; // number of the line in the transcript, from 1; 0 for none
    bool hasResult_ = false;
};

} // namespace quorvia::host
