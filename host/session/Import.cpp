#include "session/Import.h"

#include <exception>
#include <new>
#include <optional>
#include <utility>

#include "state/GuestWatch.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

// A string list that a loader borrows for its run.
class BorrowedList {
public:
    BorrowedList(HostState_s& host, const std::vector<std::string>& texts) : host_(host) {
        GuestStringList_s list;
        list.isHostOwned = true;
        list.strings.assign(texts.begin(), texts.end());
        handle_ = host_.handles.of(handle_).add("QuorUtilStringListAlloc", std::move(list));
    }
    ~BorrowedList() { host_.handles.of(handle_).remove(handle_); }
    BorrowedList(const BorrowedList&) = delete;
    BorrowedList& operator=(const BorrowedList&) = delete;

    QuorStringListHandle get() const { return handle_; }

private:
    HostState_s& host_;
    QuorStringListHandle handle_ = nullptr;
};

/// The same with the exception's own words, if there is memory for them.
void tellWhat(std::string& error, const std::exception& exception) {
    try {
        error = joined("The add-on has thrown an exception: ", exception.what());
    } catch (const std::bad_alloc&) { // it is told as it is
    }
}

// Running out of memory is the one exception that a loader may let through.
template <typename Callback>
bool callLoader(HostState_s& host, Callback callback, std::string& error) {
    // In words before it happens: afterwards there may be no memory for them.
    std::string memoryRanOut = "The add-on ran out of memory.";
    std::string somethingWasThrown = "The add-on has thrown an exception.";
    try {
        return callback();
    } catch (const std::bad_alloc&) {
        error = std::move(memoryRanOut);
    } catch (const std::exception& exception) {
        host.addViolation("The add-on has thrown an exception: ", exception.what());
        error = std::move(somethingWasThrown);
        tellWhat(error, exception);
    } catch (...) {
        host.addViolation(somethingWasThrown);
        error = std::move(somethingWasThrown);
    }
    return false;
}

/// Whether instructions were handed over is asked of one import; then of all again.
class HandOverWatch {
public:
    explicit HandOverWatch(HostLog_s& log)
        : log_(log), before_(std::exchange(log.instructionsHandedOver, false)) {}
    ~HandOverWatch() { log_.instructionsHandedOver |= before_; }
    HandOverWatch(const HandOverWatch&) = delete;
    HandOverWatch& operator=(const HandOverWatch&) = delete;

private:
    HostLog_s& log_;
    bool before_;
};

// Runs a loader's callback on a borrowed list and watches it.
template <typename Callback>
LoadResult_s runLoader(HostState_s& host, const std::vector<std::string>& texts,
                       Callback callback) {
    LoadResult_s result;
    const BorrowedList list(host, texts);
    host.faults.restartSteps();
    GuestWatch watch(host);
    result.ok = callLoader(
        host, [&] { return callback(list.get()); }, result.hostError);
    watch.finish();
    result.interrupted =
        host.faults.isInterrupted() || (!result.ok && host.faults.wasInterrupted());
    host.faults.endInterruption();
    return result;
}

LoadResult_s notRun(std::string why) {
    LoadResult_s result;
    result.hostError = std::move(why);
    return result;
}

} // namespace

LoadResult_s runSelection(HostState_s& host, const std::vector<std::string>& files, bool advanced,
                          bool append) {
    if (host.loaders.empty())
        return notRun("No data loader is registered.");
    const Loader_s& loader = host.loaders.back();
    if (files.size() > 1 && !loader.allowsSeveralFiles)
        return notRun("The loader \"" + loader.name + "\" takes one file at a time.");
    if (advanced && !loader.allowsAdvancedOptions)
        return notRun("The loader \"" + loader.name + "\" has no advanced options.");
    if (append && !loader.allowsAppending)
        return notRun("The loader \"" + loader.name + "\" can't append.");

    const QuorLoaderSelectedCallback select = loader.select; // the guest may register another
    const HandOverWatch watch(host.log);
    return runLoader(host, files, [&](QuorStringListHandle list) {
        select(list, advanced, append);
        return host.log.instructionsHandedOver;
    });
}

LoadResult_s runInstructions(HostState_s& host, const std::vector<std::string>& instructions) {
    if (host.loaders.empty())
        return notRun("No data loader is registered.");
    return runInstructions(host, instructions, host.loaders.back());
}

LoadResult_s runInstructions(HostState_s& host, const std::vector<std::string>& instructions,
                             const Loader_s& loader) {
    const QuorLoaderCallback load = loader.load; // the guest may register another
    return runLoader(host, instructions, load);
}

} // namespace quorvia::host
