#include "dataset/variables/VariableNames.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>
#include <new>
#include <string>
#include <unordered_set>

#include "dataset/variables/NameFile.h"
#include "plot3dfile/layout/StyleRules.h"
#include "plot3dfile/timestep/FieldCount.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

namespace {

constexpr std::int64_t variablesAheadOfSpecies = 6; // RHO to GAMMA; not reduced for a missing RHO-W

/// Sets names one behind the other.
class NameWriter {
public:
    /// Without a list the names are counted and nothing else.
    explicit NameWriter(QuorStringListHandle names) : names_(names) {}

    void add(const char* name) {
        if (lastIndex_ == std::numeric_limits<std::int32_t>::max() ||
            (names_ != nullptr && !QuorUtilStringListSetString(names_, lastIndex_ + 1, name)))
            throw std::bad_alloc();
        ++lastIndex_;
    }
    void add(const std::string& name) { add(name.c_str()); }
    /// "V" and the number, padded on the right; the blanks belong to the name.
    void addNumbered(std::int64_t number) {
        std::array<char, 32> name;
        std::snprintf(name.data(), name.size(), "V%-4ld", static_cast<long>(number));
        add(name.data());
    }
    std::int32_t lastIndex() const { return lastIndex_; }

private:
    QuorStringListHandle names_;
    std::int32_t lastIndex_ = 0;
};

void addSpatialNames(NameWriter& writer, const Plot3DLoadShape_s& shape) {
    writer.add("X");
    if (shape.numSpatialVars > 1)
        writer.add("Y");
    if (shape.numSpatialVars > 2)
        writer.add("Z");
    if (shape.hasIBlank)
        writer.add("IBlank");
}

void addNumberedNames(NameWriter& writer, std::int64_t count) {
    for (std::int64_t n = 0; n < count; ++n)
        writer.addNumbered(n + 2);
}

void addConservativeNames(NameWriter& writer, Plot3DDataStructure_e structure) {
    writer.add("RHO");
    writer.add("RHO-U");
    writer.add("RHO-V");
    if (structure >= Plot3DDataStructure_3DPlanes)
        writer.add("RHO-W");
    writer.add("E");
}

void addTurbulenceNames(NameWriter& writer, std::int64_t rest, std::int64_t limit) {
    if (rest == 1) {
        writer.add("RET");
    } else if (rest == 2) {
        writer.add("K");
        writer.add("EPSILON");
    } else {
        addNumberedNames(writer, std::min(rest, limit));
    }
}

void addSpeciesNames(NameWriter& writer, const Plot3DFile_s& file, std::int64_t numSolutionVars) {
    const std::int64_t limit = fieldCountLimit(file);
    const std::int64_t species = std::max(file.numSpecies, 0);
    writer.add("GAMMA");
    for (std::int64_t s = 1; s <= std::min(species, limit); ++s)
        writer.add("RHO-C" + std::to_string(s));
    addTurbulenceNames(writer, numSolutionVars - species - variablesAheadOfSpecies, limit);
}

void addSolutionNames(NameWriter& writer, const Plot3DFileHandler& handler,
                      std::int32_t numSolutionVars) {
    const Plot3DFile_s& file = *handler.solutionFile;
    if (file.dataStructure == Plot3DDataStructure_1D) {
        constexpr std::int64_t namesIn1D = 3; // whatever the file holds
        addNumberedNames(writer, namesIn1D);
        return;
    }
    addConservativeNames(writer, file.dataStructure);
    if (styleRules(handler.getStyle()).hasSpecies && numSolutionVars >= variablesAheadOfSpecies)
        addSpeciesNames(writer, file, numSolutionVars);
}

std::int64_t countFunctionNames(const Plot3DFile_s& file) {
    return std::min<std::int64_t>(file.numVars, fieldCountLimit(file));
}

void addFunctionNames(NameWriter& writer, const std::vector<Plot3DFile_s*>& files) {
    std::int32_t ordinal = 1;
    for (const Plot3DFile_s* file : files) {
        if (!findFreeFunctionOrdinal(ordinal))
            throw std::bad_alloc(); // a name might repeat one that is there
        for (std::int64_t k = 1; k <= countFunctionNames(*file); ++k)
            writer.add(functionName(ordinal, k));
        ++ordinal;
    }
}

std::string foldCase(std::string_view text) {
    std::string folded(text);
    for (char& letter : folded)
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    return folded;
}

/// The names of the variables of a host set, folded. False: the host gives no name.
bool fetchNames(QuorSetHandle vars, std::unordered_set<std::string>& names) {
    std::int64_t var = QuorUtilSetGetNextMember(vars, 0);
    while (var != 0) {
        HostString name;
        if (!QuorUtilVarGetName(static_cast<std::int32_t>(var), name.outArgument()))
            return false;
        names.insert(foldCase(name.view()));
        var = QuorUtilSetGetNextMember(vars, var);
    }
    return true;
}

bool isTaken(const std::unordered_set<std::string>& names, std::int32_t ordinal,
             std::int64_t count) {
    for (std::int64_t k = 1; k < count; ++k) // the strict bound is meant
        if (names.count(functionName(ordinal, k)) != 0)
            return true;
    return false;
}

bool raiseToFreeOrdinal(std::int32_t& ordinal) {
    HostSet vars;
    if (!QuorUtilVarGetEnabled(vars.outArgument()))
        return false;
    const std::int64_t count = QuorUtilSetGetMemberCount(vars.get());
    if (count < 2)
        return true; // nothing is compared with a single variable
    std::unordered_set<std::string> names;
    if (!fetchNames(vars.get(), names))
        return false;
    while (isTaken(names, ordinal, count))
        ++ordinal;
    return true;
}

/// The count of the header, as far as the file bears it out.
std::int32_t countSolutionVars(const Plot3DFileHandler& handler) {
    if (!handler.hasSolutionFile() || !isFieldCountPlausible(*handler.solutionFile))
        return 0;
    return handler.solutionFile->numVars;
}

} // namespace

