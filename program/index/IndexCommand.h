// plot3d index: a small file that tells other programs where the values of a data set lie in the
// original files.
#pragma once

#include <string>
#include <vector>

#include "index/IndexFormats.h"
#include "manners/Command.h"
#include "selection/DataArguments.h"
#include "selection/Selection.h"

namespace plot3d::program {

class IndexCommand : public Command {
public:
    const char* name() const override { return "index"; }
    const char* purpose() const override;
    const char* examples() const override;
    const char* failureMeans() const override;
    void declare(console::OptionTable& table) override;
    void takeApart(std::vector<std::string>& arguments) override;
    int run(const Surroundings_s& surroundings) override;

private:
    int check(const Surroundings_s& surroundings) const;
    void write(const IndexFormatRow_s& row, const DataSet& data,
               const Surroundings_s& surroundings) const;
    std::string convertCommand(const IndexFormatRow_s& row) const;

    DataArguments data_;
    SelectionArguments selection_;
    std::string output_;
    bool overwrites_ = false;
    bool isRelative_ = false;
    std::string checked_;                // the index of --check; empty: none
    std::vector<std::string> arguments_; // as they were typed
};

} // namespace plot3d::program
