// Detection in the built library, where a read or an allocation fails. Whichever file of a load it
// hits, the load ends, that file is named with what happened, and the frame keeps its data set.
#include "FaultyReads.h"
#include "support/AllocationFaults.h"
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

class DetectionFaults : public LoadedAddOnTest {
protected:
    void SetUp() override {
        series_ = {.gridFiles = {write("a.x", FileKind_e::Grid)},
                   .solutionFiles = {write("a.q", FileKind_e::ClassicSolution),
                                     write("b.q", FileKind_e::ClassicSolution)},
                   .functionFiles = {write("a.fun", FileKind_e::Function),
                                     write("b.fun", FileKind_e::Function)},
                   .settings = {{"SOLUTIONSSHARESTRUCTURE", "Yes"}}};
        expectLoads({.gridFiles = {write("old.x", FileKind_e::Grid)}});
    }

    std::string write(const std::string& name, FileKind_e kind) const {
        FileDescription_s description = describe(kind, {{2, 3, 5}});
        description.numVars = 2;
        if (kind == FileKind_e::ClassicSolution)
            description.scalars = {{0.8, 2.0, 1e6, static_cast<double>(name.front())}};
        return directory().write(name, bytesOf(description));
    }
    /// Runs `arm` when the header of the file is about to be examined.
    static void armAt(const std::string& file, void (*arm)()) {
        const std::string tail = file.substr(file.size() > 40 ? file.size() - 40 : 0);
        bool isArmed = false;
        host().settings().progressObserver = [=](const host::ProgressState_s& state) mutable {
            if (isArmed || state.text != "Examining file header ..." + tail)
                return;
            isArmed = true;
            arm();
        };
    }
    Texts allFiles() const {
        Texts files = series_.gridFiles;
        files.insert(files.end(), series_.solutionFiles.begin(), series_.solutionFiles.end());
        files.insert(files.end(), series_.functionFiles.begin(), series_.functionFiles.end());
        return files;
    }
    void expectTold(const std::string& cause, const std::string& file) {
        EXPECT_FALSE(load(series_).ok) << file;
        host().settings().progressObserver = nullptr;
        EXPECT_EQ(messages(), Texts{cause + "\nFile: " + file});
        EXPECT_EQ(zoneNames(), Texts{"old.x:1"});
        host().clearLog();
    }

    Load_s series_;
};

TEST_F(DetectionFaults, OfTheFirstReadOfAnyFileAreTold) {
    for (const std::string& file : allFiles()) {
        armAt(file, [] { failRead(1); });
        expectTold("The file could not be read.", file);
        EXPECT_FALSE(cancelReadFault());
    }
}

TEST_F(DetectionFaults, OfMemoryForTheGridsOfAFirstFileAreTold) {
    constexpr std::size_t dimensions = 12000; // bytes for a thousand grids, the first growth
    for (const std::string& file :
         {series_.gridFiles[0], series_.solutionFiles[0], series_.functionFiles[0]}) {
        armAt(file, [] { failNextAllocation(dimensions); });
        expectTold("Out of memory.", file);
        EXPECT_FALSE(cancelAllocationFault());
    }
}

TEST_F(DetectionFaults, AreNoneInALoadBehindThem) {
    armAt(series_.gridFiles[0], [] { failRead(1); });
    expectTold("The file could not be read.", series_.gridFiles[0]);
    expectLoads(series_);
    EXPECT_EQ(zoneNames(), (Texts{"a.q:1", "b.q:1"}));
}

} // namespace
} // namespace quorvia::testsupport
