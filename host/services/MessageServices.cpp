// Messages, questions, file dialogs, help.
#include <iterator>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "services/Call.h"

using namespace quorvia::host;

namespace {

// Made ready before the user is asked: an answer must not get lost.
bool askUser(Call& call, const char* text) {
    HostState_s& host = call.host();
    const std::string question = text;
    const bool answer = host.user->answer(question);
    host.showMessage(MessageKind_e::Question, question, answer);
    return answer;
}

bool showBox(Call& call, const char* text, std::int32_t kind) {
    const bool isInformation = kind == QuorMessageBox_Information;
    const bool isQuestion = kind == QuorMessageBox_OkCancel || kind == QuorMessageBox_YesNo;
    if (text == nullptr || (!isInformation && !isQuestion))
        return call.violate("text is null, or there is no box of kind ", kind);
    if (isInformation)
        call.host().showMessage(MessageKind_e::Information, text);
    if (call.fails() && isQuestion)
        call.host().showMessage(MessageKind_e::Question, text, false);
    return call.withinMemory(false, [&] { return isInformation || askUser(call, text); });
}

/// The user's one file; null for Cancel.
char* chooseFile(Call& call, const FileRequest_s& request, std::string& chosen) {
    std::vector<std::string> choice = call.host().user->chooseFiles(request);
    if (choice.empty())
        return nullptr;
    chosen = std::move(choice.front());
    return call.host().memory.copyText(call.operation(), chosen);
}

QuorStringListHandle chooseFiles(Call& call, const FileRequest_s& request) {
    std::vector<std::string> choice = call.host().user->chooseFiles(request);
    if (choice.empty())
        return nullptr;
    GuestStringList_s list;
    list.strings.assign(std::make_move_iterator(choice.begin()),
                        std::make_move_iterator(choice.end()));
    return call.host().handles.of(QuorStringListHandle{}).add(call.operation(), std::move(list));
}

/// To the guest a choice that is lost looks like a Cancel, so that the user must be told.
template <typename Chosen, typename Choose>
Chosen letUserChoose(Call& call, Choose choose) {
    return call.withinMemory<Chosen>(nullptr, [&] {
        try {
            return choose();
        } catch (const std::bad_alloc&) {
            call.host().user->choiceLost();
            throw;
        }
    });
}

} // namespace

extern "C" {

void QuorUtilDialogErrMsg(const char* text) {
    Call call("QuorUtilDialogErrMsg", text);
    if (text == nullptr)
        call.violation("text is null");
    else
        call.host().showMessage(MessageKind_e::Error, text);
}

bool QuorUtilDialogMessageBox(const char* text, std::int32_t kind) {
    Call call("QuorUtilDialogMessageBox", text, kind);
    return call.result(showBox(call, text, kind));
}

void QuorUtilPostLastErrorMessage() {
    Call call("QuorUtilPostLastErrorMessage");
    const std::string& lastError = call.host().lastError;
    call.host().showMessage(MessageKind_e::Error, lastError.empty()
                                                      ? "The host has no error to show."
                                                      : std::string_view(lastError));
}

bool QuorUtilDialogGetFileName(std::int32_t dialogKind, char** name, const char* typeWord,
                               const char* defaultName, const char* filter) {
    Call call("QuorUtilDialogGetFileName", dialogKind, typeWord, defaultName, filter);
    if (name == nullptr || dialogKind != 0 || typeWord == nullptr || filter == nullptr)
        return call.result(call.violate("bad dialog kind, or an argument is null"));
    *name = nullptr;
    std::string chosen;
    *name = letUserChoose<char*>(call, [&] {
        const char* proposed = defaultName != nullptr ? defaultName : "";
        return chooseFile(call, {false, typeWord, proposed, filter}, chosen);
    });
    call.result(*name != nullptr);
    if (*name != nullptr)
        call.out(chosen);
    return *name != nullptr;
}

bool QuorUtilDialogGetFileNames(std::int32_t dialogKind, QuorStringListHandle* names,
                                const char* typeWord, QuorStringListHandle defaultNames,
                                const char* filter) {
    Call call("QuorUtilDialogGetFileNames", dialogKind, typeWord, defaultNames, filter);
    if (names == nullptr || dialogKind != 1 || typeWord == nullptr || filter == nullptr)
        return call.result(call.violate("bad dialog kind, or an argument is null"));
    *names = nullptr;
    *names = letUserChoose<QuorStringListHandle>(call, [&] {
        return chooseFiles(call, {true, typeWord, "", filter});
    });
    call.result(*names != nullptr);
    if (*names != nullptr)
        call.out(*names);
    return *names != nullptr;
}

void QuorUtilHelp(const char* target, bool goToId, std::int32_t id) {
    Call call("QuorUtilHelp", target, goToId, id);
    if (target == nullptr || goToId || id != 0)
        call.violation("target is null, or the other arguments are not false and 0");
    else {
        call.host().log.addHelpTarget(target);
        call.tryTo([&] { call.host().user->showHelp(target); });
    }
}

} // extern "C"
