#include "desktop/dialog/ControlNames.h"

#include <array>
#include <string_view>

#include "desktop/parts/Texts.h"
#include "toolkit/FieldNames.h"

namespace quorvia::host {
namespace {

struct Hint_s {
    std::string_view name; // without blanks at its ends
    const char* reason;
};

constexpr const char* foundByTrial =
    "Auto Detect finds this out. Choose Manually Describe to set it by hand.";
constexpr const char* needsNamedData =
    "A name file needs a grid file, and a solution or function file besides.";

// A guest tells that a control can't be used, but not why. The captions are those of the loaders
// that the host knows; a control of any other guest gets the general hint.
constexpr std::array hints = {
    Hint_s{"Append to Existing Data Set", "There is no data set to append to yet."},
    Hint_s{"Uniform Grid Structure", "One grid file serves all time steps, so that their structure "
                                     "is the same anyway."},
    Hint_s{"Assign New Strand IDs for Each Time Step",
           "Needs zones with strand IDs, grids that may differ from one time step to the next, and "
           "no zones that are added to existing strands."},
    Hint_s{"Add Zones to Existing Strands",
           "Needs solution files of a style other than Plot3D Function that are appended, and "
           "strand IDs that are assigned, but not new ones for each time step."},
    Hint_s{"Remove Selected", "Nothing is selected in the list."},
    Hint_s{"Remove All", "The list is empty."},
    Hint_s{"Name File (Optional):", needsNamedData},
    Hint_s{"...", needsNamedData},
    Hint_s{"Solution file style:", foundByTrial},
    Hint_s{"Multi-Grid", foundByTrial},
    Hint_s{"Data Structure:", foundByTrial},
};

} // namespace

std::string nameOf(const Dialog_s& dialog, const Control_s& control) {
    if (!control.caption.empty())
        return control.caption;
    if (control.kind == ControlKind_e::Frame)
        return "";
    if (const Control_s* label = labelOf(dialog, control))
        return label->caption;
    return control.items.empty() || control.kind == ControlKind_e::List ? ""
                                                                        : control.items.front();
}

std::string spokenNameOf(const Dialog_s& dialog, const Control_s& control) {
    const std::string name = nameOf(dialog, control);
    if (!control.caption.empty())
        return name;
    const Control_s* frame = frameAround(dialog, control);
    return frame != nullptr && !frame->caption.empty() ? frame->caption + ", " + name : name;
}

QString hintFor(const std::string& name) {
    const std::string trimmed = shown(name).trimmed().toStdString();
    for (const Hint_s& hint : hints)
        if (hint.name == trimmed)
            return QString::fromLatin1(hint.reason);
    return QStringLiteral("This can't be used with the present settings.");
}

} // namespace quorvia::host
