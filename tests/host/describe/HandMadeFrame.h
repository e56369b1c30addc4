// A frame that is filled by hand, and what is told of it.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "describe/GatherOutcome.h"

namespace quorvia::host {

/// Of each field.
inline constexpr std::int64_t handMadeValueCount = 2 * 3 * 5;

/// Gives 1, 2, 3 ... and counts how often it was asked, or refuses.
class CountingDeferral : public Deferral {
public:
    CountingDeferral(int& loads, bool works) : loads_(loads), works_(works) {}
    bool load(FieldStorage& storage) noexcept override {
        ++loads_;
        auto* values = static_cast<float*>(storage.values());
        for (std::int64_t index = 0; works_ && index < storage.valueCount(); ++index)
            values[index] = static_cast<float>(index + 1);
        return works_;
    }
    bool mayUnload(FieldStorage&) noexcept override { return true; }

private:
    int& loads_;
    bool works_;
};

/// The frame is filled by hand: what is told must not depend on how it came in.
class HandMadeFrame : public testing::Test {
protected:
    HandMadeFrame() {
        host.reset();
        dataSet = &host.frame().createDataSet("Loader", "Hand-made", {"X", "Density "});
    }
    ~HandMadeFrame() override { host.reset(); }

    static Field_s fieldOf(std::shared_ptr<FieldStorage> storage) {
        Field_s field;
        field.storage = std::move(storage);
        return field;
    }
    std::shared_ptr<FieldStorage> deferred(bool works = true) {
        return FieldStorage::deferred<CountingDeferral>(QuorFieldDataType_Float, handMadeValueCount,
                                                        loads, works);
    }
    static std::shared_ptr<FieldStorage> stored() {
        return FieldStorage::stored(QuorFieldDataType_Float, handMadeValueCount);
    }

    /// An ordered zone of 2 x 3 x 5 points; null storage is an empty field.
    Zone_s& addZone(std::shared_ptr<FieldStorage> x, std::shared_ptr<FieldStorage> density) {
        auto zone = std::make_unique<Zone_s>();
        zone->name = "Zone";
        zone->i = 2;
        zone->j = 3;
        zone->k = 5;
        zone->fields = {fieldOf(std::move(x)), fieldOf(std::move(density))};
        return dataSet->addZone(std::move(zone));
    }

    /// A zone of triangles over three nodes.
    Zone_s& addTriangles(std::shared_ptr<NodeMap> nodeMap) {
        Zone_s& zone = addZone(nullptr, nullptr);
        zone.type = QuorZoneType_Triangles;
        zone.i = nodeMap->nodeCount();
        zone.j = nodeMap->elementCount();
        zone.k = nodeMap->cornerCount();
        zone.nodeMap = std::move(nodeMap);
        return zone;
    }

    DataSetOutcome_s described() {
        LoadResult_s result;
        result.ok = true;
        return describeOutcome(host, result).dataSet.value();
    }

    ReferenceHost& host = ReferenceHost::instance();
    DataSet* dataSet = nullptr;
    int loads = 0;
};

} // namespace quorvia::host
