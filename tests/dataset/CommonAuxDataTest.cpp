#include "dataset/items/CommonAuxData.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

#include "DatasetFixture.h"
#include "dataset/items/AuxDataItem.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

class CommonAuxData : public DatasetTest {
protected:
    bool setFor(const Texts& names) {
        makeDataSet(names);
        const HostStringList list(QuorUtilStringListAlloc());
        for (const std::string& name : names)
            QuorUtilStringListAppendString(list.get(), name.c_str());
        return setCommonAuxData(list.get());
    }
    host::AuxData items() { return host().frame().dataSet()->auxData; }
    const host::AuxData fixedItems = {{"Common.SpeedOfSound", "1.0"},
                                      {"Common.VectorVarsAreVelocity", "FALSE"}};
};

TEST_F(CommonAuxData, PointsAtEveryVariableWithAMeaning) {
    EXPECT_TRUE(setFor({"X", "RHO", "RHO-U", "RHO-V", "RHO-W", "E", "GAMMA", "K", "EPSILON"}));
    host::AuxData expected = fixedItems;
    expected.insert({{"Common.DensityVar", "2"},
                     {"Common.UVar", "3"},
                     {"Common.VVar", "4"},
                     {"Common.WVar", "5"},
                     {"Common.StagnationEnergyVar", "6"},
                     {"Common.GammaVar", "7"},
                     {"Common.TurbulentKineticEnergyVar", "8"},
                     {"Common.TurbulentDissipationRateVar", "9"}});
    EXPECT_EQ(items(), expected);
}

TEST_F(CommonAuxData, HasNoWInTwoDimensions) {
    EXPECT_TRUE(setFor({"X", "Y", "RHO", "RHO-U", "RHO-V", "E"}));
    EXPECT_EQ(items().count("Common.WVar"), 0U);
    EXPECT_EQ(items().at("Common.VVar"), "5");
}

TEST_F(CommonAuxData, ComparesNamesExactly) {
    EXPECT_TRUE(setFor({"Density", "rho", "RHO ", "RHO-C1"}));
    EXPECT_EQ(items(), fixedItems);
}

TEST_F(CommonAuxData, TakesTheLastOfEqualNames) {
    EXPECT_TRUE(setFor({"E", "X", "E"}));
    EXPECT_EQ(items().at("Common.StagnationEnergyVar"), "3");
}

TEST_F(CommonAuxData, FailsWithoutAName) {
    host().failCall("QuorUtilStringListGetString", 2);
    EXPECT_FALSE(setFor({"X", "RHO"}));
}

TEST_F(CommonAuxData, FailsWhenAnItemIsRefused) {
    host().failCall("QuorUtilAuxDataSetItem", 1);
    EXPECT_FALSE(setFor({"RHO", "E"}));
    EXPECT_EQ(items(), host::AuxData());
}

class AuxDataTextOfReal : public ::testing::TestWithParam<double> {};

TEST_P(AuxDataTextOfReal, IsAsPrinted) {
    std::array<char, 80> printed;
    std::snprintf(printed.data(), printed.size(), "%lG", GetParam());
    AuxDataText text;
    ASSERT_TRUE(formatReal(GetParam(), text));
    EXPECT_STREQ(text.data(), printed.data());
}

const double realsOfAllForms[] = {0.0,
                                  -0.0,
                                  0.5,
                                  -2.25,
                                  1e6,
                                  999999.5,
                                  1234567.0,
                                  123456.0,
                                  0.0001,
                                  0.00001234567,
                                  1.0 / 3.0,
                                  6.02e23,
                                  -1.7e308,
                                  4.9e-324,
                                  static_cast<double>(0.1F),
                                  std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::quiet_NaN()};

INSTANTIATE_TEST_SUITE_P(All, AuxDataTextOfReal, ::testing::ValuesIn(realsOfAllForms));

TEST(AuxDataTextOfInteger, IsDecimal) {
    AuxDataText text;
    ASSERT_TRUE(formatInteger(std::numeric_limits<std::int32_t>::min(), text));
    EXPECT_STREQ(text.data(), "-2147483648");
}

} // namespace
