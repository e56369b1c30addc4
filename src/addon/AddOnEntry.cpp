#include "addon/AddOnEntry.h"

#include <cstdint>
#include <cstdio>

#include "addon/LoaderCallbacks.h"
#include "filenames/FileNameClassification.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"
#include "state/DialogState.h"

namespace quorvia::quorutildataio {

namespace {

constexpr std::int32_t oldestHostVersion = 1000377;
constexpr const char* oldestHostVersionText = "10.0-3-77";
constexpr std::int32_t registrationWord = 100;
constexpr const char* authorText = "The PLOT3D Loader developers";

/// The host's lock while there is no identity yet to take it with.
class EntryLock {
public:
    EntryLock() { QuorUtilLockOn(); }
    ~EntryLock() { QuorUtilLockOff(); }
    EntryLock(const EntryLock&) = delete;
    EntryLock& operator=(const EntryLock&) = delete;
};

void showHostTooOld() {
    char text[512];
    std::snprintf(text, sizeof text, "Add-On \"%.50s\" requires Quorvia version %s or greater",
                  loaderName, oldestHostVersionText);
    QuorUtilDialogErrMsg(text);
}

template <typename Function>
bool appendFunction(QuorArgListHandle arguments, const char* key, Function function) {
    return QuorUtilArgListAppendFunction(arguments, key, reinterpret_cast<QuorFunction>(function));
}

/// A host that does not take all of it gets no loader, like one that refuses the registration.
void registerLoader() {
    const HostArgList list(QuorUtilArgListAlloc());
    if (!list)
        return;
    const QuorArgListHandle arguments = list.get();
    const bool isWhole =
        QuorUtilArgListAppendString(arguments, "LoaderName", loaderName) &&
        QuorUtilArgListAppendString(arguments, "FileNameExtensions",
                                    filePatternListText(false).c_str()) &&
        QuorUtilArgListAppendInt(arguments, "LoaderCallbackVersion", 1) &&
        appendFunction(arguments, "LoaderCallback", loaderCallback) &&
        appendFunction(arguments, "LoaderSelectedCallback", loaderSelectedCallback) &&
        QuorUtilArgListAppendInt(arguments, "AllowMultiFileSelection", 1) &&
        QuorUtilArgListAppendInt(arguments, "AllowAdvancedOptions", 1) &&
        QuorUtilArgListAppendInt(arguments, "AllowAppending", 1);
    if (isWhole)
        QuorUtilImportAddLoaderX(arguments);
}

} // namespace

} // namespace quorvia::quorutildataio

void InitQuorAddOn113() {
    using namespace quorvia::quorutildataio;
    const EntryLock lock;
    if (QuorUtilGetQuorviaVersion() < oldestHostVersion) {
        showHostTooOld();
        return;
    }
    addOnID = QuorUtilAddOnRegister(registrationWord, loaderName, PLOT3DLOADER_VERSION, authorText);
    gRetainedSolutionFiles.clear();
    buildFilePatternTables();
    if (addOnID != nullptr) // without an identity no load could take the lock
        registerLoader();
    setLoadOptionDefaults(gLoadOptions);
    QuorUtilStateChangeAddCallback(stateChangeCallback);
}
