// Which part of a data set a command works on: variables, zones, times, points, and what becomes of
// blanked points. docs/selection.md tells it to users.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <plot3d/DataSet.h>

#include "analysis/fields/SelectedZone.h"
#include "manners/Command.h"

namespace plot3d::program {

/// As the user writes it: indices from 1 (or from the end: -1 is the last), ends included. What
/// can't be understood is refused while the command line is read.
class SelectionArguments {
public:
    /// --variable, --zone, --time, --i, --j, --k, --point, --blank.
    void declare(console::OptionTable& table);
    /// The same without --blank, for commands to which all points are alike.
    void declareWithoutBlank(console::OptionTable& table);

    /// Indices from 0, ascending. Throws plot3d::Error (Usage) for a pattern or number that meets
    /// nothing, with the names that are there.
    std::vector<std::size_t> variables(const DataSet& data) const;
    /// Likewise: the zones of --zone that are seen at a time of --time.
    std::vector<std::size_t> zones(const DataSet& data) const;
    /// The box that --i, --j, --k or --point select in a zone; nothing if it holds no point of it.
    /// Of an unstructured zone its nodes along I.
    std::optional<Box> box(const Zone& zone) const;
    /// The boxes of zones(), without zones that hold no selected point. Throws plot3d::Error
    /// (Usage) if none does.
    std::vector<analysis::SelectedZone_s> selectedZones(const DataSet& data) const;
    /// Whether nothing is left out, points with I-blank 0 apart.
    bool isEverything() const;
    /// Whether points whose I-blank is 0 are left out.
    bool skipsBlanked() const { return blank_ == "skip"; }

private:
    std::vector<std::size_t> zonesAtTimes(const DataSet& data) const;

    std::string variables_; // patterns with * and ?, separated by commas; empty: all
    std::string zones_;     // "1,3-5"; empty: all
    std::string times_;     // "0.5" or "0.5:2" or "last"; empty: all
    std::string i_, j_, k_; // "FIRST,LAST,STEP"; empty: all
    std::string point_;     // "I,J,K"; empty: none
    std::string blank_ = "skip";
};

} // namespace plot3d::program
