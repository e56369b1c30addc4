#include "session/ReferenceHost.h"

#include <new>
#include <stdexcept>
#include <utility>

#include "session/Import.h"
#include "state/GuestWatch.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

constexpr const char* outOfMemory = "Out of memory."; // so short a text needs none

OperationId operationNamed(std::string_view name) {
    const std::optional<std::size_t> index = findOperation(name);
    if (!index.has_value())
        throw std::invalid_argument("no operation is called " + std::string(name));
    return OperationId::at(*index);
}

std::vector<std::string> namesWhere(bool (*isWanted)(const OperationTraits_s&)) {
    std::vector<std::string> names;
    for (const OperationTraits_s& traits : detail::operationTable) {
        if (isWanted(traits))
            names.emplace_back(traits.name);
    }
    return names;
}

std::string joinedErrors(const std::vector<Message_s>& messages, std::size_t first) {
    std::string joined;
    for (std::size_t index = first; index < messages.size(); ++index) {
        if (messages[index].kind == MessageKind_e::Error)
            joined += (joined.empty() ? "" : "\n") + messages[index].text;
    }
    return joined;
}

std::string whyNotFetched(const std::vector<Message_s>& messages, std::size_t first,
                          bool isInterrupted) {
    try {
        std::string errors = joinedErrors(messages, first);
        if (!errors.empty())
            return errors;
        return isInterrupted ? "The fetch was interrupted." : "The values could not be read.";
    } catch (const std::bad_alloc&) {
        return outOfMemory;
    }
}

/// What the import gives; a loader's want of memory is told by the import itself.
template <typename Run>
LoadResult_s import(Run run) {
    try {
        return run();
    } catch (const std::bad_alloc&) {
        LoadResult_s result;
        result.hostError = outOfMemory;
        return result;
    }
}

} // namespace

// Never destroyed, like the host itself: guests that are linked in may still give things back after
// main has ended.
HostState_s& hostState() {
    static HostState_s* const state = new HostState_s;
    return *state;
}

ReferenceHost::ReferenceHost() : state_(hostState()) {}

ReferenceHost& ReferenceHost::instance() {
    static ReferenceHost* const host = new ReferenceHost;
    return *host;
}

void ReferenceHost::reset() {
    HostState_s& host = state_;
    host.frames.startAnew();
    host.cache.dropAll();
    host.settings = {};
    host.log = HostLog_s();
    host.faults.clear();
    host.transcript.turnOn(false);
    host.entryLockDepth = 0;
    host.guestLockDepth = 0;
    host.openUndoStates = 0;
    host.solutionTimesChanged = false;
    host.lastError.clear();
    host.toolkit.closeAll();
    host.script.reset();
    host.user = &host.script;
    host.resetSerial = host.serials.last();
}

void ReferenceHost::clearLog() {
    state_.log = HostLog_s();
}

HostSettings_s& ReferenceHost::settings() {
    return state_.settings;
}

const HostLog_s& ReferenceHost::log() const {
    state_.tellLosses();
    return state_.log;
}

Frame& ReferenceHost::frame() {
    return state_.frame();
}

const std::vector<std::unique_ptr<Frame>>& ReferenceHost::frames() const {
    return state_.frames.all();
}

Frame& ReferenceHost::addFrame() {
    return state_.frames.add();
}

void ReferenceHost::makeCurrent(Frame& frame) {
    state_.frames.makeCurrent(frame);
}

void ReferenceHost::closeFrame(Frame& frame) {
    state_.frames.close(frame);
}

std::int64_t ReferenceHost::lockDepth() const {
    return state_.lockDepth();
}

std::int64_t ReferenceHost::fetchedBytes() const {
    return state_.cache.bytesInMemory();
}

const std::vector<Loader_s>& ReferenceHost::loaders() const {
    return state_.loaders;
}

std::vector<std::string> ReferenceHost::loaderNames() const {
    std::vector<std::string> names;
    for (const Loader_s& loader : state_.loaders)
        names.push_back(loader.name);
    return names;
}

