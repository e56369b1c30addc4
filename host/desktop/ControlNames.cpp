#include "desktop/ControlNames.h"

#include <array>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "desktop/Texts.h"

namespace quorvia::host {
namespace {

struct Hint_s {
    std::string_view name; // without blanks at its ends
    const char* reason;
};

constexpr const char* kFoundByTrial =
    "Auto Detect finds this out. Choose Manually Describe to set it by hand.";
constexpr const char* kNeedsNamedData =
    "A name file needs a grid file, and a solution or function file besides.";

// A guest tells that a control can't be used, but not why. The captions are those of the loaders
// that the host knows; a control of any other guest gets the general hint.
constexpr std::array kHints = {
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
    Hint_s{"Name File (Optional):", kNeedsNamedData},
    Hint_s{"...", kNeedsNamedData},
    Hint_s{"Solution file style:", kFoundByTrial},
    Hint_s{"Multi-Grid", kFoundByTrial},
    Hint_s{"Data Structure:", kFoundByTrial},
};

/// How far the label is from the control that it may name, in layout units; large for one that
/// stands elsewhere.
std::int32_t distance(const Control& label, const Control& control) {
    constexpr std::int32_t kSameLine = 60;
    constexpr std::int32_t kLineAbove = 200;
    constexpr std::int32_t kIndent = 300;
    const std::int32_t right = control.geometry.x - label.geometry.x;
    const std::int32_t down = control.geometry.y - label.geometry.y;
    if (std::abs(down) <= kSameLine && right > 0)
        return right;
    if (down > 0 && down <= kLineAbove && std::abs(right) <= kIndent)
        return down;
    return std::numeric_limits<std::int32_t>::max();
}

const Control* labelOf(const Dialog& dialog, const Control& control) {
    const Control* nearest = nullptr;
    std::int32_t least = std::numeric_limits<std::int32_t>::max();
    for (const Control& label : dialog.controls) {
        if (label.kind != ControlKind::Label || label.parent != control.parent)
            continue;
        const std::int32_t away = distance(label, control);
        if (away < least) {
            nearest = &label;
            least = away;
        }
    }
    return nearest;
}

bool isAround(const Control& frame, const Control& control) {
    const auto isWithin = [](std::int32_t value, std::int32_t first, std::int32_t length) {
        return value >= first && value - first < length;
    };
    return frame.kind == ControlKind::Frame && frame.parent == control.parent &&
           isWithin(control.geometry.x, frame.geometry.x, frame.geometry.width) &&
           isWithin(control.geometry.y, frame.geometry.y, frame.geometry.height);
}

} // namespace

std::string nameOf(const Dialog& dialog, const Control& control) {
    if (!control.caption.empty())
        return control.caption;
    if (control.kind == ControlKind::Frame)
        return "";
    if (const Control* label = labelOf(dialog, control))
        return label->caption;
    return control.items.empty() || control.kind == ControlKind::List ? "" : control.items.front();
}

std::string spokenNameOf(const Dialog& dialog, const Control& control) {
    const std::string name = nameOf(dialog, control);
    if (!control.caption.empty())
        return name;
    for (const Control& frame : dialog.controls)
        if (isAround(frame, control) && !frame.caption.empty())
            return frame.caption + ", " + name;
    return name;
}

QString hintFor(const std::string& name) {
    const std::string trimmed = shown(name).trimmed().toStdString();
    for (const Hint_s& hint : kHints)
        if (hint.name == trimmed)
            return QString::fromLatin1(hint.reason);
    return QStringLiteral("This can't be used with the present settings.");
}

} // namespace quorvia::host
