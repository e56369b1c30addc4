// Lists of files: what the first one settles, and what becomes of the later ones.
#include "StructureTest.h"

namespace quorvia::quorutildataio {
namespace {

class FileList : public StructureTest {
protected:
    FileList() {
        options.solutionsShareStructure = false;
        options.uniformGridStructure = false;
        disk.put("small.x", FileBytes().integers({2, 3, 5}).equalReals(3 * 30).str());
        disk.put("large.x", FileBytes().integers({7, 3, 2}).equalReals(3 * 42).str());
        disk.put("multi.x", FileBytes().integers({1, 2, 3, 5}).equalReals(3 * 30).str());
        disk.put("plane.x", FileBytes().integers({5, 7}).equalReals(2 * 35).str());
        disk.put("a.q", FileBytes().integers({2, 3, 5}).equalReals(4 + 5 * 30).str());
        disk.put("b.q", FileBytes().integers({2, 3, 5}).equalDoubles(4 + 5 * 30).str());
        disk.put("a.fun", FileBytes().integers({1, 2, 3, 5, 2}).equalReals(2 * 30).str());
    }

    Plot3DFile_s* build(const char* name, bool isSolutionOrFunction) {
        files.push_back(buildPlot3DFile(builder, name, isSolutionOrFunction));
        return files.back().get();
    }

