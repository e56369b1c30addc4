#include "toolkit/ScriptedUser.h"

#include <new>
#include <utility>

#include "toolkit/DialogLoop.h"

namespace quorvia::host {

namespace {

constexpr PressDialogButton_s cancel{DialogButton_e::Cancel};

} // namespace

void ScriptedUser::setAnswers(std::deque<bool> answers, bool afterwards) {
    answers_ = std::move(answers);
    laterAnswers_ = afterwards;
}

void ScriptedUser::setFileChoices(std::deque<FileChoice> choices) {
    fileChoices_ = std::move(choices);
}

void ScriptedUser::addToScript(std::vector<ScriptEntry> entries) {
    for (ScriptEntry& entry : entries)
        script_.push_back(std::move(entry));
}

void ScriptedUser::takeLooksLeft() {
    std::deque<ScriptEntry> others;
    for (ScriptEntry& entry : script_) {
        if (const ScriptLook* look = std::get_if<ScriptLook>(&entry))
            (*look)();
        else
            others.push_back(std::move(entry));
    }
    script_ = std::move(others);
}

void ScriptedUser::reset() noexcept {
    answers_.clear();
    laterAnswers_ = false;
    clearScript();
}

void ScriptedUser::clearScript() noexcept {
    script_.clear();
    fileChoices_.clear();
    problem_.clear();
    cancelledDialogs_ = 0;
}

ScriptEntry ScriptedUser::takeEntry() {
    ScriptEntry entry = std::move(script_.front());
    script_.pop_front();
    return entry;
}

bool ScriptedUser::isDoneWithoutDialog(ScriptEntry& entry) {
    if (FileChoice* choice = std::get_if<FileChoice>(&entry))
        fileChoices_.push_back(std::move(*choice));
    else if (const ScriptLook* look = std::get_if<ScriptLook>(&entry))
        (*look)();
    return !std::holds_alternative<DialogStep>(entry);
}

DialogAction ScriptedUser::playOn(const Dialog_s& dialog) {
    while (!script_.empty()) {
        ScriptEntry entry = takeEntry();
        if (isDoneWithoutDialog(entry))
            continue;
        DialogMove_s move = std::get<DialogStep>(entry)(dialog);
        if (move.action.has_value() && move.problem.empty())
            move.problem = whyImpossible(dialog, *move.action);
        if (!move.problem.empty()) {
            script_.clear();
            problem_ = std::move(move.problem);
            return cancel;
        }
        if (move.isOnlyTheWay)
            script_.push_front(std::move(entry));
        if (move.action.has_value())
            return *std::move(move.action);
    }
    if (problem_.empty())
        ++cancelledDialogs_;
    return cancel;
}

DialogAction ScriptedUser::nextAction(const Dialog_s& dialog) {
    try {
        return playOn(dialog);
    } catch (const std::bad_alloc&) {
        loseScript();
        throw;
    }
}

void ScriptedUser::choiceLost() {
    loseScript();
}

// The rest would be played at another place than was meant.
void ScriptedUser::loseScript() {
    script_.clear();
    problem_ = "no memory"; // so short a text needs none
}

bool ScriptedUser::answer(const std::string& question) {
    (void)question; // the script answers in the order of the questions
    if (answers_.empty())
        return laterAnswers_;
    const bool answer = answers_.front();
    answers_.pop_front();
    return answer;
}

FileChoice ScriptedUser::chooseFiles(const FileRequest_s& request) {
    (void)request; // likewise
    if (fileChoices_.empty() && !script_.empty() &&
        std::holds_alternative<FileChoice>(script_.front()))
        return std::get<FileChoice>(takeEntry());
    if (fileChoices_.empty())
        return {};
    FileChoice choice = std::move(fileChoices_.front());
    fileChoices_.pop_front();
    return choice;
}

} // namespace quorvia::host
