// Faults that once ended in the wrong way, each at its place.
#include <memory>
#include <stdexcept>

#include <gtest/gtest.h>

#include "faults/Faults.h"
#include "faults/SampledPoints.h"
#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"

namespace quorvia::testsupport {
namespace {

class NamedFaults : public ::testing::Test {
protected:
    void SetUp() override {
        host().reset();
        std::string error;
        library_ = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
        ASSERT_NE(library_, nullptr) << error;
    }
    void TearDown() override {
        disarmFault();
        host().frame().reset();
        library_.reset();
        EXPECT_EQ(openFiles(), 0);
        EXPECT_EQ(host().log().violations, Texts());
    }
    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }

    /// Whether the steps of the session succeed; the last one under the fault, which counts only
    /// what is done to the one file.
    static bool play(const std::string& session, const std::string& file, Fault_e fault,
                     std::int64_t n) {
        host().frame().reset();
        host().clearLog();
        watchFilesOf(sessions().folder() + "/" + file);
        const std::vector<Step_s>& steps = find(session).steps;
        for (const Step_s& step : steps) {
            if (&step == &steps.back())
                armFault(fault, n);
            if (!step.run().ok)
                return false;
        }
        return true;
    }
    static const Session_s& find(const std::string& name) {
        for (const Session_s& session : sessions().all())
            if (session.name == name)
                return session;
        throw std::invalid_argument("no session " + name);
    }
    static Texts messages() {
        Texts texts;
        for (const host::Message_s& message : host().log().messages)
            texts.push_back(message.text);
        return texts;
    }
    static std::string path(const std::string& file) { return sessions().folder() + "/" + file; }

private:
    std::unique_ptr<host::AddOnLibrary> library_;
};

TEST_F(NamedFaults, OfMemoryAtAnOpenLeaveNoFileOpen) {
    for (std::int64_t n = 1; !play("Text", "text", Fault_e::AddOnMemoryOnce, n); ++n)
        ASSERT_EQ(openFiles(), 0) << n;
}

TEST_F(NamedFaults, OfAReadThatComesUpEmptyAreNoEndOfTheFile) {
    EXPECT_FALSE(play("Text", "text/a.x", Fault_e::ReadComesUpEmpty, 2));
    EXPECT_FALSE(messages().empty());
}

TEST_F(NamedFaults, OfReadsInANameFileAreTold) {
    for (const Fault_e fault : {Fault_e::ReadFails, Fault_e::ReadComesUpEmpty}) {
        EXPECT_TRUE(play("NameFile", "side/a.nam", fault, 1));
        EXPECT_EQ(messages(),
                  Texts{"The Name File " + path("side/a.nam") + " could not be read to its end."});
    }
}

TEST_F(NamedFaults, OfTheSecondOpenOfABoundaryFileAreTold) {
    EXPECT_TRUE(play("BoundaryFile", "side/a.x.fvbnd", Fault_e::OpenFails, 2));
    EXPECT_EQ(messages(), Texts{"The file " + path("side/a.x.fvbnd") + " could not be opened."});
    EXPECT_EQ(host().frame().dataSet()->zoneCount(), 4);
}

// Nobody asks for the file by name at the dialog, so that it could be missed.
TEST_F(NamedFaults, OfTheFirstOpenOfABoundaryFileAreTold) {
    EXPECT_TRUE(play("DialogBesideBoundaries", "side/a.x.fvbnd", Fault_e::OpenFails, 1));
    EXPECT_EQ(messages(), Texts{"The file " + path("side/a.x.fvbnd") + " could not be opened."});
    EXPECT_EQ(host().frame().dataSet()->zoneCount(), 2);
}

TEST_F(NamedFaults, OfMemoryForBoundaryZonesAreTold) {
    EXPECT_TRUE(play("BoundaryFile", "side", Fault_e::HostBlockOnce, 34));
    EXPECT_EQ(messages(),
              Texts{"Not all boundary zones could be loaded.\nFile: " + path("side/a.x.fvbnd")});
}

TEST_F(NamedFaults, OfReadsInAnAppendedFunctionFileAreTold) {
    for (std::int64_t n = 1; !play("AppendedFunctions", "onto/1.f", Fault_e::ReadFails, n); ++n)
        EXPECT_FALSE(messages().empty()) << n;
}

TEST_F(NamedFaults, OfMemoryForAnAppendedFunctionFileAreTold) {
    for (std::int64_t n = 1; !play("AppendedFunctions", "onto", Fault_e::HostBlockOnce, n); ++n)
        EXPECT_TRUE(!messages().empty() || host().frame().dataSet()->variableCount() == 8) << n;
}

// The functions of the second load get names that those of the first have not.
TEST_F(NamedFaults, OfMemoryAmongTheNamesOfFunctionsEndTheLoad) {
    for (std::int64_t n = 1; !play("NewLoad", "fresh", Fault_e::AddOnMemoryOnce, n); ++n)
        ASSERT_EQ(openFiles(), 0) << n;
    EXPECT_EQ(host().frame().dataSet()->variable(10)->name, "F2V1");
}

} // namespace
} // namespace quorvia::testsupport
