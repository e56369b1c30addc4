#include "describe/FetchSeries.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "describe/Statistics.h"
#include "model/FieldStorage.h"

namespace quorvia::host {
namespace {

/// Has another observer watch the bars of the guest in a scope.
class ObservedBars {
public:
    using Observer = std::function<void(const ProgressState_s&)>;

    ObservedBars(ReferenceHost& host, Observer observer)
        : host_(host),
          before_(std::exchange(host.settings().progressObserver, std::move(observer))) {}
    ~ObservedBars() { host_.settings().progressObserver = std::move(before_); }
    ObservedBars(const ObservedBars&) = delete;
    ObservedBars& operator=(const ObservedBars&) = delete;

private:
    ReferenceHost& host_;
    Observer before_;
};

} // namespace

std::int64_t byteCountOf(const FieldOutcome_s& field) {
    constexpr std::int64_t mostValues = std::int64_t{1} << 40;
    return std::clamp<std::int64_t>(field.count, 0, mostValues) * valueWidth(field.type);
}

bool FetchSeries::fetch(std::int32_t zone, FieldOutcome_s& field) {
    const std::int64_t fieldBytes = byteCountOf(field);
    const auto tellBytes = [this, fieldBytes](const ProgressState_s& bar) {
        const auto part = static_cast<std::int64_t>(bar.fraction * static_cast<double>(fieldBytes));
        if (bar.open && observer_ && !observer_(bytesDone_ + part, byteCount_))
            host_.requestInterrupt();
    };
    FetchResult_s fetched;
    {
        const ObservedBars bars(host_, tellBytes);
        fetched = host_.fetch(zone, field.variable);
    }
    bytesDone_ += fieldBytes;
    if (!fetched.ok && host_.interruptRequested())
        return false;
    field.error.reset();
    if (!fetched.ok) {
        field.error = fetched.error;
        return true;
    }
    const std::optional<FieldStatistics_s> statistics = describeValuesWhile(
        [this] { return !host_.interruptRequested(); },
        static_cast<QuorFieldDataType_e>(fetched.type), fetched.values, fetched.count);
    if (!statistics)
        return false;
    field.statistics = *statistics;
    return true;
}

} // namespace quorvia::host
