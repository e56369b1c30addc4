// Pieces of work done on several cores, with progress and a way to stop.
#pragma once

#include <cstddef>
#include <functional>
#include <stop_token>

namespace plot3d::analysis {

struct WorkWatch_s {
    /// Told the share that is done, from 0 to 1, on the thread that called. May be empty.
    std::function<void(double fraction)> progress;
    std::stop_token stop;
};

/// Cores that this process may use, 1 at least.
int coreCount();

/// What is done with each index, on the worker of that number (from 0, below the count of threads):
/// what belongs to a worker is used by one thread at a time.
using WorkOnIndex = std::function<void(std::size_t index, std::size_t worker)>;

/// Calls `work` with each index below `count` once, the lower ones first, on `threads` threads, the
/// caller's among them. What `work` throws ends it all and is thrown here, the lowest index's if
/// there are several. Throws plot3d::Error (Interrupted) once `stop` is requested.
void inParallel(std::size_t count, int threads, const WorkOnIndex& work,
                const WorkWatch_s& watch = {});

} // namespace plot3d::analysis
