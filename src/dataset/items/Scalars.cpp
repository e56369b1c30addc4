#include "dataset/items/Scalars.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <span>

#include "dataset/items/AuxDataItem.h"
#include "dataset/items/NotedOffsets.h"
#include "plot3dfile/bytes/BinaryNumbers.h"
#include "plot3dfile/layout/StyleRules.h"
#include "plot3dfile/numbers/NumberStream.h"
#include "plot3dfile/timestep/FieldCount.h"

namespace quorvia::quorutildataio {

namespace {

/// The rule of kinds goes by the first letter, as Fortran's implicit types do.
bool isIntegerItem(const char* name) {
    return name[0] >= 'I' && name[0] <= 'N';
}

/// How many of the scalars are tried: of gammas no more than the file's size bears out.
std::int64_t triedScalars(const Plot3DFile_s& file) {
    return std::min<std::int64_t>(file.numScalars,
                                  std::ssize(styleRulesOf(file).scalars) + fieldCountLimit(file));
}

/// Goes through the scalars of one grid in file order: `setItem(name, isOnDataSet)` for an item,
/// `setTime()` for the time. False: the first failure ahead of the list of gammas.
template <typename SetItem, typename SetTime>
bool forEachScalar(const Plot3DFile_s& file, SetItem setItem, SetTime setTime) {
    const StyleRules_s& rules = styleRulesOf(file);
    // A 1-D file has four scalars whatever its style.
    const std::size_t count =
        std::min(rules.scalars.size(), static_cast<std::size_t>(file.numScalars));
    for (const StyleScalar_s& scalar : rules.scalars.first(count))
        if (!(scalar.itemName == nullptr ? setTime()
                                         : setItem(scalar.itemName, scalar.isOnDataSet)))
            return false;
    if (!rules.hasSpecies)
        return true;
    const std::int64_t gammaCount = triedScalars(file) - std::ssize(rules.scalars);
    for (std::int64_t gamma = 1; gamma <= gammaCount; ++gamma) {
        std::array<char, 24> name;
        std::snprintf(name.data(), name.size(), "G%lld", static_cast<long long>(gamma));
        setItem(name.data(), false); // one that fails doesn't count
    }
    return true;
}

/// What a repeat token promises beyond that, which must not be taken for values. There may be less.
void passOverMoreGammas(Plot3DFile_s& file) {
    const std::int64_t rest = file.numScalars - triedScalars(file);
    if (styleRulesOf(file).hasSpecies && file.encoding == Plot3DEncoding_Ascii)
        static_cast<void>(skipReals(file, static_cast<std::int32_t>(rest)));
}

/// One scalar as text, from the number stream. Without `wantsText` it is only read past.
bool readScalar(Plot3DFile_s& file, const char* itemName, bool wantsText, AuxDataText& text) {
    if (isIntegerItem(itemName)) {
        std::int32_t value = 0;
        return readInteger(file, value) && (!wantsText || formatInteger(value, text));
    }
    double value = 0.0;
    return readReal(file, value) && (!wantsText || formatReal(value, text));
}

/// What the scalars of a selected grid are set on; null for what is to be left alone.
struct ScalarTargets_s {
    QuorAuxDataHandle zone = nullptr;
    QuorAuxDataHandle dataSet = nullptr;
};

bool setIfPresent(QuorAuxDataHandle auxData, const char* name, const AuxDataText& text) {
    return auxData == nullptr || setAuxDataItem(auxData, name, text.data());
}

void storeSolutionTime(Plot3DFile_s& file, std::int32_t zone, double time) {
    QuorUtilZoneSetSolutionTime(zone, time);
    file.solutionTime = time;
}

bool readRawReal(FileStream& stream, bool isDoublePrecision, bool byteSwap, double& value) {
    if (isDoublePrecision)
        return readBinaryNumber(stream, byteSwap, value);
    float single = 0.0F;
    const bool ok = readBinaryNumber(stream, byteSwap, single);
    value = static_cast<double>(single);
    return ok;
}

bool readRawScalar(FileStream& stream, bool isDoublePrecision, bool byteSwap, bool isInteger,
                   AuxDataText& text) {
    if (isInteger) {
        std::int32_t value = 0;
        return readBinaryNumber(stream, byteSwap, value) && formatInteger(value, text);
    }
    double value = 0.0;
    return readRawReal(stream, isDoublePrecision, byteSwap, value) && formatReal(value, text);
}

} // namespace

bool setUpScalarsItem(Plot3DFile_s& file, std::int32_t zone, bool include, bool report,
                      const Plot3DItemContext_s& context) {
    const std::int32_t hostZone = context.firstZone + zone;
    ScalarTargets_s targets;
    if (include) {
        targets = {QuorUtilAuxDataZoneGetRef(hostZone), QuorUtilAuxDataDataSetGetRef()};
        noteOffset(file.auxDataOffsets, zone, file.stream->tell());
    }
    const auto setItem = [&](const char* name, bool isOnDataSet) {
        AuxDataText text;
        if (!readScalar(file, name, include, text))
            return false;
        return !include || (setIfPresent(targets.zone, name, text) &&
                            (!isOnDataSet || setIfPresent(targets.dataSet, name, text)));
    };
    const auto setTime = [&] {
        return setZoneSolutionTime(file, include, hostZone, *context.solutionTimes,
                                   context.extractTimes);
    };
    const bool ok = forEachScalar(file, setItem, setTime);
    if (ok)
        passOverMoreGammas(file);
    if (!ok && report && !file.stream->wasStopped())
        QuorUtilDialogErrMsg("Error loading Scalars.");
    return ok;
}

bool rereadScalars(Plot3DFile_s& file, std::int32_t zone, const Plot3DItemContext_s& context) {
    const QuorAuxDataHandle zoneAuxData = QuorUtilAuxDataZoneGetRef(zone);
    const auto setItem = [&](const char* name, bool) {
        return readScalarToAuxData(*file.stream, file.isDoublePrecision, file.byteSwap, zoneAuxData,
                                   name);
    };
    const auto setTime = [&] {
        constexpr bool include = true;
        return setZoneSolutionTime(file, include, zone, *context.solutionTimes,
                                   context.extractTimes);
    };
    return forEachScalar(file, setItem, setTime);
}

bool setZoneSolutionTime(Plot3DFile_s& file, bool include, std::int32_t zone,
                         const std::map<std::string, double>& solutionTimes, bool extractTimes) {
    double time = 0.0;
    if (!readReal(file, time))
        return false;
    if (!include)
        return true;
    if (extractTimes)
        if (const auto named = solutionTimes.find(file.fileName.str());
            named != solutionTimes.end())
            time = named->second;
    storeSolutionTime(file, zone, time);
    return true;
}

bool setFunctionZoneSolutionTime(Plot3DFile_s& file, std::int32_t zone, bool include,
                                 void* clientData) {
    const auto& context = *static_cast<const Plot3DItemContext_s*>(clientData);
    if (context.solutionTimes->empty())
        return true;
    const auto named = context.solutionTimes->find(file.fileName.str());
    if (named == context.solutionTimes->end()) {
        reportFileError(file, "The function file has no solution time: the times were taken from "
                              "the names of the solution files.");
        return false;
    }
    if (include) // a grid that is not loaded has no zone of its own to set
        storeSolutionTime(file, context.firstZone + zone, named->second);
    return true;
}

bool readScalarToAuxData(FileStream& stream, bool isDoublePrecision, bool byteSwap,
                         QuorAuxDataHandle zoneAuxData, const char* itemName) {
    AuxDataText text;
    return readRawScalar(stream, isDoublePrecision, byteSwap, isIntegerItem(itemName), text) &&
           setAuxDataItem(zoneAuxData, itemName, text.data());
}

} // namespace quorvia::quorutildataio
