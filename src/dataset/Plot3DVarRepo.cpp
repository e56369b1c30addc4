#include "dataset/Plot3DVarRepo.h"

namespace quorvia::quorutildataio {

namespace {

Plot3DVarRepo gVarRepo;

std::shared_ptr<Plot3DVariable_s> describe(const Plot3DFile_s& file) {
    auto variable = std::make_shared<Plot3DVariable_s>();
    variable->fileName = file.fileName.str();
    variable->encoding = file.encoding;
    variable->isDoublePrecision = file.isDoublePrecision;
    variable->byteSwap = file.byteSwap;
    variable->markerSize = file.markerSize;
    variable->segmentBoundaries = file.segmentBoundaries;
    return variable;
}

} // namespace

Plot3DVarRepo& Plot3DVarRepo::instance() {
    return gVarRepo;
}

std::shared_ptr<Plot3DVariable_s> Plot3DVarRepo::getVariable(const Plot3DFile_s& file) {
    const auto known = variables_.find(&file);
    if (known != variables_.end())
        return known->second;
    std::shared_ptr<Plot3DVariable_s> variable = describe(file);
    variables_.emplace(&file, variable);
    return variable;
}

void Plot3DVarRepo::clear() {
    variables_.clear();
}

} // namespace quorvia::quorutildataio
