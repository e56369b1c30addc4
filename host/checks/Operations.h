// Every operation of the contract by its name: whether it has a way to fail, and whether the guest
// must hold the lock. Those without need of it are the ones that the SDK's text exempts: memory,
// strings, lists and sets, which are private to whoever holds them, and single operations that say
// so of themselves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvia::host {

enum class Failure_e : std::uint8_t { None, Possible };
enum class LockNeed_e : std::uint8_t { None, Held };

struct OperationTraits_s {
    std::string_view name;
    Failure_e failure;
    LockNeed_e lock;
};

namespace detail {

inline constexpr Failure_e certain = Failure_e::None; // queries, and operations without a result
inline constexpr Failure_e failing = Failure_e::Possible;
inline constexpr LockNeed_e unlocked = LockNeed_e::None;
inline constexpr LockNeed_e locked = LockNeed_e::Held;

// clang-format off
inline constexpr OperationTraits_s operationTable[] = {
    {"QuorUtilGetQuorviaVersion", certain, unlocked},
    {"QuorUtilAddOnRegister", certain, locked},
    {"QuorUtilLockOn", certain, unlocked},
    {"QuorUtilLockOff", certain, unlocked},
    {"QuorUtilLockStart", certain, unlocked},
    {"QuorUtilLockFinish", certain, unlocked},
    {"QuorUtilStateChangeAddCallback", certain, locked},
    {"QuorUtilStateChanged", certain, locked},
    {"QuorUtilUndoStateBegin", certain, locked},
    {"QuorUtilUndoStateEnd", certain, locked},
    {"QuorUtilInterruptIsSet", certain, locked},
    {"QuorUtilImportAddLoaderX", failing, locked},
    {"QuorUtilImportSetLoaderInstr", failing, locked},
    {"QuorUtilDialogErrMsg", certain, unlocked},
    {"QuorUtilDialogMessageBox", failing, locked},
    {"QuorUtilPostLastErrorMessage", certain, locked},
    {"QuorUtilDialogGetFileName", failing, locked},
    {"QuorUtilDialogGetFileNames", failing, locked},
    {"QuorUtilGetBasePath", failing, unlocked},
    {"QuorUtilHelp", certain, locked},
    {"QuorUtilStringAlloc", failing, unlocked},
    {"QuorUtilStringDealloc", certain, unlocked},
    {"QuorUtilArrayDealloc", certain, unlocked},
    {"QuorUtilStringListAlloc", failing, unlocked},
    {"QuorUtilStringListDealloc", certain, unlocked},
    {"QuorUtilStringListGetCount", certain, unlocked},
    {"QuorUtilStringListGetString", failing, unlocked},
    {"QuorUtilStringListSetString", failing, unlocked},
    {"QuorUtilStringListAppendString", failing, unlocked},
    {"QuorUtilStringListAppend", failing, unlocked},
    {"QuorUtilArgListAlloc", failing, unlocked},
    {"QuorUtilArgListClear", certain, unlocked},
    {"QuorUtilArgListDealloc", certain, unlocked},
    {"QuorUtilArgListAppendString", failing, unlocked},
    {"QuorUtilArgListAppendInt", failing, unlocked},
    {"QuorUtilArgListAppendDouble", failing, unlocked},
    {"QuorUtilArgListAppendStringList", failing, unlocked},
    {"QuorUtilArgListAppendArray", failing, unlocked},
    {"QuorUtilArgListAppendFunction", failing, unlocked},
    {"QuorUtilSetAlloc", failing, unlocked},
    {"QuorUtilSetDealloc", certain, unlocked},
    {"QuorUtilSetAddMember", failing, unlocked},
    {"QuorUtilSetRemoveMember", certain, unlocked},
    {"QuorUtilSetIsMember", certain, unlocked},
    {"QuorUtilSetIsEmpty", certain, unlocked},
    {"QuorUtilSetGetMemberCount", certain, unlocked},
    {"QuorUtilSetGetNextMember", certain, unlocked},
    {"QuorUtilFrameGetPlotType", certain, locked},
    {"QuorUtilFrameSetPlotType", certain, locked},
    {"QuorUtilFrameGetUniqueID", certain, locked},
    {"QuorUtilFrameReset", certain, locked},
    {"QuorUtilRedraw", certain, locked},
    {"QuorUtilDataSetIsAvailable", certain, locked},
    {"QuorUtilDataSetGetInfo", failing, locked},
    {"QuorUtilDataSetCreateX", failing, locked},
    {"QuorUtilDataSetAddZoneX", failing, locked},
    {"QuorUtilDataSetAddVarX", failing, locked},
    {"QuorUtilDataSetDeleteZone", failing, locked},
    {"QuorUtilDataSetDeleteVar", failing, locked},
    {"QuorUtilZoneDelete", failing, locked},
    {"QuorUtilDataSetGetMaxStrandID", certain, locked},
    {"QuorUtilDataSetIsSharingAllowed", certain, locked},
    {"QuorUtilZoneGetEnabled", failing, locked},
    {"QuorUtilVarGetEnabled", failing, locked},
    {"QuorUtilZoneGetInfo", certain, locked},
    {"QuorUtilZoneGetType", certain, locked},
    {"QuorUtilZoneRename", failing, locked},
    {"QuorUtilZoneGetStrandID", certain, locked},
    {"QuorUtilZoneSetStrandID", certain, locked},
    {"QuorUtilZoneSetSolutionTime", failing, locked},
    {"QuorUtilZoneGetUniqueID", certain, locked},
    {"QuorUtilZoneGetNumByUniqueID", certain, locked},
    {"QuorUtilVarGetUniqueID", certain, locked},
    {"QuorUtilVarGetNumByUniqueID", certain, locked},
    {"QuorUtilVarGetName", failing, locked},
    {"QuorUtilZoneStyleApplyAuto", certain, locked},
    {"QuorUtilExtractTimesFromFileNames", failing, locked},
    {"QuorUtilDataValueGetLocation", certain, locked},
    {"QuorUtilDataValueGetType", certain, locked},
    {"QuorUtilDataValueIsPassive", certain, locked},
    {"QuorUtilDataValueAlloc", failing, locked},
    {"QuorUtilDataValueGetRawPtr", failing, locked},
    {"QuorUtilDataValueGetWritableRef", failing, locked},
    {"QuorUtilDataValueGetRawPtrByRef", certain, unlocked},
    {"QuorUtilDataValueGetRefType", certain, unlocked},
    {"QuorUtilDataValueRefGetSetFunc", certain, unlocked},
    {"QuorUtilDataValueArraySetByRef", failing, unlocked},
    {"QuorUtilDataValueCustomLOD", failing, locked},
    {"QuorUtilDataValueGetClientData", certain, unlocked},
    {"QuorUtilDataValueIsSharingOk", failing, locked},
    {"QuorUtilDataValueShare", failing, locked},
    {"QuorUtilDataValueCopy", failing, locked},
    {"QuorUtilDataNodeGetRef", failing, locked},
    {"QuorUtilDataNodeSetByRef", certain, locked},
    {"QuorUtilAuxDataZoneGetRef", failing, locked},
    {"QuorUtilAuxDataDataSetGetRef", failing, locked},
    {"QuorUtilAuxDataSetItem", failing, locked},
    {"QuorGUIDialogCreateModal", failing, locked},
    {"QuorGUIDialogLaunch", certain, locked},
    {"QuorGUIDialogDrop", certain, locked},
    {"QuorGUITabAdd", failing, locked},
    {"QuorGUITabAddPage", failing, locked},
    {"QuorGUIFrameAdd", failing, locked},
    {"QuorGUILabelAdd", failing, locked},
    {"QuorGUIToggleAdd", failing, locked},
    {"QuorGUIButtonAdd", failing, locked},
    {"QuorGUIListAdd", failing, locked},
    {"QuorGUITextFieldAdd", failing, locked},
    {"QuorGUIRadioBoxAdd", failing, locked},
    {"QuorGUIOptionMenuAdd", failing, locked},
    {"QuorGUIToggleSet", certain, locked},
    {"QuorGUIRadioBoxSetToggle", certain, locked},
    {"QuorGUIOptionMenuSet", certain, locked},
    {"QuorGUIListDeleteAllItems", certain, locked},
    {"QuorGUIListAppendItem", certain, locked},
    {"QuorGUIListGetSelectedItems", certain, locked},
    {"QuorGUITextFieldSetString", certain, locked},
    {"QuorGUITextFieldGetString", failing, locked},
    {"QuorGUITextFieldSetLgIndex", certain, locked},
    {"QuorGUITextFieldGetLgIndex", failing, locked},
    {"QuorGUITextFieldValidateLgIndex", failing, locked},
    {"QuorGUITextFieldSetSet", certain, locked},
    {"QuorGUITextFieldGetSet", failing, locked},
    {"QuorGUISetSensitivity", certain, locked},
    {"QuorGUISetInputFocus", certain, locked},
    {"createTaskProgressBar", failing, unlocked},
    {"TaskProgress::createSubTask", certain, unlocked},
    {"TaskProgress::setStepCount", certain, unlocked},
    {"TaskProgress::setMessage", failing, unlocked},
    {"TaskProgress::step", failing, unlocked},
    {"TaskProgress::stepWithMessage", failing, unlocked},
    {"TaskProgress::~TaskProgress", certain, unlocked},
    {"SolutionTimeNotificationDeferrer", certain, unlocked},
    {"~SolutionTimeNotificationDeferrer", certain, unlocked},
    {"utf8ToWideString", certain, unlocked},
};
// clang-format on

} // namespace detail

inline constexpr std::size_t operationCount = std::size(detail::operationTable);

/// The place of the name in the table; nothing for an unknown name.
constexpr std::optional<std::size_t> findOperation(std::string_view name) {
    for (std::size_t index = 0; index < operationCount; ++index) {
        if (detail::operationTable[index].name == name)
            return index;
    }
    return std::nullopt;
}

/// One operation, named by a literal; a name that is not in the table does not compile.
class OperationId {
public:
    consteval OperationId(const char* name) : index_(findOperation(name).value()) {}

    static constexpr OperationId at(std::size_t index) { return OperationId(index); }

    constexpr std::size_t index() const { return index_; }
    constexpr const OperationTraits_s& traits() const { return detail::operationTable[index_]; }
    constexpr std::string_view name() const { return traits().name; }

private:
    constexpr explicit OperationId(std::size_t index) : index_(index) {}
    std::size_t index_;
};

} // namespace quorvia::host
