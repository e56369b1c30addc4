// The frames of a host, of which one is current: what a guest asks of "the frame" is asked of that
// one. There is always a first frame.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/Frame.h"

namespace quorvia::host {

class FrameList {
public:
    FrameList();

    const std::vector<std::unique_ptr<Frame>>& all() const { return frames_; }
    Frame& first() const { return *frames_.front(); }
    Frame& current() const { return *current_; }
    /// Null if there is none.
    Frame* find(std::int64_t uniqueId) const;

    /// An empty frame, with a unique id that no other has had; the current one stays. Throws
    /// std::bad_alloc.
    Frame& add();
    /// The frame must be one of the list.
    void makeCurrent(Frame& frame) { current_ = &frame; }
    /// Ends the frame and its data set; the guest that cleans its fields up finds it current. If it
    /// was current, the first one is from now on. The first frame itself loses its data set alone.
    void close(Frame& frame);
    /// Closes all but the first, which is as at the start.
    void startAnew();

private:
    std::int64_t lastId_ = 1;
    std::vector<std::unique_ptr<Frame>> frames_;
    Frame* current_; // never null
};

} // namespace quorvia::host
