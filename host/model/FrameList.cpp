#include "model/FrameList.h"

#include <algorithm>
#include <utility>

namespace quorvia::host {

FrameList::FrameList() {
    frames_.push_back(std::make_unique<Frame>(lastId_));
    current_ = frames_.front().get();
}

Frame* FrameList::find(std::int64_t uniqueId) const {
    for (const std::unique_ptr<Frame>& frame : frames_)
        if (frame->uniqueId() == uniqueId)
            return frame.get();
    return nullptr;
}

Frame& FrameList::add() {
    frames_.push_back(std::make_unique<Frame>(lastId_ + 1));
    ++lastId_;
    return *frames_.back();
}

void FrameList::close(Frame& frame) {
    Frame* const before = std::exchange(current_, &frame);
    frame.reset();
    current_ = before != &frame ? before : &first();
    if (&frame == &first())
        return;
    frames_.erase(std::find_if(frames_.begin(), frames_.end(),
                               [&frame](const auto& each) { return each.get() == &frame; }));
}

void FrameList::startAnew() {
    while (frames_.size() > 1)
        close(*frames_.back());
    current_ = &first();
    first().startAnew();
    lastId_ = first().uniqueId();
}

} // namespace quorvia::host
