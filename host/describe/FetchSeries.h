// Fetching fields one after the other, with an eye on how many bytes have come.
#pragma once

#include <cstdint>
#include <functional>

#include "describe/Outcome.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {

/// Called before each fetch, and while a long one runs, with the bytes fetched so far and those of
/// all fields; false ends the fetching.
using FetchObserver = std::function<bool(std::int64_t bytesDone, std::int64_t byteCount)>;

/// Of the field's values; a count that no memory holds is cut short, so that sums stay in 64 bits.
std::int64_t byteCountOf(const FieldOutcome_s& field);

class FetchSeries {
public:
    /// `byteCount`: of all fields to come; the observer is told 1 at least. Host and observer,
    /// which may be empty, are borrowed.
    FetchSeries(ReferenceHost& host, std::int64_t byteCount, const FetchObserver& observer)
        : host_(host), byteCount_(byteCount > 0 ? byteCount : 1), observer_(observer) {}

    /// False: the observer ends the fetching.
    bool mayGoOn() const { return !observer_ || observer_(bytesDone_, byteCount_); }

    /// Fetches the values of the field, which is one of `zone` (from 1), and adds statistics or
    /// error to it. False: the fetch was stopped, by the user or by the observer, who then has the
    /// host interrupted; the field tells nothing of it.
    bool fetch(std::int32_t zone, FieldOutcome_s& field);

private:
    ReferenceHost& host_;
    std::int64_t byteCount_;
    const FetchObserver& observer_;
    std::int64_t bytesDone_ = 0;
};

} // namespace quorvia::host
