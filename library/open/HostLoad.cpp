#include "open/HostLoad.h"

#include <chrono>
#include <exception>
#include <memory>
#include <stop_token>

#include "open/ContentOfFrame.h"
#include "open/LinkedAddOn.h"
#include "open/LoadFailure.h"
#include "open/OtherAddOn.h"
#include "session/ReferenceHost.h"
#include "session/SeparateFrame.h"

namespace plot3dlib {

namespace {

using quorvia::host::Loader_s;
using quorvia::host::LoadResult_s;
using quorvia::host::ReferenceHost;
using quorvia::host::SeparateFrame;

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

LoadResult_s importWatched(ReferenceHost& host, const Loader_s& loader,
                           const std::vector<std::string>& instructions,
                           const plot3d::Watch& watch) {
    ProgressTeller teller(host, watch);
    host.settings().progressObserver = [&teller](const auto& state) { teller.tell(state); };
    const std::stop_callback stopLoad(watch.stop, [&host] { host.requestInterrupt(); });
    const LoadResult_s result = host.importInstructions(instructions, loader);
    host.settings().progressObserver = nullptr;
    teller.rethrow();
    return result;
}

/// Into the frame that is current, and all else of the host as at the start.
Content_s contentOfLoad(const Loader_s& loader, const std::vector<std::string>& instructions,
                        HostFields_e hostFields, const plot3d::Watch& watch) {
    ReferenceHost& host = ReferenceHost::instance();
    const LoadResult_s result = importWatched(host, loader, instructions, watch);
    if (!result.ok || result.interrupted || host.frame().dataSet() == nullptr)
        throw failureOf(result, host.log().messages);
    Content_s content = contentOf(host.frame(), hostFields);
    const std::vector<std::string> said = notesOf(host.log().messages);
    content.notes.insert(content.notes.begin(), said.begin(), said.end());
    return content;
}

} // namespace

Content_s loadAtHost(const std::vector<std::string>& instructions, const plot3d::Watch& watch) {
    SeparateFrame separate;
    separate.user().setAnswers({}, /*afterwards=*/true);
    return contentOfLoad(linkedLoader(), instructions, HostFields_e::Fetched, watch);
}

Content_s loadByAddOn(const std::string& path, const std::vector<std::string>& instructions,
                      const plot3d::Watch& watch) {
    const Loader_s& loader = loaderOfAddOn(path);
    SeparateFrame separate;
    separate.user().setAnswers({}, /*afterwards=*/true);
    const auto kept = std::make_shared<KeptFrame>();
    ReferenceHost::instance().makeCurrent(*kept->frame());
    Content_s content = contentOfLoad(loader, instructions, HostFields_e::LeftAtHost, watch);
    content.frame = kept;
    return content;
}

} // namespace plot3dlib
