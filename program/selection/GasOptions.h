// The gas of derived quantities, as the commands that compute them take it.
#pragma once

#include <string>

#include <plot3d/Derived.h>

#include "console/options/OptionTable.h"

namespace plot3d::program {

/// --gamma and --gas-constant. `purpose` stands behind what gamma is: " for derived quantities".
void declareGas(const console::OptionTable& options, Gas& gas, const std::string& purpose = "");

} // namespace plot3d::program
