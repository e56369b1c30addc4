#include "convert/contents/StyleForm.h"

#include <algorithm>

namespace plot3d::program {

StyleForm_s styleForm(Style style) {
    constexpr std::size_t nameBeginsWithI = 7; // and so it is an integer
    StyleForm_s form;
    switch (style) {
    case Style::Classic:
        form.scalarCount = 4;
        break;
    case Style::Function:
        form.variableCount = VariableCount_e::OfEachGrid;
        break;
    case Style::Overflow:
        form.variableCount = VariableCount_e::OfFile;
        form.scalarCount = 11;
        form.integerScalar = nameBeginsWithI;
        form.hasSpecies = true;
        break;
    case Style::Swift:
        form.scalarCount = 5;
        break;
    }
    return form;
}

int scalarCount(Style style, Layout layout, int speciesCount) {
    constexpr int of1D = 4;
    constexpr int fewestGammas = 2;
    const StyleForm_s form = styleForm(style);
    if (layout == Layout::OneD)
        return std::min(form.scalarCount, of1D);
    return form.scalarCount + (form.hasSpecies ? std::max(speciesCount, fewestGammas) : 0);
}

} // namespace plot3d::program
