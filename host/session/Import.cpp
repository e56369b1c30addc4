#include "session/Import.h"

#include <exception>
#include <new>
#include <optional>

#include "state/GuestWatch.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

// A string list that a loader borrows for its run.
class BorrowedList {
public:
    BorrowedList(HostState& host, const std::vector<std::string>& texts) : host_(host) {
        GuestStringList list;
        list.isHostOwned = true;
        list.strings.assign(texts.begin(), texts.end());
        handle_ = host_.handles.of(handle_).add("QuorUtilStringListAlloc", std::move(list));
    }
    ~BorrowedList() { host_.handles.of(handle_).remove(handle_); }
    BorrowedList(const BorrowedList&) = delete;
    BorrowedList& operator=(const BorrowedList&) = delete;

    QuorStringListHandle get() const { return handle_; }

private:
    HostState& host_;
    QuorStringListHandle handle_ = nullptr;
};

// Runs a loader's callback on a borrowed list and watches it. Running out of memory is the one
// exception that a loader may let through.
template <typename Callback>
LoadResult runLoader(HostState& host, const std::vector<std::string>& texts, Callback callback) {
    LoadResult result;
    host.faults.restartSteps();
    GuestWatch watch(host);
    try {
        const BorrowedList list(host, texts);
        result.ok = callback(list.get());
    } catch (const std::bad_alloc&) {
        result.hostError = "The add-on ran out of memory.";
    } catch (const std::exception& exception) {
        result.hostError = std::string("The add-on has thrown an exception: ") + exception.what();
        host.addViolation(result.hostError);
    } catch (...) {
        result.hostError = "The add-on has thrown an exception.";
        host.addViolation(result.hostError);
    }
    watch.finish();
    result.interrupted =
        host.faults.isInterrupted() || (!result.ok && host.faults.wasInterrupted());
    host.faults.endInterruption();
    return result;
}

LoadResult notRun(std::string why) {
    LoadResult result;
    result.hostError = std::move(why);
    return result;
}

} // namespace

LoadResult runSelection(HostState& host, const std::vector<std::string>& files, bool advanced,
                        bool append) {
    if (host.loaders.empty())
        return notRun("No data loader is registered.");
    const Loader loader = host.loaders.back();
    if (files.size() > 1 && !loader.allowsSeveralFiles)
        return notRun("The loader \"" + loader.name + "\" takes one file at a time.");
    if (advanced && !loader.allowsAdvancedOptions)
        return notRun("The loader \"" + loader.name + "\" has no advanced options.");
    if (append && !loader.allowsAppending)
        return notRun("The loader \"" + loader.name + "\" can't append.");

    const bool handedOverBefore = host.log.instructionsHandedOver;
    host.log.instructionsHandedOver = false;
    LoadResult result = runLoader(host, files, [&](QuorStringListHandle list) {
        loader.select(list, advanced, append);
        return host.log.instructionsHandedOver;
    });
    host.log.instructionsHandedOver |= handedOverBefore;
    return result;
}

LoadResult runInstructions(HostState& host, const std::vector<std::string>& instructions) {
    if (host.loaders.empty())
        return notRun("No data loader is registered.");
    const Loader loader = host.loaders.back();
    return runLoader(host, instructions,
                     [&](QuorStringListHandle list) { return loader.load(list); });
}

} // namespace quorvia::host
