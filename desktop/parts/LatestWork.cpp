#include "desktop/parts/LatestWork.h"

#include <exception>
#include <new>
#include <utility>

#include <plot3d/Error.h>

namespace quorvia::host {

LatestWork::LatestWork(Failed failed) : failed_(std::move(failed)) {
    thread_ = std::thread([this] { run(); });
}

LatestWork::~LatestWork() {
    {
        const std::lock_guard lock(mutex_);
        leaves_ = true;
        stop_.request_stop();
    }
    wished_.notify_one();
    thread_.join();
}

void LatestWork::start(Work work) {
    {
        const std::lock_guard lock(mutex_);
        stop_.request_stop();
        stop_ = std::stop_source();
        next_ = Wish_s{++asked_, std::move(work), stop_};
        state_ = {};
    }
    wished_.notify_one();
}

void LatestWork::cancel() {
    const std::lock_guard lock(mutex_);
    stop_.request_stop();
}

LatestWork::State_s LatestWork::state() const {
    const std::lock_guard lock(mutex_);
    return state_;
}

void LatestWork::setObserver(Observer observer) {
    const std::lock_guard lock(mutex_);
    observer_ = std::move(observer);
}

// ---- On the thread of the work ------------------------------------------------------------------

void LatestWork::run() {
    std::unique_lock lock(mutex_);
    while (true) {
        wished_.wait(lock, [this] { return leaves_ || next_.has_value(); });
        if (leaves_)
            return;
        Wish_s wish = std::move(*next_);
        next_.reset();
        lock.unlock();
        carryOut(wish);
        lock.lock();
    }
}

void LatestWork::carryOut(Wish_s& wish) {
    const auto fail = [this](std::optional<std::string> failure) {
        return [this, failure = std::move(failure)] { failed_(failure); };
    };
    Finish finish;
    try {
        finish = wish.work({.progress = [this](const plot3d::Progress& now) { tell(now); },
                            .stop = wish.stop.get_token()});
    } catch (const plot3d::Error& error) {
        const bool isStopped = error.kind() == plot3d::ErrorKind::Interrupted;
        finish = fail(isStopped ? std::nullopt : std::optional<std::string>(error.what()));
    } catch (const std::bad_alloc&) {
        finish = fail("There is not enough memory.");
    } catch (const std::exception& exception) {
        finish = fail(exception.what());
    }
    QMetaObject::invokeMethod(
        this, [this, number = wish.number, finish = std::move(finish)] { end(number, finish); },
        Qt::QueuedConnection);
}

void LatestWork::tell(const plot3d::Progress& progress) {
    Observer observer;
    {
        const std::lock_guard lock(mutex_);
        state_ = {std::string(progress.text), progress.fraction};
        observer = observer_;
    }
    if (observer)
        observer(progress);
}

// ---- On the windows' thread ---------------------------------------------------------------------

void LatestWork::end(std::int64_t number, const Finish& finish) {
    ended_ = number;
    if (number == asked_)
        finish();
}

} // namespace quorvia::host
