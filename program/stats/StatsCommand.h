// plot3d stats: what the values of fields come to.
#pragma once

#include <string>
#include <vector>

#include "analysis/statistics/Statistics.h"
#include "manners/Command.h"
#include "selection/DataArguments.h"
#include "selection/Selection.h"

namespace plot3d::program {

class StatsCommand : public Command {
public:
    const char* name() const override { return "stats"; }
    const char* purpose() const override;
    const char* examples() const override;
    void declare(console::OptionTable& table) override;
    /// Lets the count behind --histogram be left out.
    void takeApart(std::vector<std::string>& arguments) override;
    int run(const Surroundings_s& surroundings) override;

private:
    analysis::StatsSelection_s selectionIn(const DataSet& data) const;
    analysis::StatsWishes_s wishes() const;

    DataArguments files_;
    SelectionArguments selection_;
    std::string percentiles_;
    int bins_ = 0;
    int threads_ = 0;
    bool hash_ = false;
    bool perZone_ = false;
    bool json_ = false;
};

} // namespace plot3d::program
