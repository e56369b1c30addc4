// Files that a Fortran program has written: see write_plot3d.f90, whose values are repeated here.
#include <cmath>

#include "support/FieldExpectation.h"
#include "support/LoadedAddOn.h"

namespace quorvia::testsupport {
namespace {

/// One way in which the Fortran program writes numbers.
struct FortranForm_s {
    std::string folder; // of the width of record markers
    std::string stem;   // of the names of its files
    bool isText = false;
    bool isDouble = false;
};

std::string nameOf(const FortranForm_s& form) {
    return form.isText ? form.stem : form.folder + "_" + form.stem;
}

void PrintTo(const FortranForm_s& form, std::ostream* out) {
    *out << nameOf(form);
}

std::vector<FortranForm_s> recordForms() {
    std::vector<FortranForm_s> forms;
    for (const char* const folder : {"markers4", "markers8"})
        for (const char* const order : {"little", "big"})
            for (const bool isDouble : {false, true})
                forms.push_back({folder,
                                 "records_" + std::string(order) + (isDouble ? "_64" : "_32"),
                                 false, isDouble});
    return forms;
}

std::vector<FortranForm_s> everyForm() {
    std::vector<FortranForm_s> forms = recordForms();
    for (const char* const order : {"little", "big"})
        for (const bool isDouble : {false, true})
            forms.push_back({"markers4",
                             "stream_" + std::string(order) + (isDouble ? "_64" : "_32"), false,
                             isDouble});
    for (const char* const form : {"list", "fixed", "repeated"})
        for (const bool isDouble : {false, true})
            forms.push_back(
                {"markers4", std::string(form) + (isDouble ? "_64" : "_32"), true, isDouble});
    return forms;
}

enum FileKind_e { GridFile = 0, SolutionFile = 20, FunctionFile = 40 }; // as the values tell them

/// A value as Fortran counts: grid and variable from 1; the points from 0 as in a field.
double placeOf(FileKind_e kind, std::int64_t grid, std::int64_t variable, std::int64_t i,
               std::int64_t j, std::int64_t k) {
    if (variable == 5)
        return 2.5;
    const std::int64_t whole =
        kind + (i + 1) + 100 * (j + 1) + 10000 * (k + 1) + 100000 * variable + 1000000 * grid;
    return static_cast<double>(whole) + 0.25 + std::ldexp(1.0, -30);
}

class FortranFiles : public LoadedAddOnTest, public ::testing::WithParamInterface<FortranForm_s> {
protected:
    static std::string path(const char* ending) {
        return std::string(FORTRAN_FILES_FOLDER) + "/" + GetParam().folder + "/" + GetParam().stem +
               ending;
    }

    static void expectLoadsFiles(Load_s load, bool hasIBlank) {
        if (GetParam().isText)
            load.settings = {{"ASCIIISDOUBLE", GetParam().isDouble ? "Yes" : "No"},
                             {"ASCIIHASIBLANK", hasIBlank ? "Yes" : "No"}};
        expectLoads(load);
    }

    static void expectSizes(std::int32_t zoneNumber, std::int64_t i, std::int64_t j,
                            std::int64_t k) {
        EXPECT_EQ(zone(zoneNumber).i, i);
        EXPECT_EQ(zone(zoneNumber).j, j);
        EXPECT_EQ(zone(zoneNumber).k, k);
    }

    static host::FieldState_e wholeFieldState() {
        return GetParam().isText ? host::FieldState_e::Stored : host::FieldState_e::Deferred;
    }

    /// All variables of a file in every zone, from the host's variable `firstVariable` on.
    static void expectFields(FileKind_e kind, std::int32_t firstVariable, std::int32_t count,
                             host::FieldState_e state) {
        for (std::int32_t grid = 1; grid <= dataSet().zoneCount(); ++grid)
            for (std::int32_t variable = 1; variable <= count; ++variable) {
                const auto value = [=](std::int64_t i, std::int64_t j, std::int64_t k) {
                    return placeOf(kind, grid, variable, i, j, k);
                };
                const std::int32_t type =
                    GetParam().isDouble ? QuorFieldDataType_Double : QuorFieldDataType_Float;
                EXPECT_TRUE(
                    fieldIs(host(), grid, firstVariable + variable - 1, {type, state, value}));
            }
    }

