// What a macro does at the dialog of an add-on: plain values, one record for each kind of action.
// Made by parseDialogCommand() (DialogCommandParser.h), played by way of dialogSteps()
// (DialogSteps.h).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quorvia::host {

/// Which of the columns of files, for lists, and for buttons whose captions repeat.
enum class FileColumn_e : std::int32_t { Grid = 1, Solution = 2, Function = 3 };

struct ShowPageAction_s {
    std::string caption;
};
struct ToggleAction_s {
    std::string caption;
    bool value = false;
};
/// The item's caption tells which radio box or menu is meant.
struct RadioAction_s {
    std::string item;
};
struct MenuAction_s {
    std::string item;
};
/// Also of the dialog's own buttons "OK", "Apply", "Cancel" and "Help".
struct PressAction_s {
    std::string caption;
    std::optional<FileColumn_e> column;
};
struct SelectItemsAction_s {
    std::vector<std::int32_t> positions; // from 1, in any order
    FileColumn_e column = FileColumn_e::Grid;
};
struct TypeAction_s {
    std::string text;
    std::string field; // as FieldNames.h calls it
};
/// In the next file chooser; no files for Cancel.
struct ChooseAction_s {
    std::vector<std::string> files;
};
struct DescribeAction_s {
    std::string name;
};

using MacroDialogAction =
    std::variant<ShowPageAction_s, ToggleAction_s, RadioAction_s, MenuAction_s, PressAction_s,
                 SelectItemsAction_s, TypeAction_s, ChooseAction_s, DescribeAction_s>;

/// For the next launch of a dialog, and those that come out of it.
struct DialogCommand_s {
    std::vector<MacroDialogAction> actions;
};

} // namespace quorvia::host
