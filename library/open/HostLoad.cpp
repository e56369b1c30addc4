#include "open/HostLoad.h"

#include <chrono>
#include <exception>
#include <stop_token>

#include "open/ContentOfFrame.h"
#include "open/LinkedAddOn.h"
#include "open/LoadFailure.h"
#include "session/ReferenceHost.h"
#include "session/SeparateFrame.h"

namespace plot3dlib {

namespace {

using quorvia::host::LoadResult_s;
using quorvia::host::ReferenceHost;

/// Passes the host's progress on. What the caller's function throws must not pass through the
/// add-on: the load is stopped, and the exception comes when it has ended.
class ProgressTeller {
public:
    ProgressTeller(ReferenceHost& host, const plot3d::Watch& watch) : host_(host), watch_(watch) {}

    void tell(const quorvia::host::ProgressState_s& state) noexcept {
        const auto now = std::chrono::steady_clock::now();
        if (!watch_.progress || thrown_ != nullptr || (state.open && now < next_))
            return;
        next_ = now + std::chrono::milliseconds(30);
        try {
            watch_.progress({.text = state.text, .fraction = state.fraction});
        } catch (...) {
            thrown_ = std::current_exception();
            host_.requestInterrupt();
        }
    }
    void rethrow() const {
        if (thrown_ != nullptr)
            std::rethrow_exception(thrown_);
    }

private:
    ReferenceHost& host_;
    const plot3d::Watch& watch_;
    std::chrono::steady_clock::time_point next_;
    std::exception_ptr thrown_;
};

LoadResult_s importWatched(ReferenceHost& host, const std::vector<std::string>& instructions,
                           const plot3d::Watch& watch) {
    ProgressTeller teller(host, watch);
    host.settings().progressObserver = [&teller](const auto& state) { teller.tell(state); };
    const std::stop_callback stopLoad(watch.stop, [&host] { host.requestInterrupt(); });
    const LoadResult_s result = host.importInstructions(instructions, linkedLoader());
    host.settings().progressObserver = nullptr;
    teller.rethrow();
    return result;
}

} // namespace

Content_s loadAtHost(const std::vector<std::string>& instructions, const plot3d::Watch& watch) {
    ReferenceHost& host = ReferenceHost::instance();
    quorvia::host::SeparateFrame separate;
    separate.user().setAnswers({}, /*afterwards=*/true);
    const LoadResult_s result = importWatched(host, instructions, watch);
    if (!result.ok || result.interrupted || separate.frame().dataSet() == nullptr)
        throw failureOf(result, host.log().messages);
    Content_s content = contentOf(separate.frame(), HostFields_e::Fetched);
    content.notes = notesOf(host.log().messages);
    return content;
}

} // namespace plot3dlib
