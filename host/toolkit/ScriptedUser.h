// A user who does what was written down beforehand: answers, files to choose, and steps at a
// dialog. It never waits: what the script does not say is answered with No, Cancel.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "toolkit/User.h"

namespace quorvia::host {

/// What a step makes of the dialog that it finds: an action, or why it can't be done.
struct DialogMove_s {
    std::optional<DialogAction> action;
    std::string problem;
    bool isOnlyTheWay = false; // behind this action the step is called again
};

/// Called once the dialog waits for the user.
using DialogStep = std::function<DialogMove_s(const Dialog_s&)>;

/// Whole paths for the next file chooser; none for Cancel.
using FileChoice = std::vector<std::string>;

/// Looks at the host where it stands in the script; it needs no dialog.
using ScriptLook = std::function<void()>;

/// A file choice in a script may stand before the step that opens the chooser or behind it.
using ScriptEntry = std::variant<DialogStep, FileChoice, ScriptLook>;

class ScriptedUser : public User {
public:
    /// Answers to the questions to come, in order; once they are used up, `afterwards` answers all.
    void setAnswers(std::deque<bool> answers, bool afterwards);
    void setFileChoices(std::deque<FileChoice> choices);
    /// Behind what is left of the script.
    void addToScript(std::vector<ScriptEntry> entries);
    /// When no dialog will come any more: the looks that are left are taken.
    void takeLooksLeft();
    void clearScript() noexcept;
    /// As if nothing had ever been written down. Needs no memory.
    void reset() noexcept;

    /// Entries that are still to be played, file choices that nobody asked for included.
    std::size_t entriesLeft() const { return script_.size() + fileChoices_.size(); }
    /// Of the first step that could not be done, after which the script was given up and the dialog
    /// cancelled; empty if there was none.
    const std::string& problem() const { return problem_; }
    /// How many dialogs the script left open, so that they were cancelled.
    std::int64_t cancelledDialogs() const { return cancelledDialogs_; }

    DialogAction nextAction(const Dialog_s& dialog) override;
    bool answer(const std::string& question) override;
    FileChoice chooseFiles(const FileRequest_s& request) override;
    void choiceLost() override;

private:
    void loseScript();
    DialogAction playOn(const Dialog_s& dialog);
    ScriptEntry takeEntry();
    /// Does what the entry says if it is no step of a dialog.
    bool isDoneWithoutDialog(ScriptEntry& entry);

    std::deque<bool> answers_;
    bool laterAnswers_ = false;
    std::deque<FileChoice> fileChoices_;
    std::deque<ScriptEntry> script_;
    std::string problem_;
    std::int64_t cancelledDialogs_ = 0;
};

} // namespace quorvia::host
