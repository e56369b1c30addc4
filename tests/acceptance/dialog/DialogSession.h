// Sessions at the load dialog: what a user does there, and what it shows. When each control can be
// used, and what it stores, is told by tests/dialog.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "acceptance/macros/FieldOfFile.h"
#include "acceptance/macros/MacroSession.h"

namespace quorvia::testsupport {

inline constexpr const char* selectionPage = "File Selection";
inline constexpr const char* structurePage = "File Structure";
inline constexpr const char* subsetPage = "Data Subset";
inline constexpr const char* appendCaption = "Append to Existing Data Set";

/// What a user does at the dialog.
using Actions = std::vector<Json>;

Json toPage(const char* caption);
Json toggle(const std::string& caption, bool value);
Json radio(const std::string& item);
Json menu(const std::string& item);
Json press(const std::string& caption);
/// `column`: "Grid", "Solution" or "Function".
Json press(const std::string& caption, const std::string& column);
Json selectItems(const std::vector<int>& positions, const std::string& column);
Json type(const std::string& text, const std::string& field);
/// No files is Cancel.
Json choose(const Texts& files);

/// The commands that show the dialog on a selection of files and play the actions there.
Commands atDialog(const Texts& files, const Actions& actions);

/// Of an outcome whose dialog was shown; the first of the kind on the page that has the caption.
const Json& control(const Json& outcome, const char* page, const std::string& kind,
                    const std::string& caption = "");
/// Of several that are alike, `number` counts from 1.
const Json& nthControl(const Json& outcome, const char* page, const std::string& kind,
                       std::size_t number, const std::string& caption = "");
const Json& listOf(const Json& outcome, const std::string& column);
bool isOn(const Json& outcome, const char* page, const std::string& caption);

class DialogSession : public MacroSession {
protected:
    /// Plays the actions at a dialog on `files`, cancelled at the end if they leave it open.
    void playAtDialog(const Texts& files, const Actions& actions) {
        play(atDialog(files, actions));
    }
    /// What the dialog shows behind the actions.
    const Json& shownAfter(const Texts& files, Actions actions);

    SmallFiles series_{directory().path().string()};
};

} // namespace quorvia::testsupport
