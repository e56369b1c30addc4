// The host's small C++ utility library: progress, held-back notifications, an owning string list,
// file names for the platform, and the exception of an interrupted operation. It is part of the
// host, like the operations of QuorUtil.h, and the second half of the contract.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>

#include "quorvia/QuorUtil.h"

// An exception type is one type on both sides of a library border only if its type information is.
#define QUORVIA_HOST_API __attribute__((visibility("default")))

namespace quorvia {

/// One task on a progress bar. The order of the virtual operations is part of the contract.
class QUORVIA_HOST_API TaskProgress {
public:
    virtual ~TaskProgress();

    /// Makes a task that takes a share of this one's bar in proportion to `weight`; gives
    /// `subTask`, which now owns it. A sub-task must end before its parent. Throws std::bad_alloc;
    /// `subTask` is as it was then.
    virtual std::unique_ptr<TaskProgress>& createSubTask(std::unique_ptr<TaskProgress>& subTask,
                                                         std::int64_t weight) = 0;
    /// How many calls of step() and stepWithMessage() fill the task's share of the bar.
    virtual void setStepCount(std::int64_t steps) = 0;
    /// Shows the text, if there is memory to. False: the user wants the operation to stop.
    virtual bool setMessage(const std::string& text) = 0;
    /// One step is done. False: stop.
    virtual bool step() = 0;
    /// One step is done, and the text shows the next; neither without memory. False: stop.
    virtual bool stepWithMessage(const std::string& text) = 0;
};

/// The top task of a new progress bar of so many steps; the bar closes with it. It may be made and
/// used without the lock, for the sake of load callbacks. Throws std::bad_alloc.
QUORVIA_HOST_API std::unique_ptr<TaskProgress> createTaskProgressBar(std::int64_t steps);

/// While one lives, the host holds back its notifications about solution times. It may be made and
/// destroyed without the lock.
class QUORVIA_HOST_API SolutionTimeNotificationDeferrer {
public:
    SolutionTimeNotificationDeferrer();
    ~SolutionTimeNotificationDeferrer();
    SolutionTimeNotificationDeferrer(const SolutionTimeNotificationDeferrer&) = delete;
    SolutionTimeNotificationDeferrer& operator=(const SolutionTimeNotificationDeferrer&) = delete;
};

/// Owning wrapper of a host string list.
class QUORVIA_HOST_API StringList {
public:
    /// Throws std::bad_alloc if the host gives no list.
    StringList();
    ~StringList();
    StringList(const StringList&) = delete;
    StringList& operator=(const StringList&) = delete;

    /// Throws std::bad_alloc if the host can't take the text.
    void append(const std::string& text);
    /// Borrowed for the life of this object.
    QuorStringListHandle getRef() const { return list_; }

private:
    QuorStringListHandle list_;
};

/// A UTF-8 path for the platform's wide-character file layer. Bytes that are no UTF-8 become
/// U+FFFD. Throws std::bad_alloc.
QUORVIA_HOST_API std::wstring utf8ToWideString(const std::string& utf8);

/// The user interrupted an operation of the host.
class QUORVIA_HOST_API InterruptedException : public std::exception {
public:
    ~InterruptedException() override;
    const char* what() const noexcept override;
};

} // namespace quorvia
