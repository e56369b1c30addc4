// The operations on frame, data set, zones, variables and fields.
#include <array>

#include "memory/ServiceScenarios.h"

namespace quorvia::host {

namespace {

constexpr std::array<std::int32_t, 2> types = {QuorFieldDataType_Double, QuorFieldDataType_Int32};

void readyNothing(Guest&) {}

void readyDataSetArguments(Guest& guest) {
    guest.list = HostStringList(QuorUtilStringListAlloc());
    QuorUtilStringListAppendString(guest.list.get(), longText);
    QuorUtilStringListAppendString(guest.list.get(), "Y");
    guest.arguments = HostArgList(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(guest.arguments.get(), "LoaderName", longText);
    QuorUtilArgListAppendString(guest.arguments.get(), "DataSetTitle", longText);
    QuorUtilArgListAppendStringList(guest.arguments.get(), "VarNames", guest.list.get());
}

/// A deferred field that was never in memory, another that is, and a stored one.
void readyFields(Guest& guest) {
    readyZones(guest);
    guest.first.registerAt(1, 1);
    guest.second.registerAt(2, 1);
    ReferenceHost::instance().fetch(2, 1);
    QuorUtilDataValueAlloc(1, 2);
}

void readyDataSetInPlaceOfFields(Guest& guest) {
    readyFields(guest);
    readyDataSetArguments(guest);
}

void readyZoneArguments(Guest& guest) {
    readyZones(guest);
    guest.arguments = Made::zoneArguments(2, 3, 5);
}

void readyFullZoneArguments(Guest& guest) {
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

void readyVariableArguments(Guest& guest) {
    readyFields(guest);
    guest.arguments = HostArgList(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(guest.arguments.get(), "Name", longText);
    QuorUtilArgListAppendArray(guest.arguments.get(), "VarDataType", types.data());
}

void readyFieldsAndSet(Guest& guest) {
    readyFields(guest);
    guest.set = Made::setOf({1});
}

void readyFieldsAndSetOfAll(Guest& guest) {
    readyFields(guest);
    guest.set = Made::setOf({1, 2});
}

void readyTimes(Guest& guest) {
    readyZones(guest);
    guest.list = HostStringList(QuorUtilStringListAlloc());
    for (const char* name : {"a/long/path/of/folders/to/t1.q", "a/long/path/of/folders/to/t2.q"})
        QuorUtilStringListAppendString(guest.list.get(), name);
}

void readyWritable(Guest& guest) {
    readyFields(guest);
    guest.field = QuorUtilDataValueGetWritableRef(1, 2);
}

void readyStoredCopies(Guest& guest) {
    readyFields(guest);
    QuorUtilDataValueAlloc(2, 2);
}

void readyCopyOfDeferred(Guest& guest) {
    readyZones(guest);
    guest.first.registerAt(1, 1);
    QuorUtilDataValueAlloc(2, 1);
}

void readyTriangles(Guest& guest) {
    Made::createDataSet({"X"});
    Made::addZone(3, 2, 3, QuorZoneType_Triangles);
    guest.set = Made::setOf({1});
}

void readyNodes(Guest& guest) {
    readyTriangles(guest);
    guest.nodes = QuorUtilDataNodeGetRef(1);
}

void readyAuxData(Guest& guest) {
    readyZones(guest);
    guest.auxData = QuorUtilAuxDataZoneGetRef(1);
    QuorUtilAuxDataSetItem(guest.auxData, "old", "old", 0, 1);
}

// ---- The calls of a guest -----------------------------------------------------------------------

std::vector<ServiceScenario> frameScenarios() {
    return {
        {"QuorUtilFrameGetPlotType", readyNothing,
         [](Guest&) { return told(QuorUtilFrameGetPlotType() == QuorPlotType_None); }},
        {"QuorUtilFrameSetPlotType", readyNothing,
         [](Guest&) {
             QuorUtilFrameSetPlotType(QuorPlotType_2D);
             return Ended_e::Done;
         }},
        {"QuorUtilFrameGetUniqueID", readyNothing,
         [](Guest&) { return told(QuorUtilFrameGetUniqueID()); }},
        {"QuorUtilFrameReset", readyFields,
         [](Guest&) {
             QuorUtilFrameReset(QuorUtilFrameGetUniqueID());
             return Ended_e::Done;
         }},
        {"QuorUtilRedraw", readyNothing,
         [](Guest&) {
             QuorUtilRedraw(true);
             return Ended_e::Done;
         }},
    };
}

std::vector<ServiceScenario> dataSetScenarios() {
    return {
        {"QuorUtilDataSetIsAvailable", readyZones,
         [](Guest&) { return told(QuorUtilDataSetIsAvailable()); }},
        {"QuorUtilDataSetGetInfo", readyZones,
         [](Guest& guest) {
             std::int32_t zones = 0;
             std::int32_t vars = 0;
             return told(QuorUtilDataSetGetInfo(guest.text.outArgument(), &zones, &vars) &&
                         guest.text && zones == 2 && vars == 2);
         }},
        {"QuorUtilDataSetCreateX", readyDataSetArguments,
         [](Guest& guest) { return told(QuorUtilDataSetCreateX(guest.arguments.get())); }},
        {"QuorUtilDataSetCreateX", readyDataSetInPlaceOfFields,
         [](Guest& guest) { return told(QuorUtilDataSetCreateX(guest.arguments.get())); }},
        {"QuorUtilDataSetAddZoneX", readyZoneArguments,
         [](Guest& guest) { return told(QuorUtilDataSetAddZoneX(guest.arguments.get())); }},
        {"QuorUtilDataSetAddZoneX", readyFullZoneArguments,
         [](Guest& guest) { return told(QuorUtilDataSetAddZoneX(guest.arguments.get())); }},
        {"QuorUtilDataSetAddVarX", readyVariableArguments,
         [](Guest& guest) { return told(QuorUtilDataSetAddVarX(guest.arguments.get())); }},
        {"QuorUtilDataSetDeleteZone", readyFieldsAndSet,
         [](Guest& guest) { return told(QuorUtilDataSetDeleteZone(guest.set.get())); }},
        {"QuorUtilDataSetDeleteZone", readyFieldsAndSetOfAll,
         [](Guest& guest) { return told(QuorUtilDataSetDeleteZone(guest.set.get())); }},
        {"QuorUtilDataSetDeleteVar", readyFieldsAndSet,
         [](Guest& guest) { return told(QuorUtilDataSetDeleteVar(guest.set.get())); }},
        {"QuorUtilDataSetDeleteVar", readyFieldsAndSetOfAll,
         [](Guest& guest) { return told(QuorUtilDataSetDeleteVar(guest.set.get())); }},
        {"QuorUtilZoneDelete", readyFieldsAndSet,
         [](Guest& guest) { return told(QuorUtilZoneDelete(guest.set.get())); }},
        {"QuorUtilDataSetGetMaxStrandID", readyZones,
         [](Guest&) { return told(QuorUtilDataSetGetMaxStrandID() == 0); }},
        {"QuorUtilDataSetIsSharingAllowed", readyZones,
         [](Guest&) { return told(QuorUtilDataSetIsSharingAllowed()); }},
    };
}

std::vector<ServiceScenario> zoneScenarios() {
    return {
        {"QuorUtilZoneGetEnabled", readyZones,
         [](Guest& guest) { return told(QuorUtilZoneGetEnabled(guest.set.outArgument())); }},
        {"QuorUtilVarGetEnabled", readyZones,
         [](Guest& guest) { return told(QuorUtilVarGetEnabled(guest.set.outArgument())); }},
        {"QuorUtilZoneGetInfo", readyZones,
         [](Guest&) {
             std::int64_t i = 0;
             QuorUtilZoneGetInfo(1, &i, nullptr, nullptr, nullptr);
             return told(i == 2);
         }},
        {"QuorUtilZoneGetType", readyZones,
         [](Guest&) { return told(QuorUtilZoneGetType(1) == QuorZoneType_Ordered); }},
        {"QuorUtilZoneRename", readyZones,
         [](Guest&) { return told(QuorUtilZoneRename(1, longText)); }},
        {"QuorUtilZoneGetStrandID", readyZones,
         [](Guest&) { return told(QuorUtilZoneGetStrandID(1) == 0); }},
        {"QuorUtilZoneSetStrandID", readyZones,
         [](Guest&) {
             QuorUtilZoneSetStrandID(1, 5);
             return Ended_e::Done;
         }},
        {"QuorUtilZoneSetSolutionTime", readyZones,
         [](Guest&) { return told(QuorUtilZoneSetSolutionTime(1, 2.5)); }},
        {"QuorUtilZoneGetUniqueID", readyZones,
         [](Guest&) { return told(QuorUtilZoneGetUniqueID(1)); }},
        {"QuorUtilZoneGetNumByUniqueID", readyZones,
         [](Guest&) {
             return told(QuorUtilZoneGetNumByUniqueID(QuorUtilZoneGetUniqueID(2)) == 2);
         }},
        {"QuorUtilVarGetUniqueID", readyZones,
         [](Guest&) { return told(QuorUtilVarGetUniqueID(1)); }},
        {"QuorUtilVarGetNumByUniqueID", readyZones,
         [](Guest&) { return told(QuorUtilVarGetNumByUniqueID(QuorUtilVarGetUniqueID(2)) == 2); }},
        {"QuorUtilVarGetName", readyZones,
         [](Guest& guest) { return told(QuorUtilVarGetName(1, guest.text.outArgument())); }},
        {"QuorUtilZoneStyleApplyAuto", readyFieldsAndSet,
         [](Guest& guest) {
             QuorUtilZoneStyleApplyAuto(guest.set.get());
             return Ended_e::Done;
         }},
        {"QuorUtilExtractTimesFromFileNames", readyTimes,
         [](Guest& guest) {
             std::array<double, 2> times = {};
             return told(QuorUtilExtractTimesFromFileNames(guest.list.get(), times.data(), false) &&
                         times[1] == 2.0);
         }},
    };
}

std::vector<ServiceScenario> fieldScenarios() {
    return {
        {"QuorUtilDataValueGetLocation", readyZones,
         [](Guest&) {
             return told(QuorUtilDataValueGetLocation(1, 1) == QuorValueLocation_Nodal);
         }},
        {"QuorUtilDataValueGetType", readyZones,
         [](Guest&) { return told(QuorUtilDataValueGetType(1, 1) == QuorFieldDataType_Float); }},
        {"QuorUtilDataValueIsPassive", readyZones,
         [](Guest&) { return told(!QuorUtilDataValueIsPassive(1, 1)); }},
        {"QuorUtilDataValueAlloc", readyZones,
         [](Guest&) { return told(QuorUtilDataValueAlloc(1, 1)); }},
        {"QuorUtilDataValueAlloc", readyFields, // in place of a registration
         [](Guest&) { return told(QuorUtilDataValueAlloc(1, 1)); }},
        {"QuorUtilDataValueGetRawPtr", readyFields,
         [](Guest&) {
             void* values = nullptr;
             QuorUtilDataValueGetRawPtr(1, 2, &values, nullptr);
             return told(values);
         }},
        {"QuorUtilDataValueGetWritableRef", readyFields,
         [](Guest&) { return told(QuorUtilDataValueGetWritableRef(1, 2)); }},
        {"QuorUtilDataValueGetRawPtrByRef", readyWritable,
         [](Guest& guest) { return told(QuorUtilDataValueGetRawPtrByRef(guest.field)); }},
        {"QuorUtilDataValueGetRefType", readyWritable,
         [](Guest& guest) { return told(QuorUtilDataValueGetRefType(guest.field)); }},
        {"QuorUtilDataValueRefGetSetFunc", readyWritable,
         [](Guest& guest) {
             QuorUtilDataValueRefGetSetFunc(guest.field)(guest.field, 3, 2.5);
             return Ended_e::Done;
         }},
        {"QuorUtilDataValueArraySetByRef", readyWritable,
         [](Guest& guest) {
             constexpr float values[] = {2.5F, 3.5F};
             QuorUtilDataValueArraySetByRef(guest.field, 1, 2, values);
             return Ended_e::Done;
         }},
        {"QuorUtilDataValueCustomLOD", readyFields,
         [](Guest& guest) { return told(guest.second.registerAt(2, 2)); }},
        {"QuorUtilDataValueCustomLOD", readyFields, // in place of another that was never fetched
         [](Guest& guest) { return told(guest.second.registerAt(1, 1)); }},
        {"QuorUtilDataValueGetClientData", readyWritable,
         [](Guest& guest) { return told(QuorUtilDataValueGetClientData(guest.field) == nullptr); }},
        {"QuorUtilDataValueIsSharingOk", readyFields,
         [](Guest&) { return told(QuorUtilDataValueIsSharingOk(1, 2, 1)); }},
        {"QuorUtilDataValueShare", readyFields,
         [](Guest&) { return told(QuorUtilDataValueShare(2, 1, 1)); }},
        {"QuorUtilDataValueCopy", readyStoredCopies,
         [](Guest&) { return told(QuorUtilDataValueCopy(1, 2, 2)); }},
        {"QuorUtilDataValueCopy", readyCopyOfDeferred,
         [](Guest&) { return told(QuorUtilDataValueCopy(1, 2, 1)); }},
        {"QuorUtilDataNodeGetRef", readyTriangles,
         [](Guest& guest) {
             guest.nodes = QuorUtilDataNodeGetRef(1);
             return told(guest.nodes);
         }},
        {"QuorUtilDataNodeSetByRef", readyNodes,
         [](Guest& guest) {
             QuorUtilDataNodeSetByRef(guest.nodes, 1, 1, 3);
             return Ended_e::Done;
         }},
    };
}

std::vector<ServiceScenario> auxDataScenarios() {
    return {
        {"QuorUtilAuxDataZoneGetRef", readyZones,
         [](Guest&) { return told(QuorUtilAuxDataZoneGetRef(1)); }},
        {"QuorUtilAuxDataDataSetGetRef", readyZones,
         [](Guest&) { return told(QuorUtilAuxDataDataSetGetRef()); }},
        {"QuorUtilAuxDataSetItem", readyAuxData,
         [](Guest& guest) {
             return told(QuorUtilAuxDataSetItem(guest.auxData, longText, longText, 0, 1));
         }},
        {"QuorUtilAuxDataSetItem", readyAuxData, // in place of one that is there
         [](Guest& guest) {
             return told(QuorUtilAuxDataSetItem(guest.auxData, "old", longText, 0, 1));
         }},
    };
}

} // namespace

std::vector<ServiceScenario> dataScenarios() {
    std::vector<ServiceScenario> scenarios;
    for (const auto& group : {frameScenarios(), dataSetScenarios(), zoneScenarios(),
                              fieldScenarios(), auxDataScenarios()})
        scenarios.insert(scenarios.end(), group.begin(), group.end());
    return scenarios;
}

} // namespace quorvia::host
