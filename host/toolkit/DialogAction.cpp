#include "toolkit/DialogAction.h"

namespace quorvia::host {

namespace {

struct ControlOf {
    using Id = std::optional<std::int32_t>;
    Id operator()(const ShowPage&) const { return std::nullopt; }
    Id operator()(const SetToggle& action) const { return action.toggle; }
    Id operator()(const ChooseItem& action) const { return action.control; }
    Id operator()(const PressButton& action) const { return action.button; }
    Id operator()(const SelectItems& action) const { return action.list; }
    Id operator()(const TypeText& action) const { return action.field; }
    Id operator()(const PressDialogButton&) const { return std::nullopt; }
};

} // namespace

std::optional<std::int32_t> controlOf(const DialogAction& action) {
    return std::visit(ControlOf(), action);
}

} // namespace quorvia::host
