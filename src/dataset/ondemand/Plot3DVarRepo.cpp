#include "dataset/ondemand/Plot3DVarRepo.h"

namespace quorvia::quorutildataio {

namespace {

Plot3DVarRepo gVarRepo;

std::shared_ptr<Plot3DVariable_s> describe(const Plot3DFile_s& file) {
    auto variable = std::make_shared<Plot3DVariable_s>();
    variable->fileName = file.fileName.str();
    static_cast<Plot3DRecordForm_s&>(*variable) = file;
    return variable;
}

} // namespace

Plot3DVarRepo& Plot3DVarRepo::instance() {
    return gVarRepo;
}

std::shared_ptr<Plot3DVariable_s> Plot3DVarRepo::getVariable(const Plot3DFile_s& file) {
    for (const Entry_s& entry : entries_)
        if (entry.file == &file)
            return entry.variable;
    return entries_.emplace_back(Entry_s{&file, describe(file)}).variable;
}

void Plot3DVarRepo::clear() {
    entries_.clear();
}

} // namespace quorvia::quorutildataio
