// The add-on linked in and entered, with nothing remembered from another test.
#pragma once

#include <cstdint>

#include "addon/AddOnEntry.h"
#include "dialog/DialogControls.h"
#include "state/DialogState.h"
#include "support/HostedTest.h"

namespace quorvia::testsupport {

class AddOnTest : public HostedTest {
protected:
    void SetUp() override {
        InitQuorAddOn113();
        host().clearFaults();
        host().clearLog();
        startAnew();
    }
    void TearDown() override { startAnew(); }

private:
    /// As if the add-on had just been entered for the first time. Dialogs of earlier tests stay at
    /// the host, and nothing refers to them any more.
    static void startAnew() {
        using namespace quorutildataio;
        for (std::int32_t* id : {&loadDialog, &loadTabs, &fileSelectionPage, &fileStructurePage,
                                 &dataSubsetPage, &gridAddFiles})
            *id = noControl;
        releaseLoadOptions(gLoadOptions);
        setLoadOptionDefaults(gLoadOptions);
        gRetainedGridFiles.clear();
        gRetainedSolutionFiles.clear();
        gRetainedFunctionFiles.clear();
        gRetainedNameFile.clear();
    }
};

} // namespace quorvia::testsupport
