// The services that a host gives to its add-ons: everything that an add-on does to the world, it
// does through these operations. The header is the contract between the add-on and any host; the
// groups stand in the order in which an add-on comes to need them.
//
// Conventions
// - A frame holds at most one data set; a data set holds zones and variables, each numbered from 1;
//   every zone holds one field for each variable. Sets and lists are 1-based too; 0 means none.
// - Text is UTF-8 and zero-terminated.
// - Handles are opaque. An operation named ...Dealloc takes its handle by reference, gives it back
//   and stores null in it; giving back null is allowed and does nothing.
// - "Borrowed" means that the callee may use the argument for the call only.
// - Unless it says otherwise an operation may be called only while the add-on holds the host's
//   lock. Memory, strings, lists and sets need none: they are private to whoever holds them.
// - No operation throws, save those that say so; a failure is a false or null result, and the host
//   keeps its own text of it for QuorUtilPostLastErrorMessage.
// - An operation happens whole or not at all. Want of memory at the host is a failure like any
//   other, of every operation that has one. Those without a result need no memory, save those that
//   say so; nor do queries and whatever ends something or gives it back.
#pragma once

#include <cstdint>

using QuorAddOnHandle = struct QuorAddOn_s*;           // an add-on's identity; lives until unload
using QuorStringListHandle = struct QuorStringList_s*; // a list of strings, from 1
using QuorArgListHandle = struct QuorArgList_s*;       // named arguments of the ...X operations
using QuorSetHandle = struct QuorSet_s*;               // a set of numbers from 1 to 2147483647
using QuorFieldHandle = struct QuorField_s*;     // one field, for reading or writing its values
using QuorNodeMapHandle = struct QuorNodeMap_s*; // the node map of a finite-element zone
using QuorAuxDataHandle = struct QuorAuxData_s*; // the auxiliary data of a zone or data set

/// The value type of a field. The numbers are the host's.
enum QuorFieldDataType_e : std::int32_t {
    QuorFieldDataType_Float = 1,  // 32-bit real
    QuorFieldDataType_Double = 2, // 64-bit real
    QuorFieldDataType_Int32 = 3,  // 32-bit signed integer
    QuorFieldDataType_Invalid = 255
};

enum QuorZoneType_e : std::int32_t {
    QuorZoneType_Ordered = 0,   // I, J, K are the numbers of points
    QuorZoneType_Triangles = 1, // I nodes, J elements, K corners of an element (3)
    QuorZoneType_Tetrahedra = 3 // I nodes, J elements, K corners of an element (4)
};

enum QuorValueLocation_e : std::int32_t {
    QuorValueLocation_CellCentred = 0,
    QuorValueLocation_Nodal = 1
};

enum QuorPlotType_e : std::int32_t {
    QuorPlotType_None = 0, // a frame that never had a data set
    QuorPlotType_3D = 1,
    QuorPlotType_2D = 2,
    QuorPlotType_XY = 3,
    QuorPlotType_Sketch = 4,
    QuorPlotType_Polar = 5
};

/// Codes of QuorUtilStateChanged and of state-change callbacks. A host has more of them.
enum QuorStateChange_e : std::int32_t {
    QuorStateChange_VarsAltered = 0,    // with the set of variables
    QuorStateChange_VarsAdded = 1,      // with the set of variables
    QuorStateChange_ZonesAdded = 3,     // with the set of zones
    QuorStateChange_FilesForgotten = 15 // to callbacks alone: forget the files of earlier loads
};

enum QuorMessageBox_e : std::int32_t {
    QuorMessageBox_Information = 2, // one button; the result is true
    QuorMessageBox_OkCancel = 3,    // true on OK
    QuorMessageBox_YesNo = 4        // true on Yes
};

/// A function as an argument-list value; the receiver casts it to the type that its key demands.
using QuorFunction = void (*)();

/// Carries out load instructions. `instructions` is borrowed. The result tells whether the load
/// succeeded; the add-on has told the user of any failure.
using QuorLoaderCallback = bool (*)(QuorStringListHandle instructions);

/// Takes the files of the host's import file selection. `files` is borrowed.
using QuorLoaderSelectedCallback = void (*)(QuorStringListHandle files, bool advancedOptions,
                                            bool append);

using QuorStateChangeCallback = void (*)(std::int32_t stateChangeCode);

