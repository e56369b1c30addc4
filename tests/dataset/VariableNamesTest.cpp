#include <locale>
#include <new>

#include "DatasetFixture.h"
#include "dataset/variables/VariableNames.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

class VariableNames : public DatasetTest {
protected:
    Plot3DFile_s& solution(Plot3DDataStructure_e structure, Plot3DStyle_e style,
                           std::int32_t numVars, std::int32_t numSpecies = 0) {
        Plot3DFile_s& file = recordOf("q");
        file.isSolutionOrFunction = true;
        file.dataStructure = structure;
        file.style = style;
        file.numGrids = 1;
        file.numVars = numVars;
        file.numSpecies = numSpecies;
        return file;
    }
    Plot3DFile_s& function(std::int32_t numVars) {
        return solution(Plot3DDataStructure_3DWhole, Plot3DStyle_Function, numVars);
    }

    Texts namesOf(const Plot3DFileHandler& first, std::int32_t spatialVars = 3) {
        const HostStringList list(QuorUtilStringListAlloc());
        const std::int32_t solutionVars = first.hasSolutionFile() ? first.solutionFile->numVars : 0;
        const std::int32_t functionVars =
            first.hasFunctionFiles() ? first.functionFiles.front()->numVars : 0;
        lastIndex = buildVariableNames(shape.hasIBlank, spatialVars, solutionVars, functionVars,
                                       options, first, list.get(), {first});
        Texts names;
        for (std::int64_t index = 1; index <= QuorUtilStringListGetCount(list.get()); ++index)
            names.push_back(HostString(QuorUtilStringListGetString(list.get(), index)).str());
        return names;
    }

    Texts solutionNames(Plot3DDataStructure_e structure, Plot3DStyle_e style, std::int32_t numVars,
                        std::int32_t numSpecies = 0) {
        Texts names = namesOf(step(nullptr, &solution(structure, style, numVars, numSpecies)));
        names.erase(names.begin(), names.begin() + 3);
        return names;
    }

    void useNameFile(const std::string& lines) {
        options.hasNameFile = true;
        options.nameFile = directory.write("names.txt", lines);
    }

    std::int32_t lastIndex = 0;
};

TEST_F(VariableNames, OfGridAloneReadNoNameFile) {
    options.hasNameFile = true;
    options.nameFile = "no such file";
    EXPECT_EQ(namesOf(step(&recordOf("x"))), (Texts{"X", "Y", "Z"}));
    EXPECT_EQ(messages(), Texts());
}

TEST_F(VariableNames, BeginWithOneTwoOrThreeSpatialOnes) {
    EXPECT_EQ(namesOf(step(&recordOf("x")), 1), Texts{"X"});
    EXPECT_EQ(namesOf(step(&recordOf("x")), 2), (Texts{"X", "Y"}));
    EXPECT_EQ(lastIndex, 2);
}

TEST_F(VariableNames, HaveIBlankBehindTheSpatialOnes) {
    shape.hasIBlank = true;
    EXPECT_EQ(namesOf(step(&recordOf("x"))), (Texts{"X", "Y", "Z", "IBlank"}));
    EXPECT_EQ(namesOf(step(&recordOf("x")), 2), (Texts{"X", "Y", "IBlank"}));
}

TEST_F(VariableNames, OfOneDimensionArePaddedNumbersWhateverTheFileHolds) {
    const Texts expected = {"V2   ", "V3   ", "V4   "};
    EXPECT_EQ(solutionNames(Plot3DDataStructure_1D, Plot3DStyle_Classic, 3), expected);
    EXPECT_EQ(solutionNames(Plot3DDataStructure_1D, Plot3DStyle_Classic, 7), expected);
    EXPECT_EQ(solutionNames(Plot3DDataStructure_1D, Plot3DStyle_Classic, 1), expected);
}

struct NamesOfStyle_s {
    Plot3DDataStructure_e structure;
    Plot3DStyle_e style;
    std::int32_t numVars;
    std::int32_t numSpecies;
    Texts names;
};

class VariableNamesOfStyle : public VariableNames,
                             public ::testing::WithParamInterface<NamesOfStyle_s> {};

TEST_P(VariableNamesOfStyle, Stand) {
    const NamesOfStyle_s& row = GetParam();
    EXPECT_EQ(solutionNames(row.structure, row.style, row.numVars, row.numSpecies), row.names);
}