std::int32_t buildVariableNames(const Plot3DLoadShape_s& shape, const Plot3DLoadOptions_s& options,
                                const Plot3DFileHandler& firstHandler, QuorStringListHandle names) {
    NameWriter writer(names);
    const std::int32_t firstSolutionIndex = 1 + shape.gridVarCount();
    addSpatialNames(writer, shape);
    if (firstHandler.hasSolutionFile()) {
        addSolutionNames(writer, firstHandler, shape.numSolutionVars);
        if (options.hasNameFile)
            readNameFile(options.nameFile, names, firstSolutionIndex, shape.numSolutionVars);
    }
    if (!firstHandler.hasFunctionFiles())
        return writer.lastIndex();
    addFunctionNames(writer, firstHandler.functionFiles);
    if (options.hasNameFile) {
        // From the top of the file again: the two kinds are named independently.
        readNameFile(options.nameFile, names, firstSolutionIndex + countSolutionVars(firstHandler),
                     shape.numFunctionVars);
    }
    return writer.lastIndex();
}

std::int64_t countVariableNames(const Plot3DLoadShape_s& shape,
                                const Plot3DFileHandler& firstHandler) {
    NameWriter counter(nullptr);
    addSpatialNames(counter, shape);
    if (firstHandler.hasSolutionFile())
        addSolutionNames(counter, firstHandler, shape.numSolutionVars);
    std::int64_t count = counter.lastIndex();
    for (const Plot3DFile_s* file : firstHandler.functionFiles)
        count += countFunctionNames(*file);
    return count;
}

std::string functionName(std::int64_t ordinal, std::int64_t k) {
    return "F" + std::to_string(ordinal) + "V" + std::to_string(k);
}

bool findFreeFunctionOrdinal(std::int32_t& ordinal) {
    if (!QuorUtilDataSetIsAvailable())
        return true;
    try {
        return raiseToFreeOrdinal(ordinal);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::int32_t fieldDataType(const Plot3DFileHandler& handler, std::int32_t varIndex,
                           const Plot3DLoadShape_s& shape) {
    if (shape.hasIBlank && varIndex == shape.numSpatialVars)
        return QuorFieldDataType_Int32;
    const bool hasPrecision = handler.hasGridFile() || handler.hasSolutionFile();
    return hasPrecision && handler.isVarDoublePrecision(varIndex) ? QuorFieldDataType_Double
                                                                  : QuorFieldDataType_Float;
}

} // namespace quorvia::quorutildataio
