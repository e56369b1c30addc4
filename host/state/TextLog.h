// Texts in the order in which they came. A load of many grids shows a text for each of its fields,
// and each differs from the one before in a number or two: only that is kept.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvia::host {

class TextLog {
public:
    /// So that the text can be added without memory. Throws std::bad_alloc, and nothing has changed
    /// then.
    void makeRoomFor(std::string_view text);
    /// Throws std::bad_alloc where no room was made, and nothing was added then.
    void add(std::string_view text);
    /// Takes the first `count` texts off; there must be so many.
    void dropFirst(std::size_t count) { dropped_ += count; }

    std::size_t count() const { return count_ - dropped_; }
    std::vector<std::string> texts() const;
    /// `visit` is called with each text, in order, as a std::string_view that is valid for the
    /// call.
    template <typename Visit>
    void forEach(Visit visit) const {
        std::string text;
        std::size_t place = 0;
        for (std::size_t index = 0; index < count_; ++index) {
            unpack(place, text);
            if (index >= dropped_)
                visit(std::string_view(text));
        }
    }

private:
    void unpack(std::size_t& place, std::string& text) const;

    // For each text: how many bytes of the one before it begins with, with how many it ends, the
    // number of its own bytes between them, and these.
    std::string packed_;
    std::string last_; // the text added last
    std::size_t count_ = 0;
    std::size_t dropped_ = 0;
};

} // namespace quorvia::host
