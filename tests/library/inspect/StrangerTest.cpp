// Files that are no PLOT3D files: what they are instead.
#include "InspectFixture.h"

namespace plot3d {
namespace {

using writer::Encoding_e;

class Stranger : public InspectTest {
protected:
    std::string told(const std::string& bytes, const std::string& name = "wing.x") const {
        const FileInfo info = inspectBytes(name, bytes);
        EXPECT_FALSE(info.ok);
        expectAccount(info);
        return problemOf(info) + " | " + nextOf(info.problem.value_or(FileProblem{}), info);
    }

    /// A head and 4 KiB of what may follow.
    static std::string headOf(const std::string& head) { return head + std::string(4096, '\x7f'); }
};

TEST_F(Stranger, ThatIsEmptyIsTold) {
    EXPECT_EQ(told(""), "The file is empty. | ls -l FILE");
}

TEST_F(Stranger, OfZerosIsTold) {
    EXPECT_EQ(told(std::string(10000, '\0')),
              "The file begins and ends with zeros: it is made, and not written yet. | cmp "
              "--bytes=10000 FILE /dev/zero");
    EXPECT_EQ(told(std::string(10000, '\0') + "1").substr(0, 36),
              "The file begins with zeros where the");
}

TEST_F(Stranger, ThatIsCompressedIsTold) {
    EXPECT_EQ(told(headOf("\x1f\x8b\x08")), "The file is compressed by gzip. | gunzip --keep FILE");
    EXPECT_EQ(told(headOf("BZh9")), "The file is compressed by bzip2. | bunzip2 --keep FILE");
    EXPECT_EQ(told(headOf("\x28\xb5\x2f\xfd")),
              "The file is compressed by zstd. | unzstd --keep FILE");
    EXPECT_EQ(told(headOf(std::string("\xfd"
                                      "7zXZ\0",
                                      6))),
              "The file is compressed by xz. | unxz --keep FILE");
    EXPECT_EQ(told(headOf("PK\x03\x04")), "The file is a ZIP archive. | unzip FILE");
}

TEST_F(Stranger, OfHdf5IsToldAndCgnsByItsNames) {
    const std::string signature = "\x89HDF\r\n\x1a\n";
    EXPECT_EQ(told(headOf(signature)), "The file is HDF5. | h5ls --recursive FILE");
    EXPECT_EQ(told(std::string(512, ' ') + headOf(signature)),
              "The file is HDF5. | h5ls --recursive FILE");
    EXPECT_EQ(told(headOf(signature) + "CGNSLibraryVersion"),
              "The file is CGNS, in HDF5. | h5ls --recursive FILE");
}

TEST_F(Stranger, OfJsonIsTold) {
    EXPECT_EQ(told("{\n  \"auto-detect-format\" : true,\n  \"filenames\" : []\n}\n"),
              "The file is JSON, as it stands beside PLOT3D files to describe them; it holds no "
              "values. | python3 -m json.tool FILE");
}

TEST_F(Stranger, ThatIsNotThereIsTold) {
    const FileInfo info = inspect(directory.file("nowhere.x"));
    EXPECT_FALSE(info.ok);
    EXPECT_EQ(info.file, directory.file("nowhere.x"));
    EXPECT_EQ(nextOf(*info.problem, info), "ls -ld FILE");
    EXPECT_FALSE(inspect(directory.path().string()).ok);
}

// ---- Name files and boundary files --------------------------------------------------------------

TEST_F(Stranger, NameFileIsToldWithItsNames) {
    const FileInfo info = inspectBytes("wing.nam", "density ; kg/m3\nmach\r\n\np\n\n");
    EXPECT_TRUE(info.ok);
    EXPECT_EQ(info.kind, FileKind::Name);
    EXPECT_EQ(info.names, (Strings{"density", "mach", "", "p"}));
    InspectOptions asNames;
    asNames.as = FileKind::Name;
    EXPECT_EQ(inspectBytes("names.txt", "rho\n", asNames).names, Strings{"rho"});
}

TEST_F(Stranger, BoundaryFileIsToldWithItsNames) {
    const std::string good = "FVBND 1 4\nwall\ninlet\nBOUNDARIES\n1 1 1 $ 1 1 1 $ F 0\n";
    for (const char* name : {"wing.x.fvbnd", "wing.x.FVBND", "bound.txt"}) {
        const FileInfo info = inspectBytes(name, good);
        EXPECT_TRUE(info.ok);
        EXPECT_EQ(info.kind, FileKind::Boundary);
        EXPECT_EQ(info.names, (Strings{"wall", "inlet"}));
        EXPECT_EQ(info.bytes.used, info.bytes.size);
    }
}

TEST_F(Stranger, BoundaryFileOfAnotherVersionIsRefused) {
    EXPECT_EQ(told("FVBND 1 3\nwall\nBOUNDARIES\n1 1 1 $ 1 1 1 $ F 0\n", "wing.x.fvbnd"),
              "This version of boundary files is not read. | sed -i 1s/.*/FVBND 1 4/ FILE");
    EXPECT_EQ(told("FVBND 1 4\nwall\nBOUNDARIES\n1 1 1 $ 1 1 1\n", "wing.x.fvbnd"),
              "A boundary has too few words. | sed -n 4p FILE");
    EXPECT_EQ(told("FVBND 1 4\nwall\nBOUNDARIES\n2 1 1 $ 1 1 1 $ F 0\n", "wing.x.fvbnd"),
              "A boundary has no name. | sed -n 4p FILE");
}

} // namespace
} // namespace plot3d