LoadResult_s ReferenceHost::importSelection(const std::vector<std::string>& files, bool advanced,
                                            bool append) {
    return import([&] { return runSelection(state_, files, advanced, append); });
}

LoadResult_s ReferenceHost::importInstructions(const std::vector<std::string>& instructions) {
    return import([&] { return runInstructions(state_, instructions); });
}

LoadResult_s ReferenceHost::importInstructions(const std::vector<std::string>& instructions,
                                               const Loader_s& loader) {
    return import([&] { return runInstructions(state_, instructions, loader); });
}

void ReferenceHost::setAnswers(std::deque<bool> answers, bool afterwards) {
    state_.script.setAnswers(std::move(answers), afterwards);
}

void ReferenceHost::setFileChoices(std::deque<std::vector<std::string>> choices) {
    state_.script.setFileChoices(std::move(choices));
}

void ReferenceHost::setUser(User* user) {
    state_.user = user != nullptr ? user : &state_.script;
}

ScriptedUser& ReferenceHost::script() {
    return state_.script;
}

const Toolkit& ReferenceHost::toolkit() const {
    return state_.toolkit;
}

void ReferenceHost::requestInterrupt() noexcept {
    state_.faults.interrupt();
}

bool ReferenceHost::interruptRequested() const noexcept {
    return state_.faults.isInterrupted();
}

FetchResult_s ReferenceHost::fetch(std::int32_t zone, std::int32_t variable) {
    FetchResult_s result;
    const DataSet* data = state_.frame().dataSet();
    const Field_s* field = data != nullptr ? data->field(zone, variable) : nullptr;
    if (field == nullptr || field->storage == nullptr) {
        result.error = field == nullptr ? "There is no such field." : "The field is empty.";
        return result;
    }
    const std::shared_ptr<FieldStorage> storage = field->storage;
    const std::size_t messagesBefore = state_.log.messages.size();
    result.ok = state_.fetch(*storage);
    if (!result.ok) {
        result.error = whyNotFetched(state_.log.messages, messagesBefore, interruptRequested());
        return result;
    }
    result.values = storage->values();
    result.count = storage->valueCount();
    result.type = storage->type();
    return result;
}

bool ReferenceHost::unload(std::int32_t zone, std::int32_t variable) {
    const DataSet* data = state_.frame().dataSet();
    const Field_s* field = data != nullptr ? data->field(zone, variable) : nullptr;
    return field != nullptr && field->storage != nullptr && state_.cache.drop(*field->storage);
}

void ReferenceHost::unloadAll() {
    state_.cache.dropAll();
}

void ReferenceHost::sendStateChange(std::int32_t code) {
    state_.callStateChangeCallbacks(code);
}

void ReferenceHost::failCall(std::string_view operation, std::int64_t n) {
    state_.faults.failCall(operationNamed(operation), n);
}

std::int64_t ReferenceHost::callCount(std::string_view operation) const {
    return state_.faults.calls(operationNamed(operation));
}

void ReferenceHost::interruptAtStep(std::int64_t n) {
    state_.faults.interruptAtStep(n);
}

std::int64_t ReferenceHost::stepCount() const {
    return state_.faults.steps();
}

void ReferenceHost::clearFaults() {
    state_.faults.clear();
}

std::vector<std::string> ReferenceHost::operationNames() {
    return namesWhere([](const OperationTraits_s&) { return true; });
}

std::vector<std::string> ReferenceHost::operationsThatCanFail() {
    return namesWhere(
        [](const OperationTraits_s& traits) { return traits.failure == Failure_e::Possible; });
}

void ReferenceHost::recordTranscript(bool on) {
    state_.transcript.turnOn(on);
    if (on)
        state_.log.transcript.clear();
}

void ReferenceHost::checkForLeaks() {
    GuestWatch::sinceRest(state_, state_.resetSerial).finish();
}

} // namespace quorvia::host