    Plot3DFileBuilder builder{options};
    Plot3DFileList files;
};

using Texts = std::vector<std::string>;

// ---- Later files --------------------------------------------------------------------------------

TEST_F(FileList, KeepsTheFirstFileOfTheList) {
    Plot3DFile_s* first = build("small.x", gridFile);
    build("large.x", gridFile);
    EXPECT_EQ(builder.firstFile, first);
    EXPECT_NE(files[1], nullptr);
}

TEST_F(FileList, DoesNotTakeARefusedFileForTheFirst) {
    EXPECT_EQ(build("missing.x", gridFile), nullptr);
    EXPECT_EQ(builder.firstFile, nullptr);
}

TEST_F(FileList, DetectsAndValidatesEachSolutionFileThatSharesNoStructure) {
    options.uniformGridStructure = true;
    build("a.q", solutionOrFunction);
    Plot3DFile_s* second = build("b.q", solutionOrFunction);
    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(second->isDoublePrecision);
    EXPECT_EQ(build("a.fun", solutionOrFunction), nullptr);
    EXPECT_EQ(messages(), Texts{"There are Solution Files mixed up with Function Files. Please "
                                "load them separately."});
}

TEST_F(FileList, ValidatesGridFilesOfALoadThatIsNotUniform) {
    build("small.x", gridFile);
    EXPECT_EQ(build("plane.x", gridFile), nullptr);
    EXPECT_EQ(messages(), Texts{"All files must have the same data structure."});
}

// ---- Reuse of the first file's structure --------------------------------------------------------

TEST_F(FileList, KeepsTheSizeOfTheFirstFileIfItsStructureIsReused) {
    options.uniformGridStructure = true;
    build("small.x", gridFile);
    disk.put("longer.x", FileBytes().integers({2, 3, 5}).equalReals(3 * 30 + 7).str());
    Plot3DFile_s* second = build("longer.x", gridFile);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->fileSize, 12 + 4 * 3 * 30);
    EXPECT_EQ(second->fileName.str(), "longer.x");
    EXPECT_EQ(second->stream, nullptr);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(FileList, TriesPrecisionAgainIfTheStructureIsReused) {
    options.uniformGridStructure = true;
    build("small.x", gridFile);
    disk.put("iblank.x", FileBytes().integers({2, 3, 5}).equalReals(4 * 30).str());
    files[0]->fileSize = 12 + 4 * 4 * 30; // as if both files had the size of this one
    Plot3DFile_s* second = build("iblank.x", gridFile);
    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(second->hasIBlank);
}

// One plane is read the same way in whole and in planes; searched afresh it would be whole.
TEST_F(FileList, TriesNoOtherStructureThanTheReusedOne) {
    options.uniformGridStructure = true;
    const auto planes = [](std::int32_t count) {
        FileBytes bytes = FileBytes().record(FileBytes().integers({2, 3, count}));
        for (std::int32_t plane = 0; plane < count; ++plane)
            bytes.record(FileBytes().equalReals(3 * 6));
        return bytes.str();
    };
    disk.put("planes.x", planes(5));
    disk.put("one.x", planes(1));
    ASSERT_EQ(build("planes.x", gridFile)->dataStructure, Plot3DDataStructure_3DPlanes);
    EXPECT_EQ(build("one.x", gridFile)->dataStructure, Plot3DDataStructure_3DPlanes);
}

TEST_F(FileList, ReusesTheWidthOfMarkers) {
    options.uniformGridStructure = true;
    const auto grid = [](std::int32_t i) {
        FileBytes bytes(Order_e::Native, 8);
        bytes.record(FileBytes().integers({i, 3, 5}));
        return bytes.record(FileBytes().equalReals(15 * 3 * i)).str();
    };
    disk.put("first.x", grid(2));
    disk.put("second.x", grid(7));
    ASSERT_EQ(build("first.x", gridFile)->markerSize, 8U);
    EXPECT_EQ(build("second.x", gridFile)->gridDims[0], (Plot3DGridDims_s{7, 3, 5}));
}

TEST_F(FileList, FindsTheByteOrderAgainIfTheStructureIsReused) {
    options.uniformGridStructure = true;
    build("small.x", gridFile);
    FileBytes reversed(Order_e::Swapped);
    disk.put("reversed.x", reversed.integers({2, 3, 5}).equalReals(3 * 30).str());
    Plot3DFile_s* second = build("reversed.x", gridFile);
    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(second->byteSwap);
    EXPECT_EQ(second->gridDims[0], (Plot3DGridDims_s{2, 3, 5}));
}

TEST_F(FileList, GivesBackAFileThatDoesNotFitTheReusedStructure) {
    options.uniformGridStructure = true;
    build("small.x", gridFile);
    EXPECT_NE(build("plane.x", gridFile), nullptr);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(FileList, RefusesAFileThatDoesNotOpenThoughItsStructureIsReused) {
    options.uniformGridStructure = true;
    build("small.x", gridFile);
    EXPECT_EQ(build("missing.x", gridFile), nullptr);
    EXPECT_EQ(messages(), Texts{"The file missing.x could not be opened."});
}

TEST_F(FileList, ReusesTheStructureOfSolutionsThatShareIt) {
    options.uniformGridStructure = true;
    options.solutionsShareStructure = true;
    build("a.q", solutionOrFunction);
    Plot3DFile_s* second = build("b.q", solutionOrFunction);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->fileSize, files[0]->fileSize);
    EXPECT_TRUE(second->solutionsShareStructure);
}

TEST_F(FileList, RelaxesItsChecksOfAReusedFortranFile) {
    options.uniformGridStructure = true;
    const auto grid = [](std::int64_t reals) {
        return FileBytes()
            .record(FileBytes().integers({2, 3, 5}))
            .record(FileBytes().equalReals(reals))
            .str();
    };
    disk.put("exact.x", grid(90));
    disk.put("longer.x", grid(97));
    build("exact.x", gridFile);
    Plot3DFile_s* second = build("longer.x", gridFile);
    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(second->relaxedChecks);
}

// ---- Whether solutions share a structure --------------------------------------------------------

TEST_F(FileList, LetsATextFileEndTheSharingOfStructures) {
    options.uniformGridStructure = true;
    options.solutionsShareStructure = true;
    disk.put("text.q", "2 3 5\n1 2 3 4\n" + std::string(60, '1'));
    build("text.q", solutionOrFunction);
    EXPECT_FALSE(options.solutionsShareStructure);
    EXPECT_FALSE(files[0]->solutionsShareStructure);
}

TEST_F(FileList, LetsALoadThatIsNotUniformEndTheSharingOfStructures) {
    options.solutionsShareStructure = true;
    build("a.q", solutionOrFunction);
    EXPECT_FALSE(options.solutionsShareStructure);
}

TEST_F(FileList, KeepsTheSharingOfStructuresBesideOneGridFile) {
    options.solutionsShareStructure = true;
    options.hasGridFiles = true;
    options.gridFiles = {"small.x"};
    build("a.q", solutionOrFunction);
    EXPECT_TRUE(options.solutionsShareStructure);
    EXPECT_TRUE(files[0]->solutionsShareStructure);
}

// ---- What the load learns from the first files --------------------------------------------------

class DetectedOptions : public FileList {
protected:
    DetectedOptions() {
        options.dataStructure = Plot3DDataStructure_Unknown;
        options.style = Plot3DStyle_Unknown;
        options.isMultiGrid = false;
    }
};

TEST_F(DetectedOptions, TakeTheStructureOfTheFirstGridFile) {
    build("multi.x", gridFile);
    EXPECT_EQ(options.dataStructure, Plot3DDataStructure_3DWhole);
    EXPECT_TRUE(options.isMultiGrid);
    EXPECT_EQ(options.style, Plot3DStyle_Unknown);
}

TEST_F(DetectedOptions, TakeTheStyleOfTheFirstSolutionFileAndNoStructureBesideGridFiles) {
    options.gridFiles = {"small.x"};
    options.solutionFiles = {"a.q"};
    build("a.q", solutionOrFunction);
    EXPECT_EQ(options.style, Plot3DStyle_Classic);
    EXPECT_EQ(options.dataStructure, Plot3DDataStructure_Unknown);
}

TEST_F(DetectedOptions, TakeTheStructureOfTheFirstSolutionFileIfThereAreNoGridFiles) {
    options.solutionFiles = {"a.q"};
    build("a.q", solutionOrFunction);
    EXPECT_EQ(options.dataStructure, Plot3DDataStructure_3DWhole);
    EXPECT_FALSE(options.isMultiGrid);
}

TEST_F(DetectedOptions, TakeStyleAndStructureOfTheFirstFunctionFileIfThereIsNoOther) {
    options.functionFiles = {"a.fun"};
    build("a.fun", solutionOrFunction);
    EXPECT_EQ(options.style, Plot3DStyle_Function);
    EXPECT_TRUE(options.isMultiGrid);
}

TEST_F(DetectedOptions, TakeNothingOfFunctionFilesBesideSolutionFiles) {
    options.solutionFiles = {"a.q"};
    options.functionFiles = {"a.fun"};
    build("a.fun", solutionOrFunction);
    EXPECT_EQ(options.style, Plot3DStyle_Unknown);
    EXPECT_FALSE(options.isMultiGrid);
}

TEST_F(DetectedOptions, TakeNothingOfLaterFiles) {
    build("small.x", gridFile);
    options.dataStructure = Plot3DDataStructure_Unknown;
    build("large.x", gridFile);
    EXPECT_EQ(options.dataStructure, Plot3DDataStructure_Unknown);
}

TEST_F(DetectedOptions, KeepAManualDescription) {
    describe(Plot3DDataStructure_3DPlanes, Plot3DStyle_Swift, false);
    build("small.x", gridFile);
    EXPECT_EQ(options.dataStructure, Plot3DDataStructure_3DPlanes);
    EXPECT_EQ(options.style, Plot3DStyle_Swift);
}

} // namespace
} // namespace quorvia::quorutildataio
