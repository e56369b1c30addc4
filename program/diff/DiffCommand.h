// plot3d diff: in what two data sets are unlike.
#pragma once

#include <string>
#include <vector>

#include "diff/DiffReport.h"
#include "manners/Command.h"
#include "selection/DataArguments.h"
#include "selection/Selection.h"

namespace plot3d::program {

class DiffCommand : public Command {
public:
    const char* name() const override { return "diff"; }
    const char* purpose() const override;
    const char* examples() const override;
    const char* failureMeans() const override;
    void declare(console::OptionTable& table) override;
    /// Turns the files behind `--` into options; those behind them stay what they are.
    void takeApart(std::vector<std::string>& arguments) override;
    int run(const Surroundings_s& surroundings) override;

private:
    void splitTwoFiles();
    DataSet opened(const std::vector<std::string>& files, const Surroundings_s& surroundings) const;
    DiffSelection_s selectionIn(const DataSet& first) const;

    std::vector<std::string> firstFiles_;
    std::vector<std::string> secondFiles_;
    DataArguments data_;
    SelectionArguments selection_;
    Tolerance_s tolerance_;
    int threads_ = 0;
    bool json_ = false;
};

} // namespace plot3d::program
