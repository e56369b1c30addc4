// Forms of files beside those of the matrix: text as it may be broken, records in segments, names
// that say another thing than the bytes; and what can fail.
#include "InspectFixture.h"
#include "plot3d/Error.h"
#include "plot3dwriter/Plot3DWriter.h"
#include "session/ReferenceHost.h"
#include "support/AllocationFaults.h"
#include "support/FakeDisk.h"

namespace plot3d {
namespace {

using quorvia::testsupport::FakeDisk;
using writer::Encoding_e;
using writer::FileKind_e;

class Forms : public InspectTest {
protected:
    static writer::FileForm_s textForm() { return formOf(Encoding_e::Text); }
    void expectAllUsed(const writer::FileForm_s& form) {
        for (const LayoutCase_s& layout : quorvia::testsupport::everyLayout()) {
            const char* name = layout.kind == FileKind_e::Grid ? "wing.x" : "wing.q";
            const FileInfo info = inspectBytes(name, bytesOf(layout, form));
            EXPECT_TRUE(info.ok) << quorvia::testsupport::nameOf(layout) << ": " << problemOf(info);
            EXPECT_EQ(info.bytes.used, info.bytes.size) << quorvia::testsupport::nameOf(layout);
            EXPECT_EQ(info.iBlank, layout.hasIBlank) << quorvia::testsupport::nameOf(layout);
        }
    }
};

// ---- Text ---------------------------------------------------------------------------------------

TEST_F(Forms, OfTextWithCommasAndCarriageReturnsAreUsedWhole) {
    writer::FileForm_s form = textForm();
    form.text.commas = true;
    form.text.carriageReturns = true;
    expectAllUsed(form);
}

TEST_F(Forms, OfTextWithRepeatsAndFortranExponentsAreUsedWhole) {
    writer::FileForm_s form = textForm();
    form.text.repeatCounts = true;
    form.text.fortranExponents = true;
    expectAllUsed(form);
}

TEST_F(Forms, OfTextWithANumberOnEachLineAreUsedWhole) {
    writer::FileForm_s form = textForm();
    form.text.tokensPerLine = 1;
    expectAllUsed(form);
}

// ---- Segments -----------------------------------------------------------------------------------

TEST_F(Forms, OfARecordInThreeSegmentsAreTold) {
    auto contents = quorvia::testsupport::contentsOf(LayoutCase_s());
    contents.grids = {{30000, 13000, 1}}; // 4.7 GB in one record
    contents.isHole = [](std::int32_t, std::int32_t, std::int32_t) { return true; };
    const std::string path = directory.file("wing.x");
    quorvia::testsupport::writeFile(path, contents, formOf(Encoding_e::Fortran));
    const FileInfo info = inspect(path);
    EXPECT_TRUE(info.ok) << problemOf(info);
    EXPECT_EQ(info.grids, (std::vector<GridSize>{{30000, 13000, 1}}));
    EXPECT_EQ(info.bytes.size, 20 + std::int64_t{12} * 30000 * 13000 + 3 * 8);
    EXPECT_EQ(info.bytes.used, info.bytes.size);
}

// ---- Names --------------------------------------------------------------------------------------

TEST_F(Forms, FunctionFileUnderASolutionsNameIsToldByItsBytes) {
    LayoutCase_s layout;
    layout.kind = FileKind_e::Function;
    const FileInfo info = inspectBytes("wing.q", bytesOf(layout, writer::FileForm_s()));
    EXPECT_TRUE(info.ok);
    EXPECT_EQ(info.kind, FileKind::Function);
    EXPECT_EQ(info.style, Style::Function);
}

TEST_F(Forms, KindThatIsAskedForGoesBeforeTheName) {
    InspectOptions asSolution;
    asSolution.as = FileKind::Solution;
    const FileInfo info = inspectBytes("wing.x", solutionBytes(Encoding_e::Binary), asSolution);
    EXPECT_TRUE(info.ok);
    EXPECT_EQ(info.kind, FileKind::Solution);
}

// ---- Ends of Fortran files ----------------------------------------------------------------------

TEST_F(Forms, FortranFileWithBytesBehindItsLastRecordMustBeCut) {
    const std::string good = gridBytes(Encoding_e::Fortran);
    const FileInfo info = inspectBytes("wing.x", good + "12345");
    EXPECT_FALSE(info.ok);
    EXPECT_EQ(info.encoding, Encoding::Fortran);
    EXPECT_EQ(problemOf(info), "5 of 393 bytes stand behind the last record, and are none.");
    EXPECT_EQ(info.problem->next.back(), "count=" + std::to_string(good.size()));
}

// ---- What can fail ------------------------------------------------------------------------------

TEST_F(Forms, DiskThatFailsIsToldWhicheverReadItIs) {
    FakeDisk disk;
    for (const Encoding_e encoding : {Encoding_e::Text, Encoding_e::Binary, Encoding_e::Fortran}) {
        disk.put("wing.q", solutionBytes(encoding));
        disk.readCount = 0;
        EXPECT_TRUE(inspect("wing.q").ok);
        const std::int64_t reads = disk.readCount;
        EXPECT_GT(reads, 0);
        for (disk.failingRead = reads; disk.failingRead > 0;) {
            const std::int64_t failing = disk.failingRead;
            const FileInfo info = inspect("wing.q");
            EXPECT_EQ(problemOf(info), "The file could not be read: the disk failed.") << failing;
            EXPECT_FALSE(info.ok);
            disk.failingRead = failing - 1;
        }
    }
}

TEST_F(Forms, ExhaustedMemoryIsAnError) {
    const std::string path = directory.write("wing.q", solutionBytes(Encoding_e::Text));
    bool hasFailed = true;
    for (std::int64_t nth = 1; hasFailed; ++nth) {
        quorvia::testsupport::failAllocation(nth, quorvia::testsupport::FaultSpan_e::Once);
        try {
            const bool isOk = inspect(path).ok;
            hasFailed = quorvia::testsupport::endAllocationFaults();
            EXPECT_TRUE(isOk) << nth;
        } catch (const Error& error) {
            hasFailed = quorvia::testsupport::endAllocationFaults();
            EXPECT_EQ(error.kind(), ErrorKind::NoMemory);
        } catch (const std::bad_alloc&) {
            hasFailed = quorvia::testsupport::endAllocationFaults(); // for the error itself
        }
        ASSERT_LT(nth, 20000);
    }
}

TEST_F(Forms, NoHostIsAskedForAnything) {
    quorvia::host::ReferenceHost::instance().reset();
    for (const Encoding_e encoding : {Encoding_e::Text, Encoding_e::Binary, Encoding_e::Fortran})
        EXPECT_TRUE(inspectBytes("wing.x", gridBytes(encoding)).ok);
    EXPECT_FALSE(inspectBytes("wing.x", "nothing").ok);
    const auto& log = quorvia::host::ReferenceHost::instance().log();
    EXPECT_EQ(log.messages.size(), 0U);
    EXPECT_EQ(log.violations, Strings()); // of calls without the host's lock
}

} // namespace
} // namespace plot3d
