// Makes the controls of one page, one line for each, so that a page's code reads like the page.
// Positions and sizes are in the toolkit's layout units.
#pragma once

#include <array>
#include <cstdint>

#include "quorvia/QuorGUI.h"
#include "state/DialogState.h"

namespace quorvia::quorutildataio {

class PageBuilder {
public:
    explicit PageBuilder(std::int32_t page) : page_(page) {}

    /// Whether every control could be made.
    bool isWhole() const { return isWhole_; }

    void frame(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
               const char* caption) {
        note(QuorGUIFrameAdd(page_, x, y, width, height, caption));
    }
    std::int32_t label(std::int32_t x, std::int32_t y, const char* caption) {
        return note(QuorGUILabelAdd(page_, x, y, caption));
    }
    std::int32_t toggle(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                        const char* caption, QuorGUIValueCallback callback) {
        return note(QuorGUIToggleAdd(page_, x, y, width, height, caption, callback));
    }
    std::int32_t button(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                        const char* caption, QuorGUICallback callback) {
        return note(QuorGUIButtonAdd(page_, x, y, width, height, caption, callback));
    }
    /// Several items can be selected in it.
    std::int32_t list(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                      QuorGUIValueCallback callback) {
        constexpr bool severalItems = true;
        return note(QuorGUIListAdd(page_, x, y, width, height, severalItems, callback));
    }
    std::int32_t textField(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                           QuorGUITextCallback callback) {
        return note(QuorGUITextFieldAdd(page_, x, y, width, height, callback));
    }
    /// Null behind the last caption.
    std::int32_t radioBox(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                          const std::array<const char*, 5>& captions,
                          QuorGUIValueCallback callback) {
        return note(QuorGUIRadioBoxAdd(page_, x, y, width, height, captions[0], captions[1],
                                       captions[2], captions[3], captions[4], callback));
    }
    std::int32_t optionMenu(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                            const char* captions, QuorGUIValueCallback callback) {
        return note(QuorGUIOptionMenuAdd(page_, x, y, width, height, captions, callback));
    }

private:
    std::int32_t note(std::int32_t control) {
        isWhole_ = isWhole_ && control != noControl;
        return control;
    }

    std::int32_t page_;
    bool isWhole_ = true;
};

} // namespace quorvia::quorutildataio
