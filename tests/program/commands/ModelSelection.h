// A selection drawn at random: the words of the command line, and what of a data set it means, by
// docs/selection.md.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "program/commands/ModelSet.h"

namespace plot3d::program {

/// The selected indices of each direction, from 0.
using Indices = std::array<std::vector<std::int64_t>, 3>;

struct ModelBox_s {
    std::size_t zone = 0; // from 0
    Indices indices;

    std::size_t count() const { return indices[0].size() * indices[1].size() * indices[2].size(); }
    template <class Visit>
    void forEach(const Visit& visit) const {
        for (const std::int64_t k : indices[2])
            for (const std::int64_t j : indices[1])
                for (const std::int64_t i : indices[0])
                    visit(i, j, k);
    }
};

class ModelSelection {
public:
    ModelSelection(const ModelSet& data, Dice& draw);

    const std::vector<std::string>& words() const { return words_; }
    /// Those that choose no variables.
    const std::vector<std::string>& wordsOfPoints() const { return wordsOfPoints_; }
    /// Those without ranges of indices.
    const std::vector<std::string>& wordsOfWholeZones() const { return wordsOfWholeZones_; }
    /// Indices into the variables of the data set, in their order.
    const std::vector<std::size_t>& variables() const { return variables_; }
    /// In the order of the zones; none: the command line is refused.
    const std::vector<ModelBox_s>& boxes() const { return boxes_; }
    std::vector<ModelBox_s> wholeZones() const;
    /// Elements can't be cut: points of an unstructured zone are left out.
    bool cutsElements() const;

private:
    void drawVariables(Dice& draw);
    void drawZones(Dice& draw);
    void drawTimes(Dice& draw);
    void drawPoint(Dice& draw);
    void drawRanges(Dice& draw);

    const ModelSet& data_;
    std::vector<std::string> words_;
    std::vector<std::string> wordsOfPoints_;
    std::vector<std::string> wordsOfWholeZones_;
    std::vector<std::size_t> variables_;
    std::vector<std::size_t> zones_;
    std::vector<ModelBox_s> boxes_;
};

} // namespace plot3d::program
