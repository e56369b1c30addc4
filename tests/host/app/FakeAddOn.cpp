// A small add-on library for the tests of quorhost. The name of the first file, without directory
// and extension, says how the load goes: see scenes. Every load but "first-only" hands the host
// the instructions that it was given, or for a selection the names of the files.
//
// The data set of a good load: variables "X" and "Density ", two zones of 2 x 3 x 5 points whose
// deferred values are i + 100 j + 10000 k (Density: with the zone's number as sign); the second
// zone shares X with the first.
#include <csignal>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "quorvia/QuorUtil.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace {

constexpr std::int64_t pointsI = 2;
constexpr std::int64_t pointsJ = 3;
constexpr std::int64_t pointsK = 5;

QuorAddOnHandle gAddOn = nullptr;

std::string takeString(char* text) {
    const std::string result = text != nullptr ? text : "";
    QuorUtilStringDealloc(&text);
    return result;
}

std::vector<std::string> stringsOf(QuorStringListHandle list) {
    std::vector<std::string> result;
    for (std::int64_t index = 1; index <= QuorUtilStringListGetCount(list); ++index)
        result.push_back(takeString(QuorUtilStringListGetString(list, index)));
    return result;
}

// ---- Values -------------------------------------------------------------------------------------

/// The client data of a field: its zone's number as a plain pointer value, 0 for values that can't
/// be read.
bool loadField(QuorFieldHandle field) {
    const auto zone = reinterpret_cast<std::intptr_t>(QuorUtilDataValueGetClientData(field));
    if (zone == 0) {
        QuorUtilDialogErrMsg("The values are gone.");
        return false;
    }
    auto* values = static_cast<float*>(QuorUtilDataValueGetRawPtrByRef(field));
    for (std::int64_t k = 1; k <= pointsK; ++k)
        for (std::int64_t j = 1; j <= pointsJ; ++j)
            for (std::int64_t i = 1; i <= pointsI; ++i)
                *values++ = static_cast<float>((i + 100 * j + 10000 * k) * (zone == 1 ? 1 : -1));
    return true;
}

bool mayUnloadField(QuorFieldHandle) {
    return true;
}

void cleanUpField(QuorFieldHandle) {}

void defer(std::int32_t zone, std::int32_t variable, std::intptr_t clientData) {
    QuorUtilDataValueCustomLOD(zone, variable, loadField, mayUnloadField, cleanUpField, nullptr,
                               nullptr, reinterpret_cast<void*>(clientData));
}

// ---- Data set -----------------------------------------------------------------------------------

void createDataSet() {
    quorvia::StringList names;
    names.append("X");
    names.append("Density ");
    QuorArgListHandle arguments = QuorUtilArgListAlloc();
    QuorUtilArgListAppendString(arguments, "LoaderName", "Fake Loader");
    QuorUtilArgListAppendString(arguments, "DataSetTitle", "Fake");
    QuorUtilArgListAppendStringList(arguments, "VarNames", names.getRef());
    QuorUtilDataSetCreateX(arguments);
    QuorUtilArgListDealloc(&arguments);
}

void addZone(const char* name) {
    const std::int32_t types[] = {QuorFieldDataType_Float, QuorFieldDataType_Float};
    QuorArgListHandle arguments = QuorUtilArgListAlloc();
    QuorUtilArgListAppendString(arguments, "Name", name);
    QuorUtilArgListAppendInt(arguments, "ZoneType", QuorZoneType_Ordered);
    QuorUtilArgListAppendInt(arguments, "IMax", pointsI);
    QuorUtilArgListAppendInt(arguments, "JMax", pointsJ);
    QuorUtilArgListAppendInt(arguments, "KMax", pointsK);
    QuorUtilArgListAppendArray(arguments, "VarDataType", types);
    QuorUtilArgListAppendInt(arguments, "DeferVarCreation", 1);
    QuorUtilDataSetAddZoneX(arguments);
    QuorUtilArgListDealloc(&arguments);
}

