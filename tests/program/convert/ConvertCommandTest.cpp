// The command line of plot3d convert: what is chosen, what is added, what is refused.
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>

#include <sys/stat.h>

#include "program/app/Program.h" // the host has an app/Program.h, too

#include "plot3dwriter/Plot3DWriter.h"
#include "program/convert/ReadBack.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::FileDescription_s;
using plot3dwriter::FileKind_e;
using plot3dwriter::Layout_e;

using Words = std::vector<std::string>;

class ConvertCommandLine : public ::testing::Test {
protected:
    /// A grid and a solution of three grids in 3-D, 64-bit reals; air with speed 0.5 along X in
    /// it, density 2 and pressure 1.
    ConvertCommandLine() {
        write("case.x", contentsOf({FileKind_e::Grid, Layout_e::ThreeDWhole, true, false}));
        FileDescription_s flow =
            contentsOf({FileKind_e::ClassicSolution, Layout_e::ThreeDWhole, true, false});
        for (std::vector<double>& scalars : flow.scalars)
            scalars[3] = 0.5;
        flow.value = [](std::int32_t, std::int32_t variable, std::int32_t, std::int32_t,
                        std::int32_t) {
            return std::vector<double>{2.0, 1.0, 0.0, 0.0, 1.0 / 0.4 + 0.25}[std::size_t(variable)];
        };
        write("case.q", flow);
    }

    void write(const std::string& name, const FileDescription_s& contents) const {
        writeFile(path(name), contents, binary(ByteOrder_e::Little, Precision_e::Double));
    }

    std::string path(const std::string& name) const { return directory_.file(name); }

    /// Converts case.x and case.q to a file.
    int convert(const std::string& target, const Words& options) {
        Words words = {"convert", path("case.x"), path("case.q"), "-o", path(target)};
        words.insert(words.end(), options.begin(), options.end());
        return runProgram(words, &err_);
    }

    Words lines(const std::string& name) const {
        std::ifstream in(path(name));
        Words all;
        for (std::string line; std::getline(in, line);)
            all.push_back(line);
        return all;
    }

    bool says(const std::string& text) const { return err_.find(text) != std::string::npos; }
    bool exists(const std::string& name) const { return std::filesystem::exists(path(name)); }

    const TemporaryDirectory directory_;
    std::string err_;
};

TEST_F(ConvertCommandLine, WritesTheSelectedPointsWithTheirPlaces) {
    ASSERT_EQ(convert("out.csv", {"--variable", "X,RHO", "--zone", "2", "--i", "2,4,2", "--j", "1",
                                  "--k", "-1"}),
              0)
        << err_;
    EXPECT_EQ(lines("out.csv"), (Words{"zone,time,i,j,k,X,RHO", "2,0.5,2,1,3,2020001.1,2",
                                       "2,0.5,4,1,3,2020003.1,2"}));
}

TEST_F(ConvertCommandLine, AddsWhatIsDerived) {
    ASSERT_EQ(convert("out.csv", {"--variable", "RHO", "--zone", "1", "--point", "1,1,1",
                                  "--derive", "pressure,velocity,120", "--gas-constant", "0.5"}),
              0)
        << err_;
    ASSERT_EQ(lines("out.csv").size(), 2U);
    EXPECT_EQ(lines("out.csv")[0],
              "zone,time,i,j,k,RHO,Pressure,VelocityX,VelocityY,VelocityZ,Temperature");
    EXPECT_EQ(lines("out.csv")[1].substr(0, 18), "1,0.5,1,1,1,2,0.99") << "0.4 is not exact";
}

TEST_F(ConvertCommandLine, PutsWhatIsDerivedIntoAFunctionFile) {
    ASSERT_EQ(convert("out.x", {"--derive", "mach"}), 0) << err_;
    EXPECT_TRUE(exists("out.x") && exists("out.q") && exists("out.f"));
    EXPECT_TRUE(says("MachNumber")) << "the file does not hold the name: " << err_;
    const auto data = plot3d::DataSet::open({path("out.x"), path("out.q"), path("out.f")});
    EXPECT_EQ(data.variables().back().name, "F1V1");
}

TEST_F(ConvertCommandLine, MakesFunctionsOfAPartOfTheSolution) {
    ASSERT_EQ(convert("out.x", {"--variable", "RHO,E"}), 0) << err_;
    EXPECT_TRUE(exists("out.x") && exists("out.f"));
    EXPECT_FALSE(exists("out.q"));
}

TEST_F(ConvertCommandLine, TakesRealsThatANameFileCallsIBlankForAVariableOfTheSolution) {
    std::ofstream(path("a.nam")) << "IBlank\n";
    ASSERT_EQ(convert("out.x", {path("a.nam")}), 0) << err_;
    EXPECT_EQ(lines("out.x"), lines("case.x"));
    EXPECT_EQ(lines("out.q"), lines("case.q"));
}

TEST_F(ConvertCommandLine, TellsTheFilesThatItWrote) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    plot3d::program::run({"convert", path("case.x"), path("case.q"), "-o", path("out.g")}, in, out,
                         err);
    EXPECT_EQ(out.str(), path("out.g") + "\n" + path("out.q") + "\n");
}

