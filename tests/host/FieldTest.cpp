// Stored fields and the ways to write them.
#include "HostFixture.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::host {
namespace {

class FieldTest : public HostTest {
protected:
    FieldTest() {
        createDataSet({"F", "D", "N"});
        const std::int32_t types[] = {1, 2, 3};
        const HostArgList arguments = zoneArguments(2, 3, 5);
        QuorUtilArgListAppendArray(arguments.get(), "VarDataType", types);
        QuorUtilDataSetAddZoneX(arguments.get());
    }
    static QuorFieldHandle writable(std::int32_t var) {
        QuorUtilDataValueAlloc(1, var);
        return QuorUtilDataValueGetWritableRef(1, var);
    }
};

TEST_F(FieldTest, KnowsItsTypeBeforeItHasValues) {
    EXPECT_EQ(QuorUtilDataValueGetType(1, 2), QuorFieldDataType_Double);
    EXPECT_EQ(QuorUtilDataValueGetLocation(1, 2), QuorValueLocation_Nodal);
    EXPECT_FALSE(QuorUtilDataValueIsPassive(1, 2));
}

TEST_F(FieldTest, EmptyHasNoArrayAndNoHandle) {
    void* array = this;
    std::int32_t type = 0;
    QuorUtilDataValueGetRawPtr(1, 2, &array, &type);
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(type, QuorFieldDataType_Double);
    EXPECT_EQ(QuorUtilDataValueGetWritableRef(1, 2), nullptr);
    EXPECT_EQ(host().fetch(1, 2).error, "The field is empty.");
}

TEST_F(FieldTest, ArrayIsTheFieldItself) {
    ASSERT_TRUE(QuorUtilDataValueAlloc(1, 2));
    void* array = nullptr;
    QuorUtilDataValueGetRawPtr(1, 2, &array, nullptr);
    static_cast<double*>(array)[29] = 10423.0;
    const FetchResult_s fetched = host().fetch(1, 2);
    EXPECT_EQ(fetched.count, 30);
    EXPECT_EQ(fetched.type, QuorFieldDataType_Double);
    EXPECT_EQ(static_cast<const double*>(fetched.values)[29], 10423.0);
}

TEST_F(FieldTest, AllocationBeginsAgainWithZeros) {
    QuorUtilDataValueAlloc(1, 1);
    void* array = nullptr;
    QuorUtilDataValueGetRawPtr(1, 1, &array, nullptr);
    static_cast<float*>(array)[0] = 7.0F;
    QuorUtilDataValueAlloc(1, 1);
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 0.0F);
}

TEST_F(FieldTest, WithoutPlainArraysIsWrittenValueByValue) {
    host().settings().plainArrays = false;
    const QuorFieldHandle handle = writable(1);
    void* array = this;
    QuorUtilDataValueGetRawPtr(1, 1, &array, nullptr);
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(QuorUtilDataValueGetRefType(handle), QuorFieldDataType_Float);
    QuorUtilDataValueRefGetSetFunc(handle)(handle, 0, 1.5);
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 1.5F);
}

TEST_F(FieldTest, SetFunctionConvertsToTheFieldsType) {
    const QuorFieldHandle handle = writable(3);
    const QuorFieldSetFunction set = QuorUtilDataValueRefGetSetFunc(handle);
    set(handle, 0, 2.6);
    set(handle, 1, 1e12);
    set(handle, 29, -3.0);
    const auto* values = static_cast<const std::int32_t*>(host().fetch(1, 3).values);
    EXPECT_EQ(values[0], 3);
    EXPECT_EQ(values[1], 2147483647);
    EXPECT_EQ(values[29], -3);
}

TEST_F(FieldTest, SetFunctionStaysInsideTheField) {
    const QuorFieldHandle handle = writable(1);
    QuorUtilDataValueRefGetSetFunc(handle)(handle, 30, 1.0);
    QuorUtilDataValueRefGetSetFunc(handle)(handle, -1, 1.0);
    expectViolations({"QuorUtilDataValueRefGetSetFunc: bad field handle, or no value 30",
                      "QuorUtilDataValueRefGetSetFunc: bad field handle, or no value -1"});
}

TEST_F(FieldTest, BlockIsCopiedFromAnIndexThatCountsFromOne) {
    const QuorFieldHandle handle = writable(1);
    const float block[] = {1.0F, 2.0F};
    QuorUtilDataValueArraySetByRef(handle, 29, 2, block);
    const auto* values = static_cast<const float*>(host().fetch(1, 1).values);
    EXPECT_EQ(values[28], 1.0F);
    EXPECT_EQ(values[29], 2.0F);
}

TEST_F(FieldTest, BlockStaysInsideTheField) {
    const QuorFieldHandle handle = writable(1);
    const float block[] = {1.0F, 2.0F};
    QuorUtilDataValueArraySetByRef(handle, 30, 2, block);
    EXPECT_EQ(static_cast<const float*>(host().fetch(1, 1).values)[29], 0.0F);
    expectViolations({"QuorUtilDataValueArraySetByRef: values 30 and the next, 2 in all, are not "
                      "in a field of 30"});
}

TEST_F(FieldTest, BlockIsNotTakenFromAnInterruptedGuest) {
    const QuorFieldHandle handle = writable(1);
    const float block[] = {1.0F};
    host().requestInterrupt();
    EXPECT_THROW(QuorUtilDataValueArraySetByRef(handle, 1, 1, block), InterruptedException);
    host().clearFaults();
    host().failCall("QuorUtilDataValueArraySetByRef", 1);
    EXPECT_THROW(QuorUtilDataValueArraySetByRef(handle, 1, 1, block), InterruptedException);
}

TEST_F(FieldTest, LocationAndPassivityAreTheModels) {
    field(1, 2).location = QuorValueLocation_CellCentred;
    field(1, 2).passive = true;
    EXPECT_EQ(QuorUtilDataValueGetLocation(1, 2), QuorValueLocation_CellCentred);
    EXPECT_TRUE(QuorUtilDataValueIsPassive(1, 2));
    QuorUtilDataValueAlloc(1, 2);
    EXPECT_EQ(host().fetch(1, 2).count, 8);
}

} // namespace
} // namespace quorvia::host
