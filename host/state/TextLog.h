// Texts in the order in which they came. A load of a long series shows a text for each of its
// fields, so that they stand in one block rather than in one each.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvia::host {

class TextLog {
public:
    void add(std::string_view text) {
        characters_ += text;
        ends_.push_back(characters_.size());
    }
    std::size_t count() const { return ends_.size(); }
    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        all.reserve(ends_.size());
        std::size_t start = 0;
        for (const std::size_t end : ends_) {
            all.push_back(characters_.substr(start, end - start));
            start = end;
        }
        return all;
    }

private:
    std::string characters_;
    std::vector<std::size_t> ends_; // of each text in characters_
};

} // namespace quorvia::host
