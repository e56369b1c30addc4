// The thread on which the guest runs: one piece of work at a time, so that no window ever waits for
// it. While work runs, the host and all that is in it belong to that thread; the windows get them
// back when the work has ended. ReferenceHost::requestInterrupt and interruptRequested alone may be
// called meanwhile.
#pragma once

#include <functional>
#include <string>
#include <thread>

#include <QObject>

namespace quorvia::host {

class GuestWork : public QObject {
public:
    using Work = std::function<void()>;
    /// Gets what the work has thrown, in words; empty if it ended as it should.
    using Afterwards = std::function<void(const std::string& failure)>;

    explicit GuestWork(QObject* parent = nullptr) : QObject(parent) {}
    /// Waits for the work, which may ask nothing of this thread any more. What would come
    /// afterwards is not called.
    ~GuestWork() override;

    bool isRunning() const { return thread_.joinable(); }
    /// Nothing may be running. Does `work` on a thread of its own; once that has ended,
    /// `afterwards` is called on this object's thread, and may start the next work.
    void start(Work work, Afterwards afterwards);
    /// Waits until nothing runs, without what would come afterwards. The guest gets answers from
    /// this thread meanwhile.
    void waitForEnd();

private:
    void finish(const std::string& failure);

    std::thread thread_;
    Afterwards afterwards_;
};

} // namespace quorvia::host
