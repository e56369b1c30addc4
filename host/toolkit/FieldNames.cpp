#include "toolkit/FieldNames.h"

#include <cstdlib>

namespace quorvia::host {

namespace {

constexpr std::int32_t lineHeight = 144; // layout units

std::string withoutMarks(const std::string& caption) {
    std::string name = caption.substr(0, caption.find_first_of("(:"));
    while (!name.empty() && name.back() == ' ')
        name.pop_back();
    return name;
}

bool isInLineBefore(const Geometry& label, const Geometry& field) {
    return std::abs(label.y - field.y) <= lineHeight / 2 && label.x < field.x;
}

bool isJustAbove(const Geometry& label, const Geometry& field) {
    return label.y < field.y && field.y - label.y <= lineHeight && label.x < field.x + field.width;
}

bool contains(const Geometry& frame, const Geometry& inner) {
    return inner.x >= frame.x && inner.x < frame.x + frame.width && inner.y >= frame.y &&
           inner.y < frame.y + frame.height;
}

} // namespace

std::string labelOf(const Dialog& dialog, const Control& field) {
    const Control* beside = nullptr;
    const Control* above = nullptr;
    for (const Control& label : dialog.controls) {
        if (label.kind != ControlKind::Label || label.parent != field.parent)
            continue;
        if (isInLineBefore(label.geometry, field.geometry)) {
            if (beside == nullptr || label.geometry.x > beside->geometry.x)
                beside = &label;
        } else if (isJustAbove(label.geometry, field.geometry)) {
            above = &label;
        }
    }
    const Control* nearest = beside != nullptr ? beside : above;
    return nearest != nullptr ? withoutMarks(nearest->caption) : "";
}

std::string frameOf(const Dialog& dialog, const Control& control) {
    for (const Control& frame : dialog.controls)
        if (frame.kind == ControlKind::Frame && frame.parent == control.parent &&
            contains(frame.geometry, control.geometry))
            return frame.caption;
    return "";
}

bool isCalled(const Dialog& dialog, const Control& field, const std::string& name) {
    const std::string label = labelOf(dialog, field);
    return !label.empty() && (name == label || name == frameOf(dialog, field) + ' ' + label);
}

} // namespace quorvia::host
