// A small data loader for the tests of importing, linked into the tests and built as a library. Its
// instructions are orders to misbehave; without one it makes a data set of one zone with a deferred
// field and hands its instructions back.
#pragma once

#include "quorvia/HostHandles.h"
#include "quorvia/QuorUtil.h"
#include "quorvia/QuorUtilityLibrary.h"

#include <new>
#include <stdexcept>
#include <string>

namespace quorvia::guestloader {

inline QuorAddOnHandle gAddOn = nullptr;
inline int gCleanUps = 0;

inline bool loadField(QuorFieldHandle field) {
    *static_cast<float*>(QuorUtilDataValueGetRawPtrByRef(field)) = 4.5F;
    return true;
}
inline bool unloadField(QuorFieldHandle) {
    return true;
}
inline void cleanUpField(QuorFieldHandle) {
    ++gCleanUps;
}

inline void createZone() {
    const HostStringList names(QuorUtilStringListAlloc());
    QuorUtilStringListAppendString(names.get(), "X");
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "LoaderName", "Guest Loader");
    QuorUtilArgListAppendString(arguments.get(), "DataSetTitle", "Guest");
    QuorUtilArgListAppendStringList(arguments.get(), "VarNames", names.get());
    QuorUtilDataSetCreateX(arguments.get());
    QuorUtilArgListClear(arguments.get());
    QuorUtilArgListAppendString(arguments.get(), "Name", "guest:1");
    QuorUtilArgListAppendInt(arguments.get(), "ZoneType", QuorZoneType_Ordered);
    for (const char* key : {"IMax", "JMax", "KMax"})
        QuorUtilArgListAppendInt(arguments.get(), key, 3);
    QuorUtilArgListAppendInt(arguments.get(), "DeferVarCreation", 1);
    QuorUtilDataSetAddZoneX(arguments.get());
    QuorUtilDataValueCustomLOD(1, 1, loadField, unloadField, cleanUpField, nullptr, nullptr,
                               nullptr);
}

// What the orders ask for; false ends the load.
inline bool obey(QuorStringListHandle instructions) {
    const HostString first(QuorUtilStringListGetString(instructions, 1));
    const std::string order = first.str();
    if (order == "KEEP A SET")
        QuorUtilSetAlloc(true);
    if (order == "KEEP THE LOCK")
        QuorUtilLockStart(gAddOn);
    if (order == "TAKE THE LIST")
        QuorUtilStringListDealloc(&instructions);
    if (order == "RUN OUT OF MEMORY")
        throw std::bad_alloc();
    if (order == "THROW")
        throw std::runtime_error("thrown by the guest");
    if (order == "ASK")
        return QuorUtilDialogMessageBox("Go on?", QuorMessageBox_YesNo);
    if (order == "STEP")
        return createTaskProgressBar(1)->step();
    return order != "FAIL";
}

inline bool loadInstructions(QuorStringListHandle instructions) {
    const HostLock lock(gAddOn);
    if (!obey(instructions))
        return false;
    createZone();
    return QuorUtilImportSetLoaderInstr("Guest Loader", instructions);
}

inline void loadSelection(QuorStringListHandle files, bool, bool) {
    loadInstructions(files);
}

inline void registerLoader() {
    QuorUtilLockOn();
    gAddOn = QuorUtilAddOnRegister(100, "Guest", "1", "Tests");
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "LoaderName", "Guest Loader");
    QuorUtilArgListAppendString(arguments.get(), "FileNameExtensions", "*.guest");
    QuorUtilArgListAppendInt(arguments.get(), "LoaderCallbackVersion", 1);
    QuorUtilArgListAppendFunction(arguments.get(), "LoaderCallback",
                                  reinterpret_cast<QuorFunction>(loadInstructions));
    QuorUtilArgListAppendFunction(arguments.get(), "LoaderSelectedCallback",
                                  reinterpret_cast<QuorFunction>(loadSelection));
    QuorUtilArgListAppendInt(arguments.get(), "AllowMultiFileSelection", 1);
    QuorUtilArgListAppendInt(arguments.get(), "AllowAdvancedOptions", 0);
    QuorUtilArgListAppendInt(arguments.get(), "AllowAppending", 0);
    QuorUtilImportAddLoaderX(arguments.get());
    QuorUtilLockOff();
}

} // namespace quorvia::guestloader