TEST_F(ConvertCommandLine, WritesOneZoneIntoAFileOfItsOwn) {
    EXPECT_EQ(convert("out.vts", {"--zone", "3"}), 0) << err_;
    EXPECT_EQ(convert("all.vts", {}), 1);
    EXPECT_TRUE(says("a .vts file holds one zone, and there are 3")) << err_;
    EXPECT_EQ(convert("out.vtu", {"--zone", "3"}), 1);
    EXPECT_TRUE(says("goes into a .vts file")) << err_;
}

TEST_F(ConvertCommandLine, OverwritesOnlyWhenToldTo) {
    ASSERT_EQ(convert("out.vtm", {}), 0) << err_;
    EXPECT_EQ(convert("out.vtm", {}), 1);
    EXPECT_TRUE(says("--overwrite")) << err_;
    EXPECT_EQ(convert("out.vtm", {"--overwrite"}), 0) << err_;
}

TEST_F(ConvertCommandLine, RefusesWhatMakesNoSense) {
    EXPECT_EQ(convert("out.doc", {}), 2);
    EXPECT_TRUE(says("tells no format")) << err_;
    EXPECT_EQ(convert("out.csv", {"--encoding", "text"}), 2);
    EXPECT_TRUE(says("--encoding is for results that are PLOT3D files")) << err_;
    EXPECT_EQ(convert("out.csv", {"--derive", "happiness"}), 2);
    EXPECT_TRUE(says("pressure (110)")) << err_;
    EXPECT_EQ(convert("out.csv", {"--blank", "skip"}), 2);
}

TEST_F(ConvertCommandLine, RefusesLayoutsThatDoNotFit) {
    EXPECT_EQ(convert("out.x", {"--layout", "2d"}), 1);
    EXPECT_TRUE(says("a grid file in the layout 2d has 2 coordinates, and there are 3")) << err_;
    EXPECT_EQ(convert("out.x", {"--multi-grid", "no"}), 1);
    EXPECT_TRUE(says("there are 3 zones at one time")) << err_;
    EXPECT_FALSE(exists("out.x"));
}

TEST_F(ConvertCommandLine, TakesTheFormatFromAWord) {
    EXPECT_EQ(convert("out.data", {"--to", "csv"}), 0) << err_;
    EXPECT_EQ(lines("out.data")[0], "zone,time,i,j,k,X,Y,Z,RHO,RHO-U,RHO-V,RHO-W,E");
}

/// Runs the program in a shell, in the folder of the files; gives what it wrote to standard output.
class ConvertedThroughPipes : public ConvertCommandLine {
protected:
    std::string shown(const std::string& words) const {
        const std::string command = "cd " + directory_.path().string() + " && { " +
                                    PLOT3D_PROGRAM " convert " + words + "; } 2>err";
        std::FILE* const pipe = popen(command.c_str(), "r");
        std::string text;
        for (int letter = std::fgetc(pipe); letter != EOF; letter = std::fgetc(pipe))
            text += static_cast<char>(letter);
        pclose(pipe);
        return text;
    }
    std::string bytesOf(const std::string& name) const {
        std::ifstream in(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
};

TEST_F(ConvertedThroughPipes, IsATableOnStandardOutput) {
    ASSERT_EQ(convert("out.csv", {}), 0) << err_;
    EXPECT_EQ(shown("case.x case.q --to csv -o -"), bytesOf("out.csv"));
    EXPECT_EQ(shown("case.x case.q --to csv -o /dev/stdout"), bytesOf("out.csv"));
}

TEST_F(ConvertedThroughPipes, IsAGridFileOnStandardOutput) {
    EXPECT_EQ(shown("case.x --to plot3d -o -"), bytesOf("case.x"));
}

TEST_F(ConvertedThroughPipes, GoesOnWhereStandardOutputIsAFile) {
    shown("case.x --to plot3d -o - >begun; echo behind >>begun");
    EXPECT_EQ(bytesOf("begun"), bytesOf("case.x") + "behind\n") << bytesOf("err");
}

TEST_F(ConvertedThroughPipes, GoesIntoANamedPipe) {
    ASSERT_EQ(convert("out.vts", {"--zone", "1"}), 0) << err_;
    ASSERT_EQ(mkfifo(path("pipe.vts").c_str(), 0600), 0);
    EXPECT_EQ(shown("--zone 1 case.x case.q -o pipe.vts --overwrite & cat pipe.vts; wait"),
              bytesOf("out.vts"));
}

TEST_F(ConvertedThroughPipes, IsRefusedWhereAFormatGoesBackOrHasSeveralFiles) {
    for (const char* const format : {"vtk", "cgns", "npz"}) {
        EXPECT_EQ(shown(std::string("case.x case.q -o - --to ") + format), "");
        EXPECT_EQ(bytesOf("err"), std::string("plot3d: error: ") + format +
                                      " can't be written to standard output or a pipe; csv and "
                                      "plot3d can\n");
    }
    EXPECT_EQ(shown("case.x case.q -o - --to plot3d"), "");
    EXPECT_NE(bytesOf("err").find("these are 2 PLOT3D files"), std::string::npos);
}

} // namespace
} // namespace quorvia::testsupport
