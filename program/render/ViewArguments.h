// What a picture shows, as options: those that are given change the view of --view-file, or else
// the view as it is by default.
#pragma once

#include <string>
#include <vector>

#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>

#include "manners/Command.h"
#include "view/View.h"

namespace plot3d::program {

class ViewArguments {
public:
    void declare(console::OptionTable& table);

    /// Throws plot3d::Error: Usage for texts that can't be taken, Refused for a view file.
    scene::View_s view(const DataSet& data) const;
    const Gas& gas() const { return gas_; }
    bool wantsAllTimes() const { return allTimes_; }

private:
    void declareContents(const console::OptionTable& options);
    void declareLook(const console::OptionTable& options);
    scene::View_s startingView() const;
    void takeContents(scene::View_s& view, const DataSet& data) const;
    void takeLook(scene::View_s& view) const;

    std::string viewFile_;
    std::string colour_, range_, map_, time_, zones_, line_, vectors_, blank_, plot_;
    std::vector<std::string> surfaces_;
    std::string direction_, size_, background_, title_;
    bool allTimes_ = false;
    bool gridLines_ = false;
    bool outlines_ = false;
    bool hidesAxes_ = false;
    bool hidesLegend_ = false;
    bool hidesTitle_ = false;
    int contours_ = -1;
    double zoom_ = 0;
    Gas gas_;
};

} // namespace plot3d::program