    /// The last plane of each grid is switched off.
    static void expectIBlank(std::int32_t variable) {
        for (std::int32_t grid = 1; grid <= dataSet().zoneCount(); ++grid) {
            const std::int64_t lastPlane = zone(grid).k - 1;
            const auto value = [lastPlane](std::int64_t, std::int64_t, std::int64_t k) {
                return k == lastPlane ? 0.0 : 1.0;
            };
            EXPECT_TRUE(fieldIs(host(), grid, variable,
                                {QuorFieldDataType_Int32, wholeFieldState(), value}));
        }
    }
};

TEST_P(FortranFiles, HoldThreeGridsWithIBlank) {
    constexpr bool hasIBlank = true;
    expectLoadsFiles({{path(".x")}, {}, {}, {}, {}}, hasIBlank);
    ASSERT_EQ(dataSet().zoneCount(), 3);
    expectSizes(1, 2, 3, 5);
    expectSizes(2, 5, 2, 3);
    expectSizes(3, 3, 7, 2);
    expectFields(GridFile, 1, 3, wholeFieldState());
    expectIBlank(4);
}

TEST_P(FortranFiles, HoldASolutionOfTheseGrids) {
    constexpr bool hasIBlank = true;
    expectLoadsFiles({{path(".x")}, {path(".q")}, {}, {}, {}}, hasIBlank);
    ASSERT_EQ(dataSet().zoneCount(), 3);
    expectFields(SolutionFile, 5, 5, wholeFieldState());
    EXPECT_EQ(zone(3).solutionTime, 0.375);
    EXPECT_EQ(zone(3).auxData, host::AuxData({{"Common.ReferenceMachNumber", "3.5"},
                                              {"Common.AngleOfAttack", "-2.25"},
                                              {"Common.ReynoldsNumber", "1.5E+06"}}));
}

TEST_P(FortranFiles, HoldFunctionsOfTheseGrids) {
    constexpr bool hasIBlank = true;
    expectLoadsFiles({{path(".x")}, {}, {path(".f")}, {}, {}}, hasIBlank);
    ASSERT_EQ(dataSet().zoneCount(), 3);
    EXPECT_EQ(variableNames(), Texts({"X", "Y", "Z", "IBlank", "F1V1", "F1V2"}));
    expectFields(FunctionFile, 5, 2, wholeFieldState());
}

TEST_P(FortranFiles, HoldOneGridWithoutACount) {
    constexpr bool hasIBlank = false;
    expectLoadsFiles({{path("_single.x")}, {}, {}, {}, {}}, hasIBlank);
    ASSERT_EQ(dataSet().zoneCount(), 1);
    expectSizes(1, 2, 3, 5);
    expectFields(GridFile, 1, 3, wholeFieldState());
}

INSTANTIATE_TEST_SUITE_P(Every, FortranFiles, ::testing::ValuesIn(everyForm()),
                         [](const auto& tested) { return nameOf(tested.param); });

class FortranRecords : public FortranFiles {};

TEST_P(FortranRecords, TellPlanesFromWholeFields) {
    constexpr bool hasIBlank = false;
    expectLoadsFiles({{path("_planes.x")}, {}, {}, {}, {}}, hasIBlank);
    ASSERT_EQ(dataSet().zoneCount(), 3);
    expectSizes(3, 3, 7, 2);
    expectFields(GridFile, 1, 3, host::FieldState_e::Stored);
}

INSTANTIATE_TEST_SUITE_P(Every, FortranRecords, ::testing::ValuesIn(recordForms()),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace
} // namespace quorvia::testsupport
