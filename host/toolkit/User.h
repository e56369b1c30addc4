// Who sits before the host: reads what a guest shows and does the next thing. One kind of user
// plays a script, another is a person before a window. The host calls a user on the thread on which
// the guest runs, and waits for the answer.
#pragma once

#include <string>
#include <vector>

#include "toolkit/Dialog.h"
#include "toolkit/DialogAction.h"

namespace quorvia::host {

/// What a guest asks files for.
struct FileRequest_s {
    bool severalFiles = false;
    std::string kind;        ///< a word for the files, such as "Grid"
    std::string defaultName; ///< empty for none
    std::string filter;      ///< a pattern such as "*.nam"
};

class User {
public:
    virtual ~User() = default;

    /// The next thing that the user does at the open dialog; waits until there is one. What can't
    /// be done (a control that is not sensitive, or not on the front page) is passed over.
    virtual DialogAction nextAction(const Dialog_s& dialog) = 0;
    /// True for OK or Yes.
    virtual bool answer(const std::string& question) = 0;
    /// Whole paths; none for Cancel.
    virtual std::vector<std::string> chooseFiles(const FileRequest_s& request) = 0;
    /// There was no memory for the files that were chosen: the guest was told of none.
    virtual void choiceLost() {}

    // What a window needs to draw. The dialog and its controls are borrowed for the call.

    virtual void dialogShown(const Dialog_s& dialog) { (void)dialog; }
    virtual void dialogDropped(const Dialog_s& dialog) { (void)dialog; }
    virtual void pageShown(const Dialog_s& dialog) { (void)dialog; }
    virtual void controlChanged(const Dialog_s& dialog, const Control_s& control) {
        (void)dialog, (void)control;
    }
    virtual void focusMoved(const Dialog_s& dialog) { (void)dialog; }
    /// A text that only tells: an error or information. Returns when the user has read it.
    virtual void read(const std::string& text, bool isError) { (void)text, (void)isError; }
    virtual void showHelp(const std::string& target) { (void)target; }
};

} // namespace quorvia::host
