#include "filenames/FileNameClassification.h"

#include "support/HostedTest.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

const std::string allPatterns =
    "g.*, *.g, x.*, *.x, xyz.*, *.xyz, *.in, *.in.*, in.*, *.p3d, q.*, *.q, *.qfile, f.*, *.f, "
    "fun.*, *.fun or *.nam";

std::string unrecognised(const std::string& extensions) {
    return "The following extensions are unrecognized: \n\n\n" + extensions +
           "\n\n\nYou must use the \"advanced options\" to load files with unrecognized file "
           "extensions. The Plot3D loader automatically processes the following file extensions: "
           "\n\n\t" +
           allPatterns;
}

class FileNames : public testsupport::GuestTest {
protected:
    void SetUp() override {
        GuestTest::SetUp();
        buildFilePatternTables();
    }

    bool classify(const Texts& names) {
        grid_.clear();
        solution_.clear();
        function_.clear();
        name_.clear();
        return classifyFileNames(listOf(names).get(), grid_, solution_, function_, name_);
    }

    /// g, q, f or n for the kind of one name; ? for none.
    char kindOf(const std::string& name) {
        EXPECT_TRUE(classify({name}));
        if (grid_ == Texts{name})
            return 'g';
        if (solution_ == Texts{name})
            return 'q';
        if (function_ == Texts{name})
            return 'f';
        return name_ == name ? 'n' : '?';
    }

    Texts grid_, solution_, function_;
    std::string name_;
};

TEST_F(FileNames, AreClassifiedWhateverTheirCase) {
    EXPECT_EQ(kindOf("G.DAT"), 'g');
    EXPECT_EQ(kindOf("Q.001"), 'q');
    EXPECT_EQ(kindOf("FUN.1"), 'f');
    EXPECT_EQ(kindOf("Names.NAM"), 'n');
}

TEST_F(FileNames, OfEachPatternAreOfItsKind) {
    for (const char* name :
         {"g.1", "a.g", "x.1", "a.x", "xyz.1", "a.xyz", "a.in", "a.in.1", "in.1", "a.p3d"})
        EXPECT_EQ(kindOf(name), 'g') << name;
    for (const char* name : {"q.1", "a.q", "a.qfile"})
        EXPECT_EQ(kindOf(name), 'q') << name;
    for (const char* name : {"f.1", "a.f", "fun.1", "a.fun"})
        EXPECT_EQ(kindOf(name), 'f') << name;
}

TEST_F(FileNames, OfTwoKindsAreOfTheFirst) {
    for (const char* name : {"x.q", "g.fun", "q.x"})
        EXPECT_EQ(kindOf(name), 'g') << name;
    for (const char* name : {"f.q", "fun.q", "q.fun"})
        EXPECT_EQ(kindOf(name), 'q') << name;
}

TEST_F(FileNames, WithInAreGridsByEndStartOrMiddle) {
    EXPECT_EQ(kindOf("data.in.old"), 'g');
    EXPECT_EQ(kindOf("data.in"), 'g');
    EXPECT_EQ(kindOf("in.old"), 'g');
    EXPECT_EQ(kindOf("margin.dat"), '?');
}

TEST_F(FileNames, AreNotClassifiedByTheirDirectory) {
    EXPECT_EQ(kindOf("/runs/x.case/data.dat"), '?');
    EXPECT_EQ(messages(), Texts{unrecognised(" *.dat")});
    EXPECT_EQ(kindOf("/runs.dat/wing.x"), 'g');
    for (const char* name : {"/runs/a.in.b/data.dat", "a.in.b/data.dat", "x.case/data.dat"})
        EXPECT_EQ(kindOf(name), '?') << name;
}

TEST_F(FileNames, KeepTheirPathsAndOrder) {
    EXPECT_TRUE(classify({"/b/2.x", "/q/Q.1", "/a/1.X", "/n.nam", "f.9", "f.1"}));
    EXPECT_EQ(grid_, (Texts{"/b/2.x", "/a/1.X"}));
    EXPECT_EQ(solution_, Texts{"/q/Q.1"});
    EXPECT_EQ(function_, (Texts{"f.9", "f.1"}));
    EXPECT_EQ(name_, "/n.nam");
}

TEST_F(FileNames, WithoutAnExtensionAreReportedAsEmpty) {
    for (const char* name : {"README", "/runs.old/README", "/runs/", "", "  "}) {
        host().clearLog();
        EXPECT_EQ(kindOf(name), name[0] == '\0' ? 'n' : '?') << name;
        EXPECT_EQ(messages(), Texts{unrecognised(" *empty")}) << name;
    }
}

TEST_F(FileNames, AreReportedWithTheExtensionAsItStands) {
    EXPECT_TRUE(classify({"a. Dat 1", "b.tar.gz", "c."}));
    EXPECT_EQ(messages(), Texts{unrecognised(" *. *. Dat 1 *.gz")});
}

TEST_F(FileNames, AreReportedOnceForEachExtensionInByteOrder) {
    EXPECT_TRUE(classify({"b.dat", "a.DAT", "c.dat", "d.\xc3\xa9"}));
    EXPECT_EQ(messages(), Texts{unrecognised(" *.DAT *.dat *.\xc3\xa9")});
}

TEST_F(FileNames, ThatAreUnknownAreDroppedAndTheOthersKept) {
    EXPECT_TRUE(classify({"a.x", "b.dat"}));
    EXPECT_EQ(grid_, Texts{"a.x"});
    EXPECT_EQ(messages().size(), 1u);
    EXPECT_TRUE(classify({"b.dat"}));
    EXPECT_TRUE(grid_.empty() && solution_.empty() && function_.empty() && name_.empty());
}

TEST_F(FileNames, WithASecondNameFileAreRefused) {
    EXPECT_FALSE(classify({"b.dat", "a.nam", "b.nam", "a.x", "c.other"}));
    EXPECT_EQ(messages(), (Texts{"Only one Name file can be loaded.", unrecognised(" *.dat")}));
    EXPECT_EQ(name_, "a.nam");
    EXPECT_EQ(grid_, Texts());
}

TEST_F(FileNames, OfANullListAreNone) {
    EXPECT_TRUE(classifyFileNames(nullptr, grid_, solution_, function_, name_));
    EXPECT_TRUE(grid_.empty() && solution_.empty() && function_.empty() && name_.empty());
}

TEST_F(FileNames, HavePatternsInOneText) {
    EXPECT_EQ(filePatternListText(true), allPatterns);
    EXPECT_EQ(filePatternListText(false),
              "g.* *.g x.* *.x xyz.* *.xyz *.in *.in.* in.* *.p3d q.* *.q *.qfile f.* *.f fun.* "
              "*.fun *.nam");
}

TEST_F(FileNames, ThatTheHostWithholdsAreNotLeftOut) {
    host().failCall("QuorUtilStringListGetString", 2);
    EXPECT_FALSE(classify({"a.x", "a.q", "b.q"}));
    EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
}

TEST_F(FileNames, OfFoldersThatTheHostWithholdsAreNotSortedByThem) {
    for (const int name : {1, 2}) {
        host().clearLog();
        host().failCall("QuorUtilGetBasePath", name);
        EXPECT_FALSE(classify({"/runs.in.old/a.x", "/runs.in.old/a.q"}));
        EXPECT_EQ(messages(), Texts{"Out of Memory!!!"}) << name;
        host().clearFaults();
    }
}

} // namespace
} // namespace quorvia::quorutildataio