void loadDataSet() {
    createDataSet();
    addZone("First");
    addZone("Second");
    defer(1, 1, 1);
    defer(1, 2, 1);
    QuorUtilDataValueShare(1, 2, 1);
    defer(2, 2, 2);
    QuorUtilFrameSetPlotType(QuorPlotType_3D);
}

// ---- Scenes -------------------------------------------------------------------------------------

bool loadWell() {
    auto task = quorvia::createTaskProgressBar(1);
    task->setMessage("Loading the fake");
    loadDataSet();
    task->step();
    return true;
}

bool loadUnreadable() {
    loadDataSet();
    defer(2, 2, 0);
    return true;
}

/// Comes in without something that it was given.
bool loadPartly() {
    QuorUtilDialogErrMsg("The names can't be read.");
    return loadWell();
}

bool askFirst() {
    return QuorUtilDialogMessageBox("Shall it be?", QuorMessageBox_YesNo) && loadWell();
}

/// Stops where the host says so, and where it refuses.
bool loadInSteps() {
    auto task = quorvia::createTaskProgressBar(3);
    for (int step = 1; step <= 3; ++step) {
        if (task->step())
            continue;
        QuorUtilDialogErrMsg(QuorUtilInterruptIsSet() ? "Interrupted by the user."
                                                      : "A step failed.");
        return false;
    }
    loadDataSet();
    return true;
}

/// Tells what of the settings a loader can see.
bool tellHost() {
    const std::string text = "sharing " + std::to_string(QuorUtilDataSetIsSharingAllowed()) +
                             ", plot type " + std::to_string(QuorUtilFrameGetPlotType()) +
                             ", version " + std::to_string(QuorUtilGetQuorviaVersion());
    QuorUtilDialogErrMsg(text.c_str());
    return true;
}

/// Tells where the values of the first zone's variables stand, if it has any.
bool tellFields() {
    std::int32_t zones = 0;
    std::int32_t variables = 0;
    QuorUtilDataSetGetInfo(nullptr, &zones, &variables);
    std::string text;
    for (std::int32_t variable = 1; variable <= variables; ++variable)
        text += std::to_string(QuorUtilDataValueGetType(1, variable)) +
                (QuorUtilDataValueGetLocation(1, variable) == QuorValueLocation_Nodal ? "nodal"
                                                                                      : "cells") +
                (QuorUtilDataValueIsPassive(1, variable) ? " passive;" : ";");
    QuorUtilDialogErrMsg(text.c_str());
    return true;
}

/// Tells the times that the host finds for two names.
bool tellTimes() {
    quorvia::StringList names;
    names.append("flow_3.q");
    names.append("flow_5.q");
    double times[] = {0, 0};
    constexpr bool last = false;
    const bool found = QuorUtilExtractTimesFromFileNames(names.getRef(), times, last);
    QuorUtilDialogErrMsg(found ? (std::to_string(times[0]) + " " + std::to_string(times[1])).c_str()
                               : "none");
    return true;
}

bool inform() {
    QuorUtilDialogMessageBox("Just so you know.", QuorMessageBox_Information);
    return loadWell();
}

bool fail() {
    QuorUtilDialogErrMsg("It can't be read.\nFile: fail.g");
    return false;
}

bool failSilently() {
    return false;
}

bool leak() {
    QuorUtilStringListAlloc();
    return loadWell();
}

/// All that a host notes of a load besides messages and progress.
bool loadWithEvents() {
    constexpr bool invalidate = false;
    constexpr bool fullDrawing = true;
    QuorUtilUndoStateBegin(9);
    const bool ok = loadWell();
    QuorSetHandle zones = nullptr;
    QuorUtilZoneGetEnabled(&zones);
    QuorUtilStateChanged(QuorStateChange_ZonesAdded, zones);
    QuorUtilSetDealloc(&zones);
    QuorUtilRedraw(fullDrawing);
    QuorUtilUndoStateEnd(invalidate, ok);
    return ok;
}

