// Work for a window on a thread of its own, so that the window never waits for it. What is asked
// for last counts: it stops and replaces what was asked for before.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <thread>

#include <QObject>

#include <plot3d/Watch.h>

namespace quorvia::host {

class LatestWork : public QObject {
public:
    /// What comes of the work; called on this object's thread, unless other work has come since.
    using Finish = std::function<void()>;
    /// Called on the thread of the work. May throw; an Error of kind Interrupted means that it was
    /// stopped.
    using Work = std::function<Finish(const plot3d::Watch& watch)>;
    /// Gets what the last work has thrown, in words, or nothing if it was cancelled.
    using Failed = std::function<void(const std::optional<std::string>& failure)>;
    /// Called on the thread of the work with all that it tells.
    using Observer = std::function<void(const plot3d::Progress& progress)>;

    explicit LatestWork(Failed failed);
    /// Stops the work and waits for it. Nothing is called any more.
    ~LatestWork() override;

    void start(Work work);
    /// Stops the last work; `failed` then gets nothing, unless it ends well all the same.
    void cancel();
    /// Whether what the last work ends with is still to come.
    bool isRunning() const { return ended_ != asked_; }

    struct State_s {
        std::string text;
        double fraction = 0; // from 0 to 1
    };
    /// How far the work has come.
    State_s state() const;
    /// For tests, in which work must stand still until somebody has acted.
    void setObserver(Observer observer);

private:
    struct Wish_s {
        std::int64_t number = 0;
        Work work;
        std::stop_source stop;
    };
    void run();
    void carryOut(Wish_s& wish);
    void tell(const plot3d::Progress& progress);
    void end(std::int64_t number, const Finish& finish);

    Failed failed_;
    std::int64_t asked_ = 0; // number of the last wish
    std::int64_t ended_ = 0; // the last wish whose end is known here
    mutable std::mutex mutex_;
    std::condition_variable wished_;
    std::optional<Wish_s> next_;
    std::stop_source stop_; // of the last wish
    State_s state_;
    Observer observer_;
    bool leaves_ = false;
    std::thread thread_; // last: it uses all the others
};

} // namespace quorvia::host
