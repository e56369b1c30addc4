#include "acceptance/behaviour/Snapshot.h"

#include "describe/GatherOutcome.h"
#include "describe/Json.h"
#include "describe/ValueFetch.h"

namespace quorvia::testsupport {

std::string snapshotOfFrame() {
    host::ReferenceHost& referenceHost = host::ReferenceHost::instance();
    const host::Outcome_s described = host::describeOutcome(referenceHost, {});
    host::Outcome_s outcome; // without what was said and shown
    outcome.plotType = described.plotType;
    outcome.dataSet = described.dataSet;
    if (!outcome.dataSet)
        return "null";
    host::fetchValues(referenceHost, *outcome.dataSet);
    return host::toJson(outcome);
}

} // namespace quorvia::testsupport
