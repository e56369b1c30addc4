#include "selection/GasOptions.h"

namespace plot3d::program {

void declareGas(const console::OptionTable& options, Gas& gas, const std::string& purpose) {
    options.number("--gamma", gas.gamma, "NUMBER",
                   "Ratio of specific heats" + purpose +
                       ", where the file has none for each point (default: 1.4)");
    options.number("--gas-constant", gas.gasConstant, "NUMBER",
                   "In the units of the solution (default: 1)");
}

} // namespace plot3d::program
