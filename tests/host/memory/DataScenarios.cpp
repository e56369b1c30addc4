// The operations on frame, data set, zones, variables and fields.
#include <array>

#include "memory/ServiceScenarios.h"

namespace quorvia::host {

namespace {

constexpr std::array<std::int32_t, 2> types = {QuorFieldDataType_Double, QuorFieldDataType_Int32};

void readyNothing(Guest_s&) {}

void readyDataSetArguments(Guest_s& guest) {
    guest.list = HostStringList(QuorUtilStringListAlloc());
    QuorUtilStringListAppendString(guest.list.get(), longText);
    QuorUtilStringListAppendString(guest.list.get(), "Y");
    guest.arguments = HostArgList(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(guest.arguments.get(), "LoaderName", longText);
    QuorUtilArgListAppendString(guest.arguments.get(), "DataSetTitle", longText);
    QuorUtilArgListAppendStringList(guest.arguments.get(), "VarNames", guest.list.get());
}

/// A deferred field that was never in memory, another that is, and a stored one.
void readyFields(Guest_s& guest) {
    readyZones(guest);
    guest.first.registerAt(1, 1);
    guest.second.registerAt(2, 1);
    ReferenceHost::instance().fetch(2, 1);
    QuorUtilDataValueAlloc(1, 2);
}

void readyDataSetInPlaceOfFields(Guest_s& guest) {
    readyFields(guest);
    readyDataSetArguments(guest);
}

void readyZoneArguments(Guest_s& guest) {
    readyZones(guest);
    guest.arguments = Made::zoneArguments(2, 3, 5);
}

void readyFullZoneArguments(Guest_s& guest) {
    readyZones(guest);
    guest.arguments = HostArgList(QuorUtilArgListAlloc());
    const QuorArgListHandle arguments = guest.arguments.get();
    QuorUtilArgListAppendString(arguments, "Name", longText);
    QuorUtilArgListAppendInt(arguments, "ZoneType", QuorZoneType_Triangles);
    for (const char* key : {"IMax", "JMax", "KMax"})
        QuorUtilArgListAppendInt(arguments, key, 3);
    QuorUtilArgListAppendInt(arguments, "StrandID", 7);
    QuorUtilArgListAppendDouble(arguments, "SolutionTime", 2.5);
    QuorUtilArgListAppendInt(arguments, "ParentZone", 1);
    QuorUtilArgListAppendArray(arguments, "VarDataType", types.data());
}

void readyVariableArguments(Guest_s& guest) {
    readyFields(guest);
    guest.arguments = HostArgList(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(guest.arguments.get(), "Name", longText);
    QuorUtilArgListAppendArray(guest.arguments.get(), "VarDataType", types.data());
}

void readyFieldsAndSet(Guest_s& guest) {
    readyFields(guest);
    guest.set = Made::setOf({1});
}

void readyFieldsAndSetOfAll(Guest_s& guest) {
    readyFields(guest);
    guest.set = Made::setOf({1, 2});
}

void readyTimes(Guest_s& guest) {
    readyZones(guest);
    guest.list = HostStringList(QuorUtilStringListAlloc());
    for (const char* name : {"a/long/path/of/folders/to/t1.q", "a/long/path/of/folders/to/t2.q"})
        QuorUtilStringListAppendString(guest.list.get(), name);
}

void readyWritable(Guest_s& guest) {
    readyFields(guest);
    guest.field = QuorUtilDataValueGetWritableRef(1, 2);
}

void readyStoredCopies(Guest_s& guest) {
    readyFields(guest);
    QuorUtilDataValueAlloc(2, 2);
}

void readyCopyOfDeferred(Guest_s& guest) {
    readyZones(guest);
    guest.first.registerAt(1, 1);
    QuorUtilDataValueAlloc(2, 1);
}

void readyTriangles(Guest_s& guest) {
    Made::createDataSet({"X"});
    Made::addZone(3, 2, 3, QuorZoneType_Triangles);
    guest.set = Made::setOf({1});
}

void readyNodes(Guest_s& guest) {
    readyTriangles(guest);
    guest.nodes = QuorUtilDataNodeGetRef(1);
}

void readyAuxData(Guest_s& guest) {
    readyZones(guest);
    guest.auxData = QuorUtilAuxDataZoneGetRef(1);
    QuorUtilAuxDataSetItem(guest.auxData, "old", "old", 0, 1);
}

// ---- The calls of a guest -----------------------------------------------------------------------

std::vector<ServiceScenario_s> frameScenarios() {
    return {
        {"QuorUtilFrameGetPlotType", readyNothing,
         [](Guest_s&) { return told(QuorUtilFrameGetPlotType() == QuorPlotType_None); }},
        {"QuorUtilFrameSetPlotType", readyNothing,
         [](Guest_s&) {
             QuorUtilFrameSetPlotType(QuorPlotType_2D);
             return Ended_e::Done;
         }},
        {"QuorUtilFrameGetUniqueID", readyNothing,
         [](Guest_s&) { return told(QuorUtilFrameGetUniqueID()); }},
        {"QuorUtilFrameReset", readyFields,
         [](Guest_s&) {
             QuorUtilFrameReset(QuorUtilFrameGetUniqueID());
             return Ended_e::Done;
         }},
        {"QuorUtilRedraw", readyNothing,
         [](Guest_s&) {
             QuorUtilRedraw(true);
             return Ended_e::Done;
         }},
    };
}

std::vector<ServiceScenario_s> dataSetScenarios() {
    return {
        {"QuorUtilDataSetIsAvailable", readyZones,
         [](Guest_s&) { return told(QuorUtilDataSetIsAvailable()); }},
        {"QuorUtilDataSetGetInfo", readyZones,
         [](Guest_s& guest) {
             std::int32_t zones = 0;
             std::int32_t vars = 0;
             return told(QuorUtilDataSetGetInfo(guest.text.outArgument(), &zones, &vars) &&
                         guest.text && zones == 2 && vars == 2);
         }},
        {"QuorUtilDataSetCreateX", readyDataSetArguments,
         [](Guest_s& guest) { return told(QuorUtilDataSetCreateX(guest.arguments.get())); }},
        {"QuorUtilDataSetCreateX", readyDataSetInPlaceOfFields,
         [](Guest_s& guest) { return told(QuorUtilDataSetCreateX(guest.arguments.get())); }},
        {"QuorUtilDataSetAddZoneX", readyZoneArguments,
         [](Guest_s& guest) { return told(QuorUtilDataSetAddZoneX(guest.arguments.get())); }},
        {"QuorUtilDataSetAddZoneX", readyFullZoneArguments,
         [](Guest_s& guest) { return told(QuorUtilDataSetAddZoneX(guest.arguments.get())); }},
        {"QuorUtilDataSetAddVarX", readyVariableArguments,
         [](Guest_s& guest) { return told(QuorUtilDataSetAddVarX(guest.arguments.get())); }},
        {"QuorUtilDataSetDeleteZone", readyFieldsAndSet,
         [](Guest_s& guest) { return told(QuorUtilDataSetDeleteZone(guest.set.get())); }},
        {"QuorUtilDataSetDeleteZone", readyFieldsAndSetOfAll,
         [](Guest_s& guest) { return told(QuorUtilDataSetDeleteZone(guest.set.get())); }},
        {"QuorUtilDataSetDeleteVar", readyFieldsAndSet,
         [](Guest_s& guest) { return told(QuorUtilDataSetDeleteVar(guest.set.get())); }},
        {"QuorUtilDataSetDeleteVar", readyFieldsAndSetOfAll,
         [](Guest_s& guest) { return told(QuorUtilDataSetDeleteVar(guest.set.get())); }},
        {"QuorUtilZoneDelete", readyFieldsAndSet,
         [](Guest_s& guest) { return told(QuorUtilZoneDelete(guest.set.get())); }},
        {"QuorUtilDataSetGetMaxStrandID", readyZones,
         [](Guest_s&) { return told(QuorUtilDataSetGetMaxStrandID() == 0); }},
        {"QuorUtilDataSetIsSharingAllowed", readyZones,
         [](Guest_s&) { return told(QuorUtilDataSetIsSharingAllowed()); }},
    };
}

std::vector<ServiceScenario_s> zoneScenarios() {
    return {
        {"QuorUtilZoneGetEnabled", readyZones,
         [](Guest_s& guest) { return told(QuorUtilZoneGetEnabled(guest.set.outArgument())); }},
        {"QuorUtilVarGetEnabled", readyZones,
         [](Guest_s& guest) { return told(QuorUtilVarGetEnabled(guest.set.outArgument())); }},
        {"QuorUtilZoneGetInfo", readyZones,
         [](Guest_s&) {
             std::int64_t i = 0;
             QuorUtilZoneGetInfo(1, &i, nullptr, nullptr, nullptr);
             return told(i == 2);
         }},
        {"QuorUtilZoneGetType", readyZones,
         [](Guest_s&) { return told(QuorUtilZoneGetType(1) == QuorZoneType_Ordered); }},
        {"QuorUtilZoneRename", readyZones,
         [](Guest_s&) { return told(QuorUtilZoneRename(1, longText)); }},
        {"QuorUtilZoneGetStrandID", readyZones,
         [](Guest_s&) { return told(QuorUtilZoneGetStrandID(1) == 0); }},
        {"QuorUtilZoneSetStrandID", readyZones,
         [](Guest_s&) {
             QuorUtilZoneSetStrandID(1, 5);
             return Ended_e::Done;
         }},
        {"QuorUtilZoneSetSolutionTime", readyZones,
         [](Guest_s&) { return told(QuorUtilZoneSetSolutionTime(1, 2.5)); }},
        {"QuorUtilZoneGetUniqueID", readyZones,
         [](Guest_s&) { return told(QuorUtilZoneGetUniqueID(1)); }},
        {"QuorUtilZoneGetNumByUniqueID", readyZones,
         [](Guest_s&) {
             return told(QuorUtilZoneGetNumByUniqueID(QuorUtilZoneGetUniqueID(2)) == 2);
         }},
        {"QuorUtilVarGetUniqueID", readyZones,
         [](Guest_s&) { return told(QuorUtilVarGetUniqueID(1)); }},
        {"QuorUtilVarGetNumByUniqueID", readyZones,
         [](Guest_s&) {
             return told(QuorUtilVarGetNumByUniqueID(QuorUtilVarGetUniqueID(2)) == 2);
         }},
        {"QuorUtilVarGetName", readyZones,
         [](Guest_s& guest) { return told(QuorUtilVarGetName(1, guest.text.outArgument())); }},
        {"QuorUtilZoneStyleApplyAuto", readyFieldsAndSet,
         [](Guest_s& guest) {
             QuorUtilZoneStyleApplyAuto(guest.set.get());
             return Ended_e::Done;
         }},
        {"QuorUtilExtractTimesFromFileNames", readyTimes,
         [](Guest_s& guest) {
             std::array<double, 2> times = {};
             return told(QuorUtilExtractTimesFromFileNames(guest.list.get(), times.data(), false) &&
                         times[1] == 2.0);
         }},
    };
}

std::vector<ServiceScenario_s> fieldScenarios() {
    return {
        {"QuorUtilDataValueGetLocation", readyZones,
         [](Guest_s&) {
             return told(QuorUtilDataValueGetLocation(1, 1) == QuorValueLocation_Nodal);
         }},
        {"QuorUtilDataValueGetType", readyZones,
         [](Guest_s&) { return told(QuorUtilDataValueGetType(1, 1) == QuorFieldDataType_Float); }},
        {"QuorUtilDataValueIsPassive", readyZones,
         [](Guest_s&) { return told(!QuorUtilDataValueIsPassive(1, 1)); }},
        {"QuorUtilDataValueAlloc", readyZones,
         [](Guest_s&) { return told(QuorUtilDataValueAlloc(1, 1)); }},
        {"QuorUtilDataValueAlloc", readyFields, // in place of a registration
         [](Guest_s&) { return told(QuorUtilDataValueAlloc(1, 1)); }},
        {"QuorUtilDataValueGetRawPtr", readyFields,
         [](Guest_s&) {
             void* values = nullptr;
             QuorUtilDataValueGetRawPtr(1, 2, &values, nullptr);
             return told(values);
         }},
        {"QuorUtilDataValueGetWritableRef", readyFields,
         [](Guest_s&) { return told(QuorUtilDataValueGetWritableRef(1, 2)); }},
        {"QuorUtilDataValueGetRawPtrByRef", readyWritable,
         [](Guest_s& guest) { return told(QuorUtilDataValueGetRawPtrByRef(guest.field)); }},
        {"QuorUtilDataValueGetRefType", readyWritable,
         [](Guest_s& guest) { return told(QuorUtilDataValueGetRefType(guest.field)); }},
        {"QuorUtilDataValueRefGetSetFunc", readyWritable,
         [](Guest_s& guest) {
             QuorUtilDataValueRefGetSetFunc(guest.field)(guest.field, 3, 2.5);
             return Ended_e::Done;
         }},
        {"QuorUtilDataValueArraySetByRef", readyWritable,
         [](Guest_s& guest) {
             constexpr float values[] = {2.5F, 3.5F};
             QuorUtilDataValueArraySetByRef(guest.field, 1, 2, values);
             return Ended_e::Done;
         }},
        {"QuorUtilDataValueCustomLOD", readyFields,
         [](Guest_s& guest) { return told(guest.second.registerAt(2, 2)); }},
        {"QuorUtilDataValueCustomLOD", readyFields, // in place of another that was never fetched
         [](Guest_s& guest) { return told(guest.second.registerAt(1, 1)); }},
        {"QuorUtilDataValueGetClientData", readyWritable,
         [](Guest_s& guest) {
             return told(QuorUtilDataValueGetClientData(guest.field) == nullptr);
         }},
        {"QuorUtilDataValueIsSharingOk", readyFields,
         [](Guest_s&) { return told(QuorUtilDataValueIsSharingOk(1, 2, 1)); }},
        {"QuorUtilDataValueShare", readyFields,
         [](Guest_s&) { return told(QuorUtilDataValueShare(2, 1, 1)); }},
        {"QuorUtilDataValueCopy", readyStoredCopies,
         [](Guest_s&) { return told(QuorUtilDataValueCopy(1, 2, 2)); }},
        {"QuorUtilDataValueCopy", readyCopyOfDeferred,
         [](Guest_s&) { return told(QuorUtilDataValueCopy(1, 2, 1)); }},
        {"QuorUtilDataNodeGetRef", readyTriangles,
         [](Guest_s& guest) {
             guest.nodes = QuorUtilDataNodeGetRef(1);
             return told(guest.nodes);
         }},
        {"QuorUtilDataNodeSetByRef", readyNodes,
         [](Guest_s& guest) {
             QuorUtilDataNodeSetByRef(guest.nodes, 1, 1, 3);
             return Ended_e::Done;
         }},
    };
}

std::vector<ServiceScenario_s> auxDataScenarios() {
    return {
        {"QuorUtilAuxDataZoneGetRef", readyZones,
         [](Guest_s&) { return told(QuorUtilAuxDataZoneGetRef(1)); }},
        {"QuorUtilAuxDataDataSetGetRef", readyZones,
         [](Guest_s&) { return told(QuorUtilAuxDataDataSetGetRef()); }},
        {"QuorUtilAuxDataSetItem", readyAuxData,
         [](Guest_s& guest) {
             return told(QuorUtilAuxDataSetItem(guest.auxData, longText, longText, 0, 1));
         }},
        {"QuorUtilAuxDataSetItem", readyAuxData, // in place of one that is there
         [](Guest_s& guest) {
             return told(QuorUtilAuxDataSetItem(guest.auxData, "old", longText, 0, 1));
         }},
    };
}

} // namespace

std::vector<ServiceScenario_s> dataScenarios() {
    std::vector<ServiceScenario_s> scenarios;
    for (const auto& group : {frameScenarios(), dataSetScenarios(), zoneScenarios(),
                              fieldScenarios(), auxDataScenarios()})
        scenarios.insert(scenarios.end(), group.begin(), group.end());
    return scenarios;
}

} // namespace quorvia::host
