// plot3d convert: a data set, or a part of it, in another format or another form.
#pragma once

#include <string>
#include <vector>

#include "convert/FormArguments.h"
#include "convert/contents/DataSetContents.h"
#include "convert/output/Format.h"
#include "manners/Command.h"
#include "selection/DataArguments.h"
#include "selection/Selection.h"

namespace plot3d::program {

class ConvertCommand : public Command {
public:
    const char* name() const override { return "convert"; }
    const char* purpose() const override;
    const char* examples() const override;
    const char* failureMeans() const override;
    void declare(console::OptionTable& table) override;
    int run(const Surroundings_s& surroundings) override;

private:
    void declareDerived(console::OptionTable& table);
    Format_e format() const;
    ContentSelection_s selectionOf(const DataSet& data, Format_e format) const;
    std::vector<const DerivedQuantity*> derivedQuantitiesAsked() const;

    DataArguments data_;
    SelectionArguments selection_;
    FormArguments form_;
    std::string output_;
    bool overwrites_ = false;
    std::string to_;
    std::string derived_; // words and numbers, separated by commas
    Gas gas_;
};

} // namespace plot3d::program
