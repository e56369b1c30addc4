// The options that say how PLOT3D files are written: --encoding, --byte-order and so on.
#pragma once

#include <string>

#include "convert/contents/FileForm.h"
#include "manners/Command.h"

namespace plot3d::program {

class FormArguments {
public:
    void declare(console::OptionTable& table);
    /// The first of the options that was given, such as "--encoding"; empty if none was.
    std::string given() const;
    /// What was asked for, with `original` for the rest.
    FormWishes_s wishes(const FileForm_s& original) const;

private:
    std::string encoding_;
    std::string order_;
    std::string precision_;
    std::string layout_;
    std::string multiGrid_;
};

} // namespace plot3d::program
