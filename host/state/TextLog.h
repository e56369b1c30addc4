// Texts in the order in which they came. A load of a long series shows a text for each of its
// fields, so that many stand in a block; blocks are never copied into larger ones.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/Room.h"

namespace quorvia::host {

class TextLog {
public:
    /// So that the text can be added without memory. Throws std::bad_alloc, and nothing has changed
    /// then.
    void makeRoomFor(std::string_view text) {
        constexpr std::size_t leastCapacity = 32 * 1024;
        if (blocks_.empty() || blocks_.back().room() < text.size()) {
            Block block;
            block.characters.reserve(std::max(leastCapacity, text.size()));
            makeRoom(block.ends);
            blocks_.push_back(std::move(block));
        }
        makeRoom(blocks_.back().ends);
    }
    void add(std::string_view text) {
        makeRoomFor(text);
        Block& block = blocks_.back();
        block.characters += text;
        block.ends.push_back(block.characters.size());
        ++count_;
    }
    std::size_t count() const { return count_; }
    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        all.reserve(count_);
        for (const Block& block : blocks_) {
            std::size_t start = 0;
            for (const std::size_t end : block.ends) {
                all.push_back(block.characters.substr(start, end - start));
                start = end;
            }
        }
        return all;
    }

private:
    struct Block {
        std::string characters;
        std::vector<std::size_t> ends; // of each text in `characters`
        std::size_t room() const { return characters.capacity() - characters.size(); }
    };

    std::vector<Block> blocks_;
    std::size_t count_ = 0;
};

} // namespace quorvia::host
