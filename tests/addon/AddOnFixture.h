// The add-on linked in and entered, with nothing remembered from another test.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "addon/AddOnEntry.h"
#include "addon/state/DialogState.h"
#include "session/ReferenceHost.h"

namespace quorvia::testsupport {

class AddOnTest : public ::testing::Test {
protected:
    void SetUp() override {
        host().reset();
        InitQuorAddOn113();
        host().clearFaults();
        host().clearLog();
        forgetFiles();
    }
    void TearDown() override {
        forgetFiles();
        host().checkForLeaks();
        EXPECT_EQ(host().log().violations, std::vector<std::string>());
        EXPECT_EQ(host().lockDepth(), 0);
        host().reset();
    }

    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }

    static std::vector<std::string> messages() {
        std::vector<std::string> texts;
        for (const host::Message& message : host().log().messages)
            texts.push_back(message.text);
        return texts;
    }

private:
    static void forgetFiles() {
        quorutildataio::releaseLoadOptions(quorutildataio::gLoadOptions);
        quorutildataio::gRetainedGridFiles.clear();
        quorutildataio::gRetainedSolutionFiles.clear();
        quorutildataio::gRetainedFunctionFiles.clear();
        quorutildataio::gRetainedNameFile.clear();
    }
};

using Texts = std::vector<std::string>;

} // namespace quorvia::testsupport