/// What happens if the user presses Ctrl-C `times` times in the middle of a load.
bool loadUnderCtrlC(int times) {
    auto task = quorvia::createTaskProgressBar(2);
    loadDataSet();
    for (int time = 0; time < times; ++time)
        std::raise(SIGINT);
    if (task->step())
        return true;
    QuorUtilFrameReset(QuorUtilFrameGetUniqueID());
    QuorUtilDialogErrMsg("Interrupted by the user.");
    return false;
}

bool pressOnce() {
    return loadUnderCtrlC(1);
}

bool pressTwice() {
    return loadUnderCtrlC(2);
}

const std::map<std::string, bool (*)()> scenes = {
    {"well", loadWell},        {"unreadable", loadUnreadable},
    {"ask", askFirst},         {"events", loadWithEvents},
    {"inform", inform},        {"steps", loadInSteps},
    {"tell-host", tellHost},   {"tell-fields", tellFields},
    {"tell-times", tellTimes}, {"fail", fail},
    {"silent", failSilently},  {"leak", leak},
    {"ctrl-c", pressOnce},     {"ctrl-c-twice", pressTwice},
    {"partly", loadPartly},    {"first-only", loadWell},
};

std::string sceneOf(const std::string& file) {
    const std::string name = file.substr(file.find_last_of('/') + 1);
    return name.substr(0, name.find('.'));
}

/// Hands over instructions with one file, whatever was given besides.
bool nameAlone(const std::string& file) {
    quorvia::StringList names;
    names.append(file.c_str());
    return QuorUtilImportSetLoaderInstr("Fake Loader", names.getRef());
}

bool play(const std::string& file, QuorStringListHandle instructions) {
    const auto scene = scenes.find(sceneOf(file));
    if (sceneOf(file) == "first-only")
        return scene->second() && nameAlone(file);
    return scene != scenes.end() && scene->second() &&
           QuorUtilImportSetLoaderInstr("Fake Loader", instructions);
}

// ---- Callbacks ----------------------------------------------------------------------------------

bool loaderCallback(QuorStringListHandle instructions) {
    QuorUtilLockStart(gAddOn);
    const std::vector<std::string> strings = stringsOf(instructions);
    const bool ok = strings.size() > 4 && play(strings[4], instructions);
    QuorUtilLockFinish(gAddOn);
    return ok;
}

void loaderSelectedCallback(QuorStringListHandle files, bool, bool) {
    QuorUtilLockStart(gAddOn);
    play(stringsOf(files).at(0), files);
    QuorUtilLockFinish(gAddOn);
}

void stateChangeCallback(std::int32_t code) {
    QuorUtilDialogErrMsg(("State change " + std::to_string(code)).c_str());
}

void registerLoader() {
    QuorArgListHandle arguments = QuorUtilArgListAlloc();
    QuorUtilArgListAppendString(arguments, "LoaderName", "Fake Loader");
    QuorUtilArgListAppendString(arguments, "FileNameExtensions", "*.g");
    QuorUtilArgListAppendInt(arguments, "LoaderCallbackVersion", 1);
    QuorUtilArgListAppendFunction(arguments, "LoaderCallback",
                                  reinterpret_cast<QuorFunction>(loaderCallback));
    QuorUtilArgListAppendFunction(arguments, "LoaderSelectedCallback",
                                  reinterpret_cast<QuorFunction>(loaderSelectedCallback));
    QuorUtilArgListAppendInt(arguments, "AllowMultiFileSelection", 1);
    QuorUtilArgListAppendInt(arguments, "AllowAdvancedOptions", 0);
    QuorUtilArgListAppendInt(arguments, "AllowAppending", 0);
    QuorUtilImportAddLoaderX(arguments);
    QuorUtilArgListDealloc(&arguments);
}

} // namespace

extern "C" void InitQuorAddOn113() {
    QuorUtilLockOn();
    gAddOn = QuorUtilAddOnRegister(100, "Fake Loader", "1.0", "the tests");
    registerLoader();
    QuorUtilStateChangeAddCallback(stateChangeCallback);
    QuorUtilLockOff();
}
