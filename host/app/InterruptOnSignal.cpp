#include "app/InterruptOnSignal.h"

#include "session/ReferenceHost.h"

namespace quorvia::host {
namespace {

volatile std::sig_atomic_t gInterrupted = 0;

extern "C" void interruptTheLoad(int) {
    gInterrupted = 1;
    ReferenceHost::instance().requestInterrupt();
}

} // namespace

InterruptOnSignal::InterruptOnSignal() {
    ReferenceHost::instance(); // made here, so that the handler finds it made
    gInterrupted = 0;
    struct sigaction action = {};
    action.sa_handler = interruptTheLoad;
    // The handler goes with the first signal: the second one then has the usual effect. Reads of
    // files are carried on, not cut short.
    action.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    sigaction(SIGINT, &action, &before_);
}

InterruptOnSignal::~InterruptOnSignal() {
    sigaction(SIGINT, &before_, nullptr);
}

bool InterruptOnSignal::happened() const {
    return gInterrupted != 0;
}

} // namespace quorvia::host
