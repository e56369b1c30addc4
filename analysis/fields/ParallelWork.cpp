#include "analysis/fields/ParallelWork.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <limits>
#include <mutex>
#include <thread>
#include <vector>

#include <plot3d/Error.h>

namespace plot3d::analysis {
namespace {

constexpr std::size_t caller = 0;

class Work {
public:
    Work(std::size_t count, const WorkOnIndex& work, const WorkWatch_s& watch)
        : count_(count), work_(work), watch_(watch) {}

    void goOn(std::size_t worker) noexcept {
        for (std::size_t index = next_++; index < count_ && mayGoOn(); index = next_++)
            doOne(index, worker);
    }

    void throwFailure() const {
        if (failure_)
            std::rethrow_exception(failure_);
        if (watch_.stop.stop_requested())
            throw Error(ErrorKind::Interrupted, "stopped");
    }

private:
    bool mayGoOn() const { return !hasFailed_ && !watch_.stop.stop_requested(); }

    void doOne(std::size_t index, std::size_t worker) noexcept {
        try {
            work_(index, worker);
            const std::size_t done = ++done_;
            if (worker == caller && watch_.progress)
                watch_.progress(static_cast<double>(done) / static_cast<double>(count_));
        } catch (...) {
            keep(index, std::current_exception());
        }
    }

    void keep(std::size_t index, std::exception_ptr failure) {
        const std::lock_guard lock(failureLock_);
        if (index < failedIndex_) {
            failedIndex_ = index;
            failure_ = std::move(failure);
        }
        hasFailed_ = true;
    }

    std::size_t count_;
    const WorkOnIndex& work_;
    const WorkWatch_s& watch_;
    std::atomic<std::size_t> next_ = 0;
    std::atomic<std::size_t> done_ = 0;
    std::atomic<bool> hasFailed_ = false;
    std::mutex failureLock_;
    std::size_t failedIndex_ = std::numeric_limits<std::size_t>::max();
    std::exception_ptr failure_;
};

} // namespace

int coreCount() {
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

void inParallel(std::size_t count, int threads, const WorkOnIndex& work, const WorkWatch_s& watch) {
    Work all(count, work, watch);
    {
        std::vector<std::jthread> helpers;
        const std::size_t workers = std::min(static_cast<std::size_t>(threads), count);
        for (std::size_t helper = caller + 1; helper < workers; ++helper)
            helpers.emplace_back([&all, helper] { all.goOn(helper); });
        all.goOn(caller);
    }
    all.throwFailure();
}

} // namespace plot3d::analysis
