#include "dataset/ondemand/LongReads.h"

namespace quorvia::quorutildataio {

namespace {

constexpr std::int64_t bytesOfStep = FileStream::bytesBetweenQuestions;

} // namespace

bool LoadWatch::goesOn(std::int64_t /*byteCount*/) {
    return !QuorUtilInterruptIsSet();
}

bool FetchWatch::goesOn(std::int64_t byteCount) {
    if (!bar_)
        bar_ = createTaskProgressBar(byteCount_ / bytesOfStep + 1);
    bytesDone_ += byteCount;
    for (; stepsDone_ < bytesDone_ / bytesOfStep; ++stepsDone_)
        if (!bar_->step())
            return false;
    return true;
}

} // namespace quorvia::quorutildataio
