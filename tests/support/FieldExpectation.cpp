#include "support/FieldExpectation.h"

#include <cstring>

namespace quorvia::testsupport {
namespace {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

/// Points of a zone in each direction; in a finite-element zone all nodes are a line along I.
struct Extent_s {
    std::int64_t i = 1, j = 1, k = 1;
};

Extent_s extentOf(const host::Zone_s& zone) {
    if (!zone.isOrdered())
        return {zone.i, 1, 1};
    return {zone.i, zone.j, zone.k};
}

template <class Value>
AssertionResult compareValues(const host::FetchResult_s& fetched, const Extent_s& extent,
                              const ValueAt& expected) {
    const auto* const values = static_cast<const Value*>(fetched.values);
    std::int64_t index = 0;
    for (std::int64_t k = 0; k < extent.k; ++k)
        for (std::int64_t j = 0; j < extent.j; ++j)
            for (std::int64_t i = 0; i < extent.i; ++i, ++index) {
                const Value wanted = static_cast<Value>(expected(i, j, k));
                // Bit for bit, since nothing on the way may round a value or touch a NaN.
                if (std::memcmp(&wanted, values + index, sizeof wanted) != 0)
                    return AssertionFailure()
                           << "at (" << i << ", " << j << ", " << k << "): found " << +values[index]
                           << ", expected " << +wanted;
            }
    return AssertionSuccess();
}

AssertionResult compareFetched(const host::FetchResult_s& fetched, const Extent_s& extent,
                               const ValueAt& expected) {
    switch (fetched.type) {
    case QuorFieldDataType_Float:
        return compareValues<float>(fetched, extent, expected);
    case QuorFieldDataType_Double:
        return compareValues<double>(fetched, extent, expected);
    case QuorFieldDataType_Int32:
        return compareValues<std::int32_t>(fetched, extent, expected);
    default:
        return AssertionFailure() << "unknown type " << fetched.type;
    }
}

} // namespace

AssertionResult fieldIs(host::ReferenceHost& host, std::int32_t zoneNumber, std::int32_t variable,
                        const FieldExpectation_s& expected) {
    const host::DataSet* const dataSet = host.frame().dataSet();
    const host::Zone_s* const zone = dataSet != nullptr ? dataSet->zone(zoneNumber) : nullptr;
    const host::Field_s* const field =
        zone != nullptr ? dataSet->field(zoneNumber, variable) : nullptr;
    if (field == nullptr)
        return AssertionFailure() << "there is no field of zone " << zoneNumber << ", variable "
                                  << variable;
    const AssertionResult where = AssertionFailure()
                                  << "zone " << zoneNumber << ", variable " << variable << ": ";
    if (field->type != expected.type)
        return AssertionResult(where) << "type " << field->type << ", expected " << expected.type;
    if (field->state() != expected.state)
        return AssertionResult(where) << "state " << static_cast<int>(field->state())
                                      << ", expected " << static_cast<int>(expected.state);

    const host::FetchResult_s fetched = host.fetch(zoneNumber, variable);
    if (!fetched.ok)
        return AssertionResult(where) << "not fetched: " << fetched.error;
    const Extent_s extent = extentOf(*zone);
    if (fetched.count != extent.i * extent.j * extent.k)
        return AssertionResult(where) << fetched.count << " values in a zone of " << extent.i
                                      << " x " << extent.j << " x " << extent.k;
    const AssertionResult compared = compareFetched(fetched, extent, expected.value);
    return compared ? compared : AssertionResult(where) << compared.message();
}

} // namespace quorvia::testsupport
