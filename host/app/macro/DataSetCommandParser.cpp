#include "app/macro/DataSetCommandParser.h"

#include <fmt/core.h>

namespace quorvia::host {
namespace {

/// The words are those of the outcome (describe/Words.h).
std::int32_t toZoneType(const MacroJson& value, const std::string& what) {
    return toWord(value, what,
                  {{"ordered", QuorZoneType_Ordered},
                   {"triangles", QuorZoneType_Triangles},
                   {"tetrahedra", QuorZoneType_Tetrahedra}});
}

std::int32_t toFieldType(const MacroJson& value, const std::string& what) {
    return toWord(value, what,
                  {{"float32", QuorFieldDataType_Float},
                   {"float64", QuorFieldDataType_Double},
                   {"int32", QuorFieldDataType_Int32}});
}

std::int64_t toSize(const MacroJson& value, const std::string& what) {
    return toInteger(value, what, 1);
}

std::int64_t cornersOf(std::int32_t zoneType) {
    return zoneType == QuorZoneType_Triangles ? 3 : 4;
}

void readSizes(const ObjectReader& reader, HandMadeZone_s& zone) {
    const bool isOrdered = zone.type == QuorZoneType_Ordered;
    zone.k = isOrdered ? 1 : cornersOf(zone.type);
    reader.take("i", zone.i, toSize);
    reader.take("j", zone.j, toSize);
    reader.take("k", zone.k, toSize);
    if (!isOrdered && zone.k != cornersOf(zone.type))
        throw MacroError(
            fmt::format("\"k\" is the number of corners, which must be {} here, and is {}",
                        cornersOf(zone.type), zone.k));
    constexpr std::int64_t widestValueBytes = 8;
    std::int64_t count = 0;
    if (__builtin_mul_overflow(zone.i, zone.j, &count) ||
        __builtin_mul_overflow(count, zone.k, &count) ||
        __builtin_mul_overflow(count, widestValueBytes, &count))
        throw MacroError("the zone has more points than memory has addresses");
}

void readTypes(const ObjectReader& reader, std::size_t variableCount, HandMadeZone_s& zone) {
    zone.types.assign(variableCount, QuorFieldDataType_Float);
    if (const MacroJson* types = reader.find("types"))
        zone.types = toList(*types, inQuotes("types"), toFieldType);
    if (zone.types.size() != variableCount)
        throw MacroError(fmt::format("\"types\" names {} types for {} variables", zone.types.size(),
                                     variableCount));
}

std::set<std::int32_t> readVariables(const ObjectReader& reader, std::string_view key,
                                     std::size_t variableCount) {
    std::set<std::int32_t> result;
    const MacroJson* numbers = reader.find(key);
    if (numbers == nullptr)
        return result;
    const auto toNumber = [](const MacroJson& value, const std::string& what) {
        return toInt32(value, what, 1);
    };
    for (const std::int32_t number : toList(*numbers, inQuotes(key), toNumber)) {
        if (static_cast<std::size_t>(number) > variableCount)
            throw MacroError(
                fmt::format("{} names variable {} of {}", inQuotes(key), number, variableCount));
        result.insert(number);
    }
    return result;
}

HandMadeZone_s readZone(const MacroJson& value, const std::string& what,
                        std::size_t variableCount) {
    const ObjectReader reader(value, what,
                              {"name", "type", "i", "j", "k", "types", "cellCentred", "passive",
                               "strandId", "solutionTime"});
    HandMadeZone_s zone;
    reader.take("name", zone.name, toText);
    reader.take("type", zone.type, toZoneType);
    readSizes(reader, zone);
    readTypes(reader, variableCount, zone);
    zone.cellCentred = readVariables(reader, "cellCentred", variableCount);
    zone.passive = readVariables(reader, "passive", variableCount);
    reader.take("strandId", zone.strandId, [](const MacroJson& strand, const std::string& name) {
        return toInt32(strand, name, 0);
    });
    reader.take("solutionTime", zone.solutionTime, toReal);
    return zone;
}

/// What is wrong with a zone says which one.
HandMadeZone_s readNumberedZone(const MacroJson& value, const std::string& what,
                                std::size_t variableCount) {
    try {
        return readZone(value, "the zone", variableCount);
    } catch (const MacroError& error) {
        throw MacroError(what + ": " + error.what());
    }
}

} // namespace

HandMadeDataSet_s parseHandMadeDataSet(const MacroJson& value, const std::string& what) {
    const ObjectReader reader(value, what, {"title", "variables", "zones"});
    HandMadeDataSet_s made;
    reader.take("title", made.title, toText);
    made.variables = toList(reader.get("variables"), inQuotes("variables"), toText);
    if (made.variables.empty())
        throw MacroError("\"variables\" is empty; a data set has at least one");
    const auto toZone = [&made](const MacroJson& zone, const std::string& name) {
        return readNumberedZone(zone, name, made.variables.size());
    };
    if (const MacroJson* zones = reader.find("zones"))
        made.zones = toList(*zones, inQuotes("zones"), toZone);
    return made;
}

} // namespace quorvia::host
