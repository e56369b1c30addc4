// What an add-on has told the host of a data loader.
#pragma once

#include <string>

#include "quorvia/QuorUtil.h"

namespace quorvia::host {

struct Loader_s {
    std::string name;
    std::string fileNameExtensions;
    bool allowsSeveralFiles = false;
    bool allowsAdvancedOptions = false;
    bool allowsAppending = false;
    QuorLoaderCallback load = nullptr;
    QuorLoaderSelectedCallback select = nullptr;
};

} // namespace quorvia::host
