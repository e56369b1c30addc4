#include "inspect/evidence/GridScalars.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "plot3dfile/bytes/ByteOrder.h"
#include "plot3dfile/layout/StyleRules.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t namedScalars = 4; // those with a place in plot3d::Scalars are the first
// Of plain binary no more than this is read, however many grids there are.
constexpr std::size_t mostBytesOfScalars = 16 * 1024;

using Values = std::array<std::optional<double>, namedScalars>;

/// Whose value a scalar is; null: nobody's who is told here.
std::optional<double> plot3d::Scalars::*memberOf(const io::StyleScalar_s& scalar) {
    if (scalar.itemName == nullptr)
        return &plot3d::Scalars::time;
    const std::string_view name = scalar.itemName;
    if (name == "Common.ReferenceMachNumber")
        return &plot3d::Scalars::mach;
    if (name == "Common.AngleOfAttack")
        return &plot3d::Scalars::alpha;
    return name == "Common.ReynoldsNumber" ? &plot3d::Scalars::reynolds : nullptr;
}

plot3d::Scalars named(const Values& values, const Reading_s& reading) {
    const auto scalars = io::styleRules(reading.style).scalars;
    plot3d::Scalars told;
    for (std::size_t place = 0; place < std::min(values.size(), scalars.size()); ++place)
        if (const auto member = memberOf(scalars[place]))
            told.*member = values[place];
    return told;
}

template <typename Real>
Values readBinary(ExaminedFile& file, std::int64_t position, bool byteSwap) {
    std::array<Real, namedScalars> reals{};
    Values values;
    if (file.readAt(position, reals.data(), sizeof reals) != sizeof reals)
        return values;
    if (byteSwap)
        io::reverseEach(reals.data(), sizeof(Real), namedScalars);
    for (std::size_t index = 0; index < values.size(); ++index)
        values[index] = static_cast<double>(reals[index]);
    return values;
}

std::vector<plot3d::Scalars> scalarsOfBinary(Evidence_s& evidence) {
    std::vector<plot3d::Scalars> scalars;
    const Reading_s& reading = *evidence.reading;
    const auto width = static_cast<std::size_t>(namedScalars * io::realWidth(reading));
    const bool isBounded = reading.encoding == io::Plot3DEncoding_Binary;
    for (const std::int64_t position : evidence.account->scalarPositions) {
        if (isBounded && scalars.size() * width >= mostBytesOfScalars)
            break;
        scalars.push_back(named(reading.isDoublePrecision
                                    ? readBinary<double>(evidence.file, position, reading.byteSwap)
                                    : readBinary<float>(evidence.file, position, reading.byteSwap),
                                reading));
    }
    return scalars;
}

std::vector<plot3d::Scalars> scalarsOfText(Evidence_s& evidence) {
    std::vector<plot3d::Scalars> scalars;
    const Reading_s& reading = *evidence.reading;
    std::int64_t index = headerValues(reading);
    for (std::size_t grid = 0; grid < reading.grids.size(); ++grid) {
        if (index >= evidence.text->valueCount())
            break;
        Values values;
        for (std::size_t scalar = 0; scalar < values.size(); ++scalar)
            values[scalar] = evidence.text->valueAt(index + static_cast<std::int64_t>(scalar));
        scalars.push_back(named(values, reading));
        index += gridSize(blocksOf(reading, grid), valueWidths());
    }
    return scalars;
}

} // namespace

std::vector<plot3d::Scalars> scalarsOf(Evidence_s& evidence) {
    if (!evidence.reading || evidence.reading->numScalars < namedScalars)
        return {};
    return evidence.text ? scalarsOfText(evidence) : scalarsOfBinary(evidence);
}

} // namespace plot3dlib