constexpr auto in2D = Plot3DDataStructure_2D;
constexpr auto in3D = Plot3DDataStructure_3DWhole;
constexpr auto inPlanes = Plot3DDataStructure_3DPlanes;
constexpr auto inElements = Plot3DDataStructure_Unstructured;
constexpr auto classic = Plot3DStyle_Classic;
constexpr auto swift = Plot3DStyle_Swift;
constexpr auto overflow = Plot3DStyle_Overflow;

const NamesOfStyle_s namesOfStyles[] = {
    {in2D, classic, 4, 0, {"RHO", "RHO-U", "RHO-V", "E"}},
    {in2D, swift, 4, 0, {"RHO", "RHO-U", "RHO-V", "E"}},
    {in3D, classic, 5, 0, {"RHO", "RHO-U", "RHO-V", "RHO-W", "E"}},
    {inPlanes, swift, 5, 0, {"RHO", "RHO-U", "RHO-V", "RHO-W", "E"}},
    {inElements, classic, 5, 0, {"RHO", "RHO-U", "RHO-V", "RHO-W", "E"}},
    {in3D, overflow, 5, 0, {"RHO", "RHO-U", "RHO-V", "RHO-W", "E"}},
    {in3D, overflow, 6, 0, {"RHO", "RHO-U", "RHO-V", "RHO-W", "E", "GAMMA"}},
    {in3D, overflow, 7, 0, {"RHO", "RHO-U", "RHO-V", "RHO-W", "E", "GAMMA", "RET"}},
    {in3D, overflow, 8, 0, {"RHO", "RHO-U", "RHO-V", "RHO-W", "E", "GAMMA", "K", "EPSILON"}},
    {inPlanes,
     overflow,
     10,
     2,
     {"RHO", "RHO-U", "RHO-V", "RHO-W", "E", "GAMMA", "RHO-C1", "RHO-C2", "K", "EPSILON"}},
    {in3D,
     overflow,
     9,
     0,
     {"RHO", "RHO-U", "RHO-V", "RHO-W", "E", "GAMMA", "V2   ", "V3   ", "V4   "}},
    // More species than variables: all are named, and nothing follows them.
    {in3D, overflow, 6, 2, {"RHO", "RHO-U", "RHO-V", "RHO-W", "E", "GAMMA", "RHO-C1", "RHO-C2"}},
};

INSTANTIATE_TEST_SUITE_P(All, VariableNamesOfStyle, ::testing::ValuesIn(namesOfStyles));

TEST_F(VariableNames, OfFunctionFilesCarryFileAndPlace) {
    EXPECT_EQ(namesOf(step(&recordOf("x"), nullptr, {&function(2), &function(3)})),
              (Texts{"X", "Y", "Z", "F1V1", "F1V2", "F2V1", "F2V2", "F2V3"}));
    EXPECT_EQ(lastIndex, 8);
}

TEST_F(VariableNames, TakeAsManyLinesAsTheNameFileHas) {
    useNameFile("density\nmomentum x\nmomentum y\n");
    EXPECT_EQ(solutionNames(in3D, classic, 5),
              (Texts{"density", "momentum x", "momentum y", "RHO-W", "E"}));
}

TEST_F(VariableNames, OfSpaceAndIBlankNeverComeFromTheNameFile) {
    useNameFile("a\nb\nc\nd\ne\nf\n");
    shape.hasIBlank = true;
    EXPECT_EQ(namesOf(step(&recordOf("x"), &solution(in2D, classic, 4)), 2),
              (Texts{"X", "Y", "IBlank", "a", "b", "c", "d"}));
}

TEST_F(VariableNames, OfFunctionsTakeTheLinesThatTheSolutionTook) {
    useNameFile("density\nenergy\n");
    const Texts names =
        namesOf(step(&recordOf("x"), &solution(in2D, classic, 4), {&function(3)}), 2);
    EXPECT_EQ(names,
              (Texts{"X", "Y", "density", "energy", "RHO-V", "E", "density", "energy", "F1V3"}));
}

TEST_F(VariableNames, ShowTheMissingNameFileForBothKinds) {
    options.hasNameFile = true;
    options.nameFile = "gone.nam";
    namesOf(step(&recordOf("x"), &solution(in3D, classic, 5), {&function(1)}));
    EXPECT_EQ(messages(), (Texts{"The Name File gone.nam could not be opened.",
                                 "The Name File gone.nam could not be opened."}));
}

TEST_F(VariableNames, OfFunctionsKeepApartFromThoseOfTheOldDataSet) {
    makeDataSet({"X", "Y", "f1v2"});
    EXPECT_EQ(namesOf(step(&recordOf("x"), nullptr, {&function(1), &function(1)})),
              (Texts{"X", "Y", "Z", "F2V1", "F3V1"}));
}

