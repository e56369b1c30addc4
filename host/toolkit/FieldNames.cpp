#include "toolkit/FieldNames.h"

#include <cstdint>
#include <cstdlib>
#include <limits>

namespace quorvia::host {

namespace {

constexpr std::int32_t elsewhere = std::numeric_limits<std::int32_t>::max();

/// How far the label is from the control that it may name, in layout units.
std::int32_t distance(const Geometry_s& label, const Geometry_s& control) {
    constexpr std::int32_t sameLine = 60;
    constexpr std::int32_t lineAbove = 200;
    constexpr std::int32_t indent = 300;
    const std::int32_t right = control.x - label.x;
    const std::int32_t down = control.y - label.y;
    if (std::abs(down) <= sameLine && right > 0)
        return right;
    if (down > 0 && down <= lineAbove && std::abs(right) <= indent)
        return down;
    return elsewhere;
}

bool isWithin(std::int32_t value, std::int32_t first, std::int32_t length) {
    return value >= first && value - first < length;
}

bool contains(const Geometry_s& frame, const Geometry_s& inner) {
    return isWithin(inner.x, frame.x, frame.width) && isWithin(inner.y, frame.y, frame.height);
}

std::string withoutMarks(const std::string& caption) {
    std::string name = caption.substr(0, caption.find_first_of("(:"));
    while (!name.empty() && name.back() == ' ')
        name.pop_back();
    return name;
}

} // namespace

const Control_s* labelOf(const Dialog_s& dialog, const Control_s& control) {
    const Control_s* nearest = nullptr;
    std::int32_t least = elsewhere;
    for (const Control_s& label : dialog.controls) {
        if (label.kind != ControlKind_e::Label || label.parent != control.parent)
            continue;
        const std::int32_t away = distance(label.geometry, control.geometry);
        if (away < least) {
            nearest = &label;
            least = away;
        }
    }
    return nearest;
}

const Control_s* frameAround(const Dialog_s& dialog, const Control_s& control) {
    for (const Control_s& frame : dialog.controls)
        if (frame.kind == ControlKind_e::Frame && frame.parent == control.parent &&
            contains(frame.geometry, control.geometry))
            return &frame;
    return nullptr;
}

bool isCalled(const Dialog_s& dialog, const Control_s& control, const std::string& name) {
    const Control_s* label = labelOf(dialog, control);
    if (label == nullptr)
        return false;
    const std::string labelName = withoutMarks(label->caption);
    const Control_s* frame = frameAround(dialog, control);
    return name == labelName || (frame != nullptr && name == frame->caption + ' ' + labelName);
}

} // namespace quorvia::host
