#include "open/KindTrial.h"

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/detection/StructureDetection.h"

namespace plot3dlib {

namespace {

using quorvia::quorutildataio::Plot3DFilePtr;

Plot3DFilePtr detect(const std::string& file, bool isSolutionOrFunction) {
    quorvia::quorutildataio::Plot3DLoadOptions_s options;
    setLoadOptionDefaults(options);
    options.autoDetect = true;
    quorvia::quorutildataio::Plot3DFileBuilder builder(options);
    Plot3DFilePtr record;
    if (!detectStructure(builder, record, file, isSolutionOrFunction))
        record.reset();
    return record;
}

} // namespace

std::vector<plot3d::FileKind> kindsThatFit(const std::string& file,
                                           const plot3d::Watch& /*watch*/) {
    std::vector<plot3d::FileKind> kinds;
    if (detect(file, false) != nullptr)
        kinds.push_back(plot3d::FileKind::Grid);
    const Plot3DFilePtr data = detect(file, true);
    if (data != nullptr && data->style == quorvia::quorutildataio::Plot3DStyle_Function)
        kinds.push_back(plot3d::FileKind::Function);
    else if (data != nullptr)
        kinds.push_back(plot3d::FileKind::Solution);
    return kinds;
}

} // namespace plot3dlib
