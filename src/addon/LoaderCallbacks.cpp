#include "addon/LoaderCallbacks.h"

#include "instructions/InstructionParser.h"
#include "loader/LoadDriver.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"
#include "state/DialogState.h"

namespace quorvia::quorutildataio {

namespace {

/// Releases a record at the end of a scope, however the scope ends.
class LoadOptionsRelease {
public:
    explicit LoadOptionsRelease(Plot3DLoadOptions_s& options) : options_(options) {}
    ~LoadOptionsRelease() { releaseLoadOptions(options_); }
    LoadOptionsRelease(const LoadOptionsRelease&) = delete;
    LoadOptionsRelease& operator=(const LoadOptionsRelease&) = delete;

private:
    Plot3DLoadOptions_s& options_;
};

} // namespace

bool loaderCallback(QuorStringListHandle instructions) {
    constexpr bool fromSelection = true;
    return loadFromInstructions(instructions, !fromSelection);
}

bool loadFromInstructions(QuorStringListHandle instructions, bool fromSelection) {
    Plot3DLoadOptions_s options;
    options.gridSet = nullptr; // so that it may be released even before the parse
    const HostLock lock(addOnID);
    const LoadOptionsRelease release(options);
    return parseLoadInstructions(instructions, options) && loadPlot3DData(fromSelection, options);
}

void stateChangeCallback(std::int32_t code) {
    if (code != QuorStateChange_FilesForgotten)
        return;
    releaseLoadOptions(gLoadOptions);
    const HostLock lock(addOnID);
    // The other remembered lists stay, here as at the entry.
    gRetainedSolutionFiles.clear();
}

} // namespace quorvia::quorutildataio
