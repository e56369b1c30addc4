#include "InspectFixture.h"

namespace plot3d {

std::string InspectTest::bytesOf(const writer::FileDescription_s& contents,
                                 const writer::FileForm_s& form) {
    return quorvia::testsupport::bytesOf(contents, form);
}

std::string InspectTest::bytesOf(const LayoutCase_s& layout, const writer::FileForm_s& form) {
    return bytesOf(quorvia::testsupport::contentsOf(layout), form);
}

std::string InspectTest::gridBytes(writer::Encoding_e encoding, bool hasIBlank) {
    LayoutCase_s layout;
    layout.hasIBlank = hasIBlank;
    return bytesOf(layout, formOf(encoding));
}

std::string InspectTest::solutionBytes(writer::Encoding_e encoding) {
    LayoutCase_s layout;
    layout.kind = writer::FileKind_e::ClassicSolution;
    return bytesOf(layout, formOf(encoding));
}

void InspectTest::expectAccount(const FileInfo& info) {
    EXPECT_EQ(info.bytes.used + info.bytes.surplus - info.bytes.missing, info.bytes.size);
    EXPECT_FALSE(info.ok && info.problem);
    EXPECT_TRUE(info.ok || info.problem);
    if (info.problem) {
        EXPECT_NE(info.problem->misfit.what, "");
        EXPECT_FALSE(info.problem->next.empty());
    }
}

std::string problemOf(const FileInfo& info) {
    return info.problem ? info.problem->misfit.what : "";
}

std::string warningOf(const FileInfo& info) {
    return info.warnings.empty() ? "" : info.warnings.front().misfit.what;
}

std::string nextOf(const FileProblem& problem, const FileInfo& info) {
    std::string line;
    for (const std::string& argument : problem.next)
        line += (line.empty() ? "" : " ") + (argument == info.file ? "FILE" : argument);
    return line;
}

} // namespace plot3d
