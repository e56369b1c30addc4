// The add-on linked in and entered, with nothing remembered from another test.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "addon/AddOnEntry.h"
#include "dialog/DialogControls.h"
#include "session/ReferenceHost.h"
#include "state/DialogState.h"

namespace quorvia::testsupport {

class AddOnTest : public ::testing::Test {
protected:
    void SetUp() override {
        host().reset();
        InitQuorAddOn113();
        host().clearFaults();
        host().clearLog();
        startAnew();
    }
    void TearDown() override {
        startAnew();
        host().checkForLeaks();
        EXPECT_EQ(host().log().violations, std::vector<std::string>());
        EXPECT_EQ(host().lockDepth(), 0);
        host().reset();
    }

    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }

    static std::vector<std::string> messages() {
        std::vector<std::string> texts;
        for (const host::Message_s& message : host().log().messages)
            texts.push_back(message.text);
        return texts;
    }

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

using Texts = std::vector<std::string>;

} // namespace quorvia::testsupport