TEST_F(VariableNames, WithoutMemoryForOneThrow) {
    host().failCall("QuorUtilStringListSetString", 4);
    EXPECT_THROW(namesOf(step(nullptr, &solution(in3D, classic, 5))), std::bad_alloc);
}

// The header of a short text file claims counts that no file could bear out.
TEST_F(VariableNames, AreNoMoreThanTheFileBearsOut) {
    Plot3DFile_s& file = solution(in3D, overflow, 2000000000, -2000000000);
    file.encoding = Plot3DEncoding_Ascii;
    file.fileSize = 100;
    EXPECT_EQ(namesOf(step(nullptr, &file)).size(), 3 + 6 + 1000);
}

TEST_F(VariableNames, GoOnBehindAFunctionFileOfAbsurdCount) {
    Plot3DFile_s& file = function(2147483647);
    file.encoding = Plot3DEncoding_Binary;
    file.fileSize = 48;
    useNameFile("first\n");
    EXPECT_EQ(namesOf(step(&recordOf("x"), nullptr, {&file})).size(), 3 + 12);
}

class FreeFunctionOrdinal : public VariableNames {
protected:
    std::int32_t ordinalAmong(const Texts& names) {
        makeDataSet(names);
        std::int32_t ordinal = 1;
        EXPECT_TRUE(findFreeFunctionOrdinal(ordinal));
        return ordinal;
    }
};

TEST_F(FreeFunctionOrdinal, StaysWithoutDataSet) {
    std::int32_t ordinal = 5;
    EXPECT_TRUE(findFreeFunctionOrdinal(ordinal));
    EXPECT_EQ(ordinal, 5);
}

TEST_F(FreeFunctionOrdinal, IgnoresCaseOfExistingNames) {
    EXPECT_EQ(ordinalAmong({"X", "Y", "f1v2"}), 2);
    EXPECT_EQ(ordinalAmong({"X", "F1V1"}), 2);
}

TEST_F(FreeFunctionOrdinal, DoesNotTryTheLastNumber) {
    EXPECT_EQ(ordinalAmong({"X", "F1V2"}), 1);
    EXPECT_EQ(ordinalAmong({"F1V1"}), 1);
}

TEST_F(FreeFunctionOrdinal, PassesSeveralTakenOnes) {
    EXPECT_EQ(ordinalAmong({"F1V1", "F2V2", "F3V3", "F4V5"}), 4);
}

TEST_F(FreeFunctionOrdinal, FailsWithTheHost) {
    makeDataSet({"X", "Y"});
    std::int32_t ordinal = 1;
    host().failCall("QuorUtilVarGetEnabled", 1);
    EXPECT_FALSE(findFreeFunctionOrdinal(ordinal));
    host().failCall("QuorUtilVarGetName", 2);
    EXPECT_FALSE(findFreeFunctionOrdinal(ordinal));
}

class FieldDataType : public VariableNames {};

constexpr Plot3DLoadShape_s withIBlank{.numSpatialVars = 3, .hasIBlank = true};
constexpr Plot3DLoadShape_s withoutIBlank{.numSpatialVars = 3};

TEST_F(FieldDataType, IsIntegerForIBlankAlone) {
    Plot3DFile_s& grid = recordOf("x");
    grid.hasIBlank = true;
    grid.numVars = 3;
    grid.isDoublePrecision = true;
    const Plot3DFileHandler handler = step(&grid);
    EXPECT_EQ(fieldDataType(handler, 2, withIBlank), QuorFieldDataType_Double);
    EXPECT_EQ(fieldDataType(handler, 3, withIBlank), QuorFieldDataType_Int32);
    EXPECT_EQ(fieldDataType(handler, 3, withoutIBlank), QuorFieldDataType_Double);
}

TEST_F(FieldDataType, IsThePrecisionOfTheFile) {
    Plot3DFile_s& grid = recordOf("x");
    grid.numVars = 3;
    Plot3DFile_s& doubleSolution = solution(in3D, classic, 5);
    doubleSolution.isDoublePrecision = true;
    const Plot3DFileHandler handler = step(&grid, &doubleSolution);
    EXPECT_EQ(fieldDataType(handler, 2, withoutIBlank), QuorFieldDataType_Float);
    EXPECT_EQ(fieldDataType(handler, 3, withoutIBlank), QuorFieldDataType_Double);
}

} // namespace
