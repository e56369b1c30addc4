// A test that plays the add-on inside the reference host: it holds the host's lock, and at the end
// the host must have seen no violation and miss nothing that it handed out.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "quorvia/HostHandles.h"
#include "session/ReferenceHost.h"

namespace quorvia::testsupport {

class GuestTest : public ::testing::Test {
protected:
    void SetUp() override {
        host().reset();
        QuorUtilLockOn();
    }
    void TearDown() override {
        QuorUtilLockOff();
        host().checkForLeaks();
        EXPECT_EQ(host().log().violations, std::vector<std::string>());
        host().reset();
    }

    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }

    static std::vector<std::string> messages() {
        std::vector<std::string> texts;
        for (const host::Message_s& message : host().log().messages)
            texts.push_back(message.text);
        return texts;
    }

    /// An empty data set of one variable.
    static void createDataSet() {
        const HostStringList names = listOf({"X"});
        const HostArgList arguments(QuorUtilArgListAlloc());
        QuorUtilArgListAppendString(arguments.get(), "LoaderName", "PLOT3D Loader");
        QuorUtilArgListAppendString(arguments.get(), "DataSetTitle", "Title");
        QuorUtilArgListAppendStringList(arguments.get(), "VarNames", names.get());
        ASSERT_TRUE(QuorUtilDataSetCreateX(arguments.get()));
    }

    static HostStringList listOf(const std::vector<std::string>& texts) {
        HostStringList list(QuorUtilStringListAlloc());
        for (const std::string& text : texts)
            QuorUtilStringListAppendString(list.get(), text.c_str());
        return list;
    }

    static std::vector<std::string> textsOf(const HostStringList& list) {
        std::vector<std::string> texts;
        for (std::int64_t index = 1; index <= QuorUtilStringListGetCount(list.get()); ++index)
            texts.push_back(HostString(QuorUtilStringListGetString(list.get(), index)).str());
        return texts;
    }

    static HostSet setOf(const std::vector<std::int64_t>& members) {
        HostSet set(QuorUtilSetAlloc(true));
        for (const std::int64_t member : members)
            QuorUtilSetAddMember(set.get(), member, true);
        return set;
    }

    static std::vector<std::int64_t> membersOf(QuorSetHandle set) {
        std::vector<std::int64_t> members;
        for (std::int64_t member = QuorUtilSetGetNextMember(set, 0); member != 0;
             member = QuorUtilSetGetNextMember(set, member))
            members.push_back(member);
        return members;
    }
};

using Texts = std::vector<std::string>;
using Members = std::vector<std::int64_t>;

} // namespace quorvia::testsupport
