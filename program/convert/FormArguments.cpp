#include "convert/FormArguments.h"

#include <array>
#include <utility>

#include "console/options/OptionTable.h"

namespace plot3d::program {

namespace {

Layout layoutOf(const std::string& word) {
    if (word == "1d")
        return Layout::OneD;
    if (word == "2d")
        return Layout::TwoD;
    if (word == "3d-whole")
        return Layout::ThreeDWhole;
    return word == "3d-planes" ? Layout::ThreeDPlanes : Layout::Unstructured;
}

Encoding encodingOf(const std::string& word) {
    if (word == "text")
        return Encoding::Text;
    return word == "binary" ? Encoding::Binary : Encoding::Fortran;
}

} // namespace

void FormArguments::declare(console::OptionTable& table) {
    const console::OptionTable options = table.under("PLOT3D files");
    options.text("--encoding", encoding_, "text|binary|fortran4|fortran8",
                 "How numbers stand in the files; fortran4 and fortran8 are unformatted records "
                 "with markers of 4 and 8 bytes. This and what follows stays as it is in the files "
                 "read unless it is given");
    options.text("--byte-order", order_, "little|big", "Of binary and Fortran files");
    options.text("--precision", precision_, "32|64",
                 "Bits of a real; to 32 each value becomes the nearest that there is");
    options.text("--layout", layout_, "1d|2d|3d-whole|3d-planes|unstructured",
                 "Planes and whole fields go over into one another");
    options.text("--multi-grid", multiGrid_, "yes|no",
                 "Whether the files begin with a count of grids, which more than one grid needs");
}

std::string FormArguments::given() const {
    const std::array<std::pair<const char*, const std::string*>, 5> options = {
        {{"--encoding", &encoding_},
         {"--byte-order", &order_},
         {"--precision", &precision_},
         {"--layout", &layout_},
         {"--multi-grid", &multiGrid_}}};
    for (const auto& [name, word] : options)
        if (!word->empty())
            return name;
    return {};
}

FormWishes_s FormArguments::wishes(const FileForm_s& original) const {
    FormWishes_s wishes;
    wishes.original = original;
    if (!encoding_.empty())
        wishes.encoding = encodingOf(encoding_);
    if (wishes.encoding == Encoding::Fortran)
        wishes.markerBytes = encoding_ == "fortran8" ? 8 : 4;
    if (!order_.empty())
        wishes.order = order_ == "big" ? ByteOrder::Big : ByteOrder::Little;
    if (!precision_.empty())
        wishes.precision = precision_ == "64" ? ValueType::Float64 : ValueType::Float32;
    if (!layout_.empty())
        wishes.layout = layoutOf(layout_);
    if (!multiGrid_.empty())
        wishes.multiGrid = multiGrid_ == "yes";
    return wishes;
}

} // namespace plot3d::program