/// Fills the field's array (QuorUtilDataValueGetRawPtrByRef). False: the values could not be read;
/// the field stays deferred. Called whenever the host needs the values, with or without the lock.
/// None of the callbacks of a field throws; std::bad_alloc counts as false.
using QuorFieldLoadCallback = bool (*)(QuorFieldHandle field);
/// The host is about to drop the array; true allows it. The load callback may be called again.
using QuorFieldUnloadCallback = bool (*)(QuorFieldHandle field);
/// The host lets go of the field for good; called exactly once for each registration.
using QuorFieldCleanupCallback = void (*)(QuorFieldHandle field);
/// Reads or writes single values; slots that a host may offer and this contract leaves empty.
using QuorFieldValueCallback = double (*)(QuorFieldHandle field, std::int64_t index);

/// Stores `value` at `index`, counted from 0, converted to the field's type.
using QuorFieldSetFunction = void (*)(QuorFieldHandle field, std::int64_t index, double value);

extern "C" {

// ---- Add-on life, locks, state ------------------------------------------------------------------

/// The host's version as one number: 1000377 is 10.0-3-77. May be called at any time.
std::int32_t QuorUtilGetQuorviaVersion();

/// Registers the add-on under the registration word 100. The texts are copied; version and author
/// are only displayed. The result names the add-on in every lock call and is owned by the host;
/// null if the word or a text is wrong, or if there is no memory.
QuorAddOnHandle QuorUtilAddOnRegister(std::int32_t registrationWord, const char* name,
                                      const char* versionText, const char* authorText);

/// Take and give back the host's lock while there is no identity yet: they bracket the entry.
void QuorUtilLockOn();
void QuorUtilLockOff();

/// Take and give back the host's lock. They nest; every start needs its finish.
void QuorUtilLockStart(QuorAddOnHandle addOn);
void QuorUtilLockFinish(QuorAddOnHandle addOn);

/// Calls `callback` on every later state change, until the library is unloaded. Throws
/// std::bad_alloc if there is no memory for it.
void QuorUtilStateChangeAddCallback(QuorStateChangeCallback callback);

/// Tells the host what the add-on has changed. `members` is borrowed; its meaning goes by the code.
void QuorUtilStateChanged(std::int32_t stateChangeCode, QuorSetHandle members);

/// Begin and end one undoable step. `category` is the host's (a load passes 9). The first argument
/// of the end is always false; `success` false makes the host forget the step.
void QuorUtilUndoStateBegin(std::int32_t category);
void QuorUtilUndoStateEnd(bool doInvalidate, bool success);

/// Whether the user has interrupted the operation that runs.
bool QuorUtilInterruptIsSet();

// ---- Loader registration ------------------------------------------------------------------------

/// Registers a data loader from an argument list with the keys "LoaderName", "FileNameExtensions"
/// (strings), "LoaderCallbackVersion" (1), "AllowMultiFileSelection", "AllowAdvancedOptions",
/// "AllowAppending" (0 or 1), "LoaderCallback" (QuorLoaderCallback) and "LoaderSelectedCallback"
/// (QuorLoaderSelectedCallback). `arguments` is borrowed. False: a key is missing or bad, or there
/// is no memory.
bool QuorUtilImportAddLoaderX(QuorArgListHandle arguments);

/// Records the instructions that repeat the load just done; they come back through the loader's
/// callback from a macro or a layout. `instructions` is borrowed and may be null. False: the host
/// does not take them, has no memory for them, or there is no such loader.
bool QuorUtilImportSetLoaderInstr(const char* loaderName, QuorStringListHandle instructions);

// ---- Messages, files, help ----------------------------------------------------------------------

/// Shows an error and waits until it was seen. May be called without the lock. Without memory for
/// a long text the host shows what it can of it.
void QuorUtilDialogErrMsg(const char* text);

/// Shows `text`, with the buttons of `kind` (QuorMessageBox_e), and gives the user's answer; false
/// if there is no memory to ask.
bool QuorUtilDialogMessageBox(const char* text, std::int32_t kind);

/// Shows the text that the host keeps of its own last failure.
void QuorUtilPostLastErrorMessage();

/// Lets the user choose one file. `dialogKind` is 0. On true `name` holds a host string that the
/// caller gives back. `defaultName` may be null. `filter` is a list of patterns. False: the user
/// cancelled, or there is no memory.
bool QuorUtilDialogGetFileName(std::int32_t dialogKind, char** name, const char* typeWord,
                               const char* defaultName, const char* filter);

/// Lets the user choose several files. `dialogKind` is 1, `defaultNames` null. On true `names`
/// holds a list that the caller gives back. False: as above.
bool QuorUtilDialogGetFileNames(std::int32_t dialogKind, QuorStringListHandle* names,
                                const char* typeWord, QuorStringListHandle defaultNames,
                                const char* filter);

/// The directory part of `path`, its last separator included, so that the length of the result is
/// where the file's name starts; empty if there is none. The caller gives the string back; null if
/// there is no memory. May be called without the lock.
char* QuorUtilGetBasePath(const char* path);

/// Opens the host's help at `target`, if there is memory to. The other arguments are false and 0.
void QuorUtilHelp(const char* target, bool goToId, std::int32_t id);

// ---- Memory, strings, lists, sets ---------------------------------------------------------------

/// A block of `byteCount` bytes, aligned for any number, its contents undefined; null if there is
/// no memory. `label` serves the host's memory accounting and nothing else. The caller gives it
/// back.
char* QuorUtilStringAlloc(std::int64_t byteCount, const char* label);
void QuorUtilStringDealloc(char** block);

/// Gives back an array that the host allocated for the caller.
void QuorUtilArrayDealloc(void** array);

/// An empty list, owned by the caller; null if there is no memory.
QuorStringListHandle QuorUtilStringListAlloc();
void QuorUtilStringListDealloc(QuorStringListHandle* list);
/// Number of strings, those never set included.
std::int64_t QuorUtilStringListGetCount(QuorStringListHandle list);
/// A copy of the string at `index`, counted from 1, owned by the caller; null for a string that was
/// never set or if there is no memory.
char* QuorUtilStringListGetString(QuorStringListHandle list, std::int64_t index);
/// Stores a copy of `text` at `index`, counted from 1; the list grows as needed. False: no memory.
bool QuorUtilStringListSetString(QuorStringListHandle list, std::int64_t index, const char* text);
/// Appends a copy of `text`. False: no memory.
bool QuorUtilStringListAppendString(QuorStringListHandle list, const char* text);
/// Appends copies of all strings of `other`. False: no memory.
bool QuorUtilStringListAppend(QuorStringListHandle list, QuorStringListHandle other);

/// An empty argument list, owned by the caller; null if there is no memory.
QuorArgListHandle QuorUtilArgListAlloc();
/// Takes all arguments out of the list.
void QuorUtilArgListClear(QuorArgListHandle arguments);
void QuorUtilArgListDealloc(QuorArgListHandle* arguments);
/// Append one named argument. Texts are copied; string lists and arrays are borrowed until the list
/// is cleared or given back, and an array is as long as its key says. False: no memory, or the key
/// stands in the list already.
bool QuorUtilArgListAppendString(QuorArgListHandle arguments, const char* key, const char* value);
bool QuorUtilArgListAppendInt(QuorArgListHandle arguments, const char* key, std::int64_t value);
bool QuorUtilArgListAppendDouble(QuorArgListHandle arguments, const char* key, double value);
bool QuorUtilArgListAppendStringList(QuorArgListHandle arguments, const char* key,
                                     QuorStringListHandle value);
bool QuorUtilArgListAppendArray(QuorArgListHandle arguments, const char* key, const void* value);
bool QuorUtilArgListAppendFunction(QuorArgListHandle arguments, const char* key,
                                   QuorFunction value);

/// An empty set, owned by the caller; null if there is no memory.
QuorSetHandle QuorUtilSetAlloc(bool showErrors);
void QuorUtilSetDealloc(QuorSetHandle* set);
/// False: no memory, or `member` is not from 1 to 2147483647. A member that is there already is no
/// error.
bool QuorUtilSetAddMember(QuorSetHandle set, std::int64_t member, bool showErrors);
void QuorUtilSetRemoveMember(QuorSetHandle set, std::int64_t member);
/// Of a null set: false.
bool QuorUtilSetIsMember(QuorSetHandle set, std::int64_t member);
/// Of a null set: true.
bool QuorUtilSetIsEmpty(QuorSetHandle set);
/// Number of members; the set must not be null.
std::int64_t QuorUtilSetGetMemberCount(QuorSetHandle set);
/// The next member above `previous`, which is 0 to begin; 0 at the end.
std::int64_t QuorUtilSetGetNextMember(QuorSetHandle set, std::int64_t previous);

// ---- Frame and data set -------------------------------------------------------------------------

/// QuorPlotType_e.
std::int32_t QuorUtilFrameGetPlotType();
void QuorUtilFrameSetPlotType(std::int32_t plotType);
/// The frame's identity; never 0, and never given to another.
std::int64_t QuorUtilFrameGetUniqueID();
/// Discards the frame's data set and all that the frame holds.
void QuorUtilFrameReset(std::int64_t frameId);
/// Draws the frame anew: with true all of it, else what the host finds enough.
void QuorUtilRedraw(bool doFullDrawing);

/// Whether the frame has a data set.
bool QuorUtilDataSetIsAvailable();
/// Title (a host string that the caller gives back) and numbers of zones and variables. Each out
/// argument may be null. False: there is no data set, or no memory for the title.
bool QuorUtilDataSetGetInfo(char** title, std::int32_t* zoneCount, std::int32_t* varCount);

/// Creates the frame's data set without zones, in place of one that is there. Keys: "LoaderName",
/// "DataSetTitle" (strings), "VarNames" (string list). False: a key is missing or bad, or there is
/// no memory; the frame is as it was.
bool QuorUtilDataSetCreateX(QuorArgListHandle arguments);

/// Adds a zone behind the last one; true if it exists afterwards. Keys: "Name" (string),
/// "ZoneType", "IMax", "JMax", "KMax" (integers; see QuorZoneType_e), "StrandID" (integer, 0 or
/// absent for none), "SolutionTime" (double), "ParentZone" (integer, a zone number),
/// "ConnectShareZone" (integer: the zone whose node map it shares), "VarDataType" (array of 32-bit
/// QuorFieldDataType_e, one for each variable), "DeferVarCreation" (integer; 1: allocate no field
/// until one is asked for). The first five are required.
bool QuorUtilDataSetAddZoneX(QuorArgListHandle arguments);

/// Adds a variable behind the last one, to every zone; true if it exists afterwards. Keys: "Name"
/// (string), "VarDataType" (array of 32-bit types, one for each zone), "DeferVarCreation" (integer;
/// 1: the fields are left empty; otherwise they are filled with 0).
bool QuorUtilDataSetAddVarX(QuorArgListHandle arguments);

/// Delete the members of a borrowed set; what stands behind them is renumbered. Fields that are
/// shared with others stay there. False: a member does not exist, or there is no memory; nothing
/// was deleted then.
bool QuorUtilDataSetDeleteZone(QuorSetHandle zones);
bool QuorUtilDataSetDeleteVar(QuorSetHandle vars);
bool QuorUtilZoneDelete(QuorSetHandle zones);

/// The highest strand number in use; 0 if none is.
std::int32_t QuorUtilDataSetGetMaxStrandID();
/// Whether fields and node maps may be shared between zones.
bool QuorUtilDataSetIsSharingAllowed();

// ---- Zones and variables ------------------------------------------------------------------------

/// The numbers of all zones or variables, as a set that the caller gives back. False: no data set,
/// or no memory; the out argument is null then.
bool QuorUtilZoneGetEnabled(QuorSetHandle* zones);
bool QuorUtilVarGetEnabled(QuorSetHandle* vars);

/// The zone's sizes as passed in "IMax", "JMax", "KMax". `further` is reserved and null.
void QuorUtilZoneGetInfo(std::int32_t zone, std::int64_t* iMax, std::int64_t* jMax,
                         std::int64_t* kMax, void* further);
/// QuorZoneType_e.
std::int32_t QuorUtilZoneGetType(std::int32_t zone);
/// False: there is no such zone, the host refuses the name, or there is no memory.
bool QuorUtilZoneRename(std::int32_t zone, const char* name);
/// A strand number from 1; 0 for none.
std::int32_t QuorUtilZoneGetStrandID(std::int32_t zone);
void QuorUtilZoneSetStrandID(std::int32_t zone, std::int32_t strand);
/// False: there is no such zone. Asking is allowed all the same.
bool QuorUtilZoneSetSolutionTime(std::int32_t zone, double solutionTime);

/// Identities that outlive renumbering; never 0. The number of an identity that is gone is 0.
std::int64_t QuorUtilZoneGetUniqueID(std::int32_t zone);
std::int32_t QuorUtilZoneGetNumByUniqueID(std::int64_t zoneId);
std::int64_t QuorUtilVarGetUniqueID(std::int32_t var);
std::int32_t QuorUtilVarGetNumByUniqueID(std::int64_t varId);

/// On true `name` holds a host string that the caller gives back. False: there is no such variable,
/// or no memory.
bool QuorUtilVarGetName(std::int32_t var, char** name);

/// Gives the zones of a borrowed set the style that the host finds fitting.
void QuorUtilZoneStyleApplyAuto(QuorSetHandle zones);

/// Finds a time in each name of a borrowed list. `times` is the caller's, one entry for each name;
/// it is filled only on true. False: not every name has a time, or there is no memory. The last
/// argument is false.
bool QuorUtilExtractTimesFromFileNames(QuorStringListHandle names, double* times, bool showErrors);

// ---- Field data and connectivity ----------------------------------------------------------------

/// QuorValueLocation_e.
std::int32_t QuorUtilDataValueGetLocation(std::int32_t zone, std::int32_t var);
/// QuorFieldDataType_e, known before the field has values.
std::int32_t QuorUtilDataValueGetType(std::int32_t zone, std::int32_t var);
/// Whether the variable is switched off in this zone.
bool QuorUtilDataValueIsPassive(std::int32_t zone, std::int32_t var);

/// Makes the field's storage, in place of storage, sharing or callbacks that it has; the values are
/// 0. False: no memory.
bool QuorUtilDataValueAlloc(std::int32_t zone, std::int32_t var);
/// The field's array and type; a null pointer if the host has no plain array for it. The pointer is
/// borrowed until the field changes.
void QuorUtilDataValueGetRawPtr(std::int32_t zone, std::int32_t var, void** values,
                                std::int32_t* dataType);
/// A handle for writing, owned by the host; null if the field can't be written, or if there is no
/// memory.
QuorFieldHandle QuorUtilDataValueGetWritableRef(std::int32_t zone, std::int32_t var);
/// The array to fill, index order I fastest, then J, then K. This and the next three, and
/// QuorUtilDataValueGetClientData, may be called without the lock, for the sake of load callbacks.
void* QuorUtilDataValueGetRawPtrByRef(QuorFieldHandle field);
/// QuorFieldDataType_e of the array.
std::int32_t QuorUtilDataValueGetRefType(QuorFieldHandle field);
/// Stores single values where there is no plain array; null if the field can't be written.
QuorFieldSetFunction QuorUtilDataValueRefGetSetFunc(QuorFieldHandle field);
/// Copies `count` values of the field's type into the field. `firstIndex` counts from 1.
/// Throws quorvia::InterruptedException if the user interrupts.
void QuorUtilDataValueArraySetByRef(QuorFieldHandle field, std::int64_t firstIndex,
                                    std::int64_t count, const void* values);

/// The host takes the field over for load on demand, in place of storage, sharing or callbacks that
/// it has. The two null slots are unused. The host owns `clientData` from a true result on and
/// hands it back in the callbacks until `cleanUp`; on false it stays the caller's, and `cleanUp` is
/// not called.
bool QuorUtilDataValueCustomLOD(std::int32_t zone, std::int32_t var, QuorFieldLoadCallback load,
                                QuorFieldUnloadCallback unload, QuorFieldCleanupCallback cleanUp,
                                QuorFieldValueCallback getValue, QuorFieldValueCallback setValue,
                                void* clientData);
/// What the field was registered with; null if it was not, or not any more.
void* QuorUtilDataValueGetClientData(QuorFieldHandle field);

/// Whether the field of `sourceZone` could be shared with `zone`: same type, same number of values.
bool QuorUtilDataValueIsSharingOk(std::int32_t sourceZone, std::int32_t zone, std::int32_t var);
/// The destination's field becomes the source's, deferred fields included. False: not allowed.
bool QuorUtilDataValueShare(std::int32_t sourceZone, std::int32_t destinationZone,
                            std::int32_t var);
/// Copies values into storage that QuorUtilDataValueAlloc made; a deferred source is fetched.
/// False: the types or sizes differ, there is no storage, or the source's values can't be had, be
/// it for want of memory.
bool QuorUtilDataValueCopy(std::int32_t sourceZone, std::int32_t destinationZone, std::int32_t var);

/// The node map of a finite-element zone, owned by the host; null for an ordered zone, or if there
/// is no memory.
QuorNodeMapHandle QuorUtilDataNodeGetRef(std::int32_t zone);
/// Element, corner and node count from 1.
void QuorUtilDataNodeSetByRef(QuorNodeMapHandle nodeMap, std::int64_t element, std::int32_t corner,
                              std::int64_t node);

// ---- Auxiliary data -----------------------------------------------------------------------------

/// Owned by the host; null if there is no such zone, no data set or no memory.
QuorAuxDataHandle QuorUtilAuxDataZoneGetRef(std::int32_t zone);
QuorAuxDataHandle QuorUtilAuxDataDataSetGetRef();
/// Sets a string item, in place of one of the same name. `type` is 0; `retain` is 1. False: the
/// host does not take the name or the text, or has no memory for them; the old item stays then.
bool QuorUtilAuxDataSetItem(QuorAuxDataHandle auxData, const char* name, const char* text,
                            std::int32_t type, std::int32_t retain);

} // extern "C"
