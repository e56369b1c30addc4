// Messages, questions, file dialogs, help.
#include "services/Call.h"

using namespace quorvia::host;

namespace {

bool showBox(Call& call, const char* text, std::int32_t kind) {
    HostState& host = call.host();
    const bool isInformation = kind == QuorMessageBox_Information;
    const bool isQuestion = kind == QuorMessageBox_OkCancel || kind == QuorMessageBox_YesNo;
    if (text == nullptr || (!isInformation && !isQuestion))
        return call.violate("text is null, or there is no box of kind " + std::to_string(kind));
    if (isInformation) {
        host.showMessage({MessageKind::Information, text, std::nullopt});
        return !call.fails();
    }
    const bool answer = !call.fails() && host.user->answer(text);
    host.showMessage({MessageKind::Question, text, answer});
    return answer;
}

// The files that the user picks; none for Cancel.
std::vector<std::string> chosenFiles(Call& call, const FileRequest& request) {
    return call.fails() ? std::vector<std::string>() : call.host().user->chooseFiles(request);
}

} // namespace

extern "C" {

void QuorUtilDialogErrMsg(const char* text) {
    Call call("QuorUtilDialogErrMsg", text);
    if (text == nullptr)
        call.violation("text is null");
    else
        call.host().showMessage({MessageKind::Error, text, std::nullopt});
}

bool QuorUtilDialogMessageBox(const char* text, std::int32_t kind) {
    Call call("QuorUtilDialogMessageBox", text, kind);
    return call.result(showBox(call, text, kind));
}

void QuorUtilPostLastErrorMessage() {
    Call call("QuorUtilPostLastErrorMessage");
    const std::string& lastError = call.host().lastError;
    call.host().showMessage({MessageKind::Error,
                             lastError.empty() ? "The host has no error to show." : lastError,
                             std::nullopt});
}

bool QuorUtilDialogGetFileName(std::int32_t dialogKind, char** name, const char* typeWord,
                               const char* defaultName, const char* filter) {
    Call call("QuorUtilDialogGetFileName", dialogKind, typeWord, defaultName, filter);
    if (name == nullptr || dialogKind != 0 || typeWord == nullptr || filter == nullptr)
        return call.result(call.violate("bad dialog kind, or an argument is null"));
    *name = nullptr;
    const std::vector<std::string> choice =
        chosenFiles(call, {false, typeWord, defaultName != nullptr ? defaultName : "", filter});
    if (choice.empty())
        return call.result(false);
    *name = call.host().memory.copyText(call.operation(), choice.front());
    call.result(*name != nullptr);
    call.out(choice.front());
    return *name != nullptr;
}

bool QuorUtilDialogGetFileNames(std::int32_t dialogKind, QuorStringListHandle* names,
                                const char* typeWord, QuorStringListHandle defaultNames,
                                const char* filter) {
    Call call("QuorUtilDialogGetFileNames", dialogKind, typeWord, defaultNames, filter);
    if (names == nullptr || dialogKind != 1 || typeWord == nullptr || filter == nullptr)
        return call.result(call.violate("bad dialog kind, or an argument is null"));
    *names = nullptr;
    const std::vector<std::string> choice = chosenFiles(call, {true, typeWord, "", filter});
    if (choice.empty())
        return call.result(false);
    GuestStringList list;
    list.strings.assign(choice.begin(), choice.end());
    *names = call.host().handles.of(*names).add(call.operation(), std::move(list));
    call.result(true);
    call.out(*names);
    return true;
}

void QuorUtilHelp(const char* target, bool goToId, std::int32_t id) {
    Call call("QuorUtilHelp", target, goToId, id);
    if (target == nullptr || goToId || id != 0)
        call.violation("target is null, or the other arguments are not false and 0");
    else {
        call.host().log.helpTargets.emplace_back(target);
        call.host().user->showHelp(target);
    }
}

} // extern "C"
