// A guest at the reference host: it has registered, holds the lock, and does what the tests say.
#pragma once

#include <cstdint>

#include "quorvia/HostHandles.h"
#include "quorvia/QuorUtil.h"
#include "support/HostedTest.h"

namespace quorvia::host {

using testsupport::Texts;

class HostTest : public testsupport::HostedTest {
protected:
    HostTest() : HostedTest(LeakCheck_e::None) { // a guest may leave something on purpose
        QuorUtilLockOn();
        static const QuorAddOnHandle guest = QuorUtilAddOnRegister(100, "Guest", "1", "Tests");
        QuorUtilLockOff();
        addOn_ = guest;
        host().clearFaults();
        QuorUtilLockStart(addOn_);
    }
    ~HostTest() override {
        if (!lockIsFree_)
            QuorUtilLockFinish(addOn_);
    }

    QuorAddOnHandle addOn() const { return addOn_; }
    void freeLock() {
        QuorUtilLockFinish(addOn_);
        lockIsFree_ = true;
    }

    static void createDataSet(const Texts& variableNames) {
        makeDataSet(variableNames, "Guest Loader", "Tests");
    }

    /// The arguments that every zone needs.
    static HostArgList zoneArguments(std::int64_t i, std::int64_t j, std::int64_t k,
                                     std::int64_t type = QuorZoneType_Ordered) {
        HostArgList arguments(QuorUtilArgListAlloc());
        QuorUtilArgListAppendString(arguments.get(), "Name", "zone");
        QuorUtilArgListAppendInt(arguments.get(), "ZoneType", type);
        QuorUtilArgListAppendInt(arguments.get(), "IMax", i);
        QuorUtilArgListAppendInt(arguments.get(), "JMax", j);
        QuorUtilArgListAppendInt(arguments.get(), "KMax", k);
        QuorUtilArgListAppendInt(arguments.get(), "DeferVarCreation", 1);
        return arguments;
    }
    /// A zone of empty fields.
    static void addZone(std::int64_t i, std::int64_t j, std::int64_t k,
                        std::int64_t type = QuorZoneType_Ordered) {
        ASSERT_TRUE(QuorUtilDataSetAddZoneX(zoneArguments(i, j, k, type).get()));
    }
    static Field_s& field(std::int32_t zone, std::int32_t var) {
        return *host().frame().dataSet()->field(zone, var);
    }
    static float firstFloat(const FetchResult_s& fetched) {
        return fetched.ok ? *static_cast<const float*>(fetched.values) : -1.0F;
    }

private:
    QuorAddOnHandle addOn_ = nullptr;
    bool lockIsFree_ = false;
};

/// A field that its source keeps: counts what the host asks of it. Must outlive the registration.
struct FakeSource_s {
    float firstValue = 0.0F;
    bool loads = true;
    bool allowsUnload = true;
    int loadCount = 0;
    int unloadCount = 0;
    int cleanUpCount = 0;

    bool registerAt(std::int32_t zone, std::int32_t var) {
        return QuorUtilDataValueCustomLOD(zone, var, load, unload, cleanUp, nullptr, nullptr, this);
    }

    static FakeSource_s& of(QuorFieldHandle field) {
        return *static_cast<FakeSource_s*>(QuorUtilDataValueGetClientData(field));
    }
    static bool load(QuorFieldHandle field) {
        FakeSource_s& source = of(field);
        ++source.loadCount;
        if (source.loads)
            *static_cast<float*>(QuorUtilDataValueGetRawPtrByRef(field)) = source.firstValue;
        return source.loads;
    }
    static bool unload(QuorFieldHandle field) {
        ++of(field).unloadCount;
        return of(field).allowsUnload;
    }
    static void cleanUp(QuorFieldHandle field) { ++of(field).cleanUpCount; }
};

} // namespace quorvia::host
