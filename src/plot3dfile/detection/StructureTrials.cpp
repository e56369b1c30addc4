#include "plot3dfile/detection/StructureTrials.h"

#include "plot3dfile/layout/LayoutParsers.h"
#include "plot3dfile/layout/StyleRules.h"

namespace quorvia::quorutildataio {

namespace {

/// Under relaxed checks the size of a record is only a lower bound, so that the largest reading
/// must be tried first.
bool isLargestFirst(const Plot3DFile_s& file) {
    return file.encoding == Plot3DEncoding_FortranUnformatted && file.relaxedChecks;
}

/// Tries every style that the kind of file may have.
bool tryStyles(Plot3DFile_s& file) {
    if (!file.isSolutionOrFunction)
        return tryStyle(file, Plot3DStyle_Classic);
    for (const StyleRules_s& rules : allStyleRules())
        if (tryStyle(file, rules.style))
            return true;
    return false;
}

bool fitsReading(Plot3DFile_s& file) {
    if (file.hasIBlank && file.isSolutionOrFunction)
        return refuseReading(file, Plot3DMisfit_e::NotInLayout);
    // Behind a failed read no reading is to be trusted, whether it fits or not.
    return !file.stream->hadReadError() && parseLayout(file, false, nullptr, nullptr) &&
           !file.stream->hadReadError();
}

} // namespace

bool tryIBlank(Plot3DFile_s& file, bool hasIBlank) {
    file.hasIBlank = hasIBlank;
    file.misfit.what = Plot3DMisfit_e::None;
    const bool fits = fitsReading(file);
    return file.observer == nullptr ? fits : file.observer->takesTrial(file, fits);
}

bool tryPrecision(Plot3DFile_s& file, bool isDoublePrecision) {
    file.isDoublePrecision = isDoublePrecision;
    if (file.encoding == Plot3DEncoding_Ascii)
        return tryIBlank(file, file.hasIBlank);
    const bool first = isLargestFirst(file);
    return tryIBlank(file, first) || tryIBlank(file, !first);
}

bool tryPrecisions(Plot3DFile_s& file) {
    if (file.encoding == Plot3DEncoding_Ascii)
        return tryPrecision(file, file.isDoublePrecision);
    const bool first = isLargestFirst(file);
    return tryPrecision(file, first) || tryPrecision(file, !first);
}

bool tryStyle(Plot3DFile_s& file, Plot3DStyle_e style) {
    file.style = style;
    for (const bool isMultiGrid : {true, false}) {
        file.isMultiGrid = isMultiGrid;
        if (tryPrecisions(file))
            return true;
    }
    return false;
}

bool tryDataStructure(Plot3DFile_s& file, Plot3DDataStructure_e dataStructure) {
    file.dataStructure = dataStructure;
    return tryStyles(file);
}

bool searchStructure(Plot3DFile_s& file) {
    if (file.dataStructure != Plot3DDataStructure_Unknown)
        return tryStyles(file);
    for (const Plot3DDataStructure_e dataStructure :
         {Plot3DDataStructure_3DWhole, Plot3DDataStructure_3DPlanes, Plot3DDataStructure_2D,
          Plot3DDataStructure_1D, Plot3DDataStructure_Unstructured})
        if (tryDataStructure(file, dataStructure))
            return true;
    file.dataStructure = Plot3DDataStructure_Unknown;
    return false;
}

bool searchOnceMore(Plot3DFile_s& file) {
    switch (file.encoding) {
    case Plot3DEncoding_Binary:
        file.byteSwap = true;
        return searchStructure(file);
    case Plot3DEncoding_FortranUnformatted:
        file.relaxedChecks = true;
        return searchStructure(file);
    case Plot3DEncoding_Ascii:
    case Plot3DEncoding_Unknown:
        break;
    }
    return false;
}

} // namespace quorvia::quorutildataio
