#include "toolkit/DialogAction.h"

namespace quorvia::host {

namespace {

class ControlOf {
public:
    using Id = std::optional<std::int32_t>;
    Id operator()(const ShowPage_s&) const { return std::nullopt; }
    Id operator()(const SetToggle_s& action) const { return action.toggle; }
    Id operator()(const ChooseItem_s& action) const { return action.control; }
    Id operator()(const PressButton_s& action) const { return action.button; }
    Id operator()(const SelectItems_s& action) const { return action.list; }
    Id operator()(const TypeText_s& action) const { return action.field; }
    Id operator()(const PressDialogButton_s&) const { return std::nullopt; }
};

} // namespace

std::optional<std::int32_t> controlOf(const DialogAction& action) {
    return std::visit(ControlOf(), action);
}

} // namespace quorvia::host
