#include "convert/plot3d/FileContents.h"

#include <algorithm>
#include <array>
#include <memory>

#include "convert/contents/StyleForm.h"
#include "convert/contents/ValueConversion.h"
#include "convert/plot3d/NumberOutput.h"

namespace plot3d::program {

namespace {

StyleForm_s styleFormOf(const FilePlan_s& plan) {
    switch (plan.kind) {
    case FileKind::Solution:
        return styleForm(plan.style);
    case FileKind::Function:
        return styleForm(Style::Function);
    case FileKind::Grid:
    case FileKind::Boundary:
    case FileKind::Name:
        break;
    }
    return {};
}

/// Readers take text for a solution whose first line of values has 4 or 5 of them.
int tokensPerLine(const Contents& contents, const FilePlan_s& plan) {
    constexpr int usual = 6;
    constexpr int fewer = 3;
    const std::int64_t points = contents.zones()[plan.zones.front()].size.count();
    return plan.kind == FileKind::Function && (points == 4 || points == 5) ? fewer : usual;
}

class Walk {
public:
    Walk(Contents& contents, const FilePlan_s& plan, ByteOutput& out)
        : contents_(contents), plan_(plan), style_(styleFormOf(plan)), out_(out),
          numbers_(makeNumberOutput(out, plan.form, tokensPerLine(contents, plan))) {}

    void run() {
        writeHeader();
        for (const std::size_t zone : plan_.zones) {
            writeScalars(zone);
            writeData(zone);
        }
        writeTail();
    }

private:
    const ContentZone_s& facts(std::size_t zone) const { return contents_.zones()[zone]; }

    bool isUnstructuredGrid() const {
        return plan_.form.layout == Layout::Unstructured && plan_.kind == FileKind::Grid;
    }

    void writeHeader() {
        if (plan_.form.multiGrid) {
            numbers_->beginRecord(width(ValueType::Int32));
            putLine({static_cast<std::int32_t>(plan_.zones.size())});
            numbers_->endRecord();
        }
        std::vector<std::vector<std::int32_t>> lines;
        for (const std::size_t zone : plan_.zones)
            lines.push_back(headerIntegers(facts(zone)));
        if (style_.variableCount == VariableCount_e::OfFile)
            lines.push_back({variableCount(), plan_.speciesCount});
        std::int64_t count = 0;
        for (const std::vector<std::int32_t>& line : lines)
            count += static_cast<std::int64_t>(line.size());
        numbers_->beginRecord(count * width(ValueType::Int32));
        for (const std::vector<std::int32_t>& line : lines)
            putLine(line);
        numbers_->endRecord();
    }

    std::int32_t variableCount() const { return static_cast<std::int32_t>(plan_.variables.size()); }

    std::vector<std::int32_t> headerIntegers(const ContentZone_s& zone) const {
        std::vector<std::int64_t> sizes = {zone.size.i, zone.size.j, zone.size.k};
        if (isUnstructuredGrid() && zone.kind == ZoneKind::Triangles)
            sizes = {zone.size.i, zone.elementCount, 0};
        else if (isUnstructuredGrid())
            sizes = {zone.size.i, 0, zone.elementCount};
        else if (plan_.form.layout == Layout::OneD)
            sizes.resize(1);
        else if (plan_.form.layout == Layout::TwoD)
            sizes.resize(2);
        if (style_.variableCount == VariableCount_e::OfEachGrid)
            sizes.push_back(variableCount());
        std::vector<std::int32_t> integers;
        for (const std::int64_t size : sizes)
            integers.push_back(static_cast<std::int32_t>(size));
        return integers;
    }

    void putLine(std::vector<std::int32_t> integers) {
        numbers_->beginRun(Run_e::OneLine);
        numbers_->put(ValueType::Int32, integers.data(),
                      static_cast<std::int64_t>(integers.size()));
        numbers_->endRun();
    }

    void writeScalars(std::size_t zone) {
        if (scalarCount(plan_) == 0)
            return;
        const std::vector<double> scalars = scalarsOf(zone);
        const auto count = static_cast<std::int64_t>(scalars.size());
        const std::int64_t narrower =
            style_.integerScalar ? width(plan_.form.precision) - width(ValueType::Int32) : 0;
        numbers_->beginRecord(count * width(plan_.form.precision) - narrower);
        numbers_->beginRun(Run_e::OneLine);
        for (std::size_t place = 0; place < scalars.size(); ++place)
            putScalar(scalars[place], place == style_.integerScalar);
        numbers_->endRun();
        numbers_->endRecord();
    }

    /// As many as the file has places for: records of Overflow may have more than readers know.
    std::vector<double> scalarsOf(std::size_t zone) const {
        std::vector<double> scalars = facts(zone).scalars;
        const auto expected = static_cast<std::size_t>(scalarCount(plan_));
        const bool mayHaveMore = style_.hasSpecies && plan_.form.encoding == Encoding::Fortran;
        if (scalars.size() < expected || !mayHaveMore)
            scalars.resize(expected, 0.0);
        return scalars;
    }

    void putScalar(double scalar, bool isInteger) {
        auto integer = static_cast<std::int32_t>(isInteger ? scalar : 0.0);
        std::array<double, 1> real{};
        convertValues(ValueType::Float64, &scalar, plan_.form.precision, real.data(), 1);
        if (isInteger)
            numbers_->put(ValueType::Int32, &integer, 1);
        else
            numbers_->put(plan_.form.precision, real.data(), 1);
    }

    void writeData(std::size_t zone) {
        const Extent& size = facts(zone).size;
        const bool inPlanes = plan_.form.layout == Layout::ThreeDPlanes;
        const std::int64_t planes = inPlanes ? size.k : 1;
        for (std::int64_t plane = 0; plane < planes; ++plane) {
            Box box = Box::whole(size);
            if (inPlanes)
                box.k = {plane, plane, 1};
            numbers_->beginRecord(recordBytes(zone, box.count()));
            for (const std::size_t variable : plan_.variables)
                writeField(zone, variable, box, plan_.form.precision);
            if (plan_.iBlank)
                writeField(zone, *plan_.iBlank, box, ValueType::Int32);
            if (isUnstructuredGrid())
                writeElements(zone);
            numbers_->endRecord();
        }
    }

    std::int64_t recordBytes(std::size_t zone, std::int64_t points) const {
        const std::int64_t reals =
            static_cast<std::int64_t>(plan_.variables.size()) * width(plan_.form.precision);
        const std::int64_t integers = plan_.iBlank ? width(ValueType::Int32) : 0;
        constexpr std::int64_t integersOfElement = 4; // three corners and a tag, or four corners
        const std::int64_t elements =
            isUnstructuredGrid()
                ? integersOfElement * width(ValueType::Int32) * facts(zone).elementCount
                : 0;
        return points * (reals + integers) + elements;
    }

    void writeField(std::size_t zone, std::size_t variable, const Box& box, ValueType wanted) {
        const ValueType type = *contents_.type(zone, variable);
        numbers_->beginRun(Run_e::Block);
        forEachBlock(box.extent(), pointsPerBlock, [&](Box block, std::int64_t count) {
            block.k.first += box.k.first;
            block.k.last += box.k.first;
            char* const values = placeFor(count, type);
            contents_.read(zone, variable, block, values);
            if (type == wanted) {
                numbers_->put(wanted, values, count);
                return;
            }
            converted_.resize(static_cast<std::size_t>(count));
            convertValues(type, values, wanted, converted_.data(), count);
            numbers_->put(wanted, converted_.data(), count);
        });
        numbers_->endRun();
    }

    /// Room for values, at the same distance from a cache line as they will have in the file:
    /// the system copies such bytes up to twice as fast.
    char* placeFor(std::int64_t count, ValueType type) {
        constexpr std::int64_t line = 64;
        values_.resize(static_cast<std::size_t>(count + line / width(ValueType::Float64)));
        char* const first = reinterpret_cast<char*>(values_.data());
        const auto address = static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(first));
        const std::int64_t shift = (out_.position() - address) & (line - 1);
        return first + shift / width(type) * width(type);
    }

    void writeElements(std::size_t zone) {
        std::vector<std::int32_t> nodes = contents_.nodeMap(zone);
        for (std::int32_t& node : nodes)
            ++node;
        putBlock(nodes);
        if (facts(zone).kind != ZoneKind::Triangles)
            return;
        std::vector<std::int32_t> tags(static_cast<std::size_t>(facts(zone).elementCount), 0);
        putBlock(tags);
    }

    void putBlock(std::vector<std::int32_t>& integers) {
        numbers_->beginRun(Run_e::Block);
        numbers_->put(ValueType::Int32, integers.data(),
                      static_cast<std::int64_t>(integers.size()));
        numbers_->endRun();
    }

    /// The bytes by which readers want an Overflow file in plain binary to be longer.
    void writeTail() {
        if (!style_.hasSpecies || plan_.form.encoding != Encoding::Binary)
            return;
        const bool isDouble = plan_.form.precision == ValueType::Float64;
        out_.write(std::string(isDouble ? 16 + 4 * plan_.zones.size() : 8, '\0'));
    }

    Contents& contents_;
    const FilePlan_s& plan_;
    StyleForm_s style_;
    ByteOutput& out_;
    std::unique_ptr<NumberOutput> numbers_;
    std::vector<std::uint64_t> values_;
    std::vector<std::uint64_t> converted_;
};

} // namespace

int scalarCount(const FilePlan_s& plan) {
    if (plan.kind != FileKind::Solution)
        return 0;
    return scalarCount(plan.style, plan.form.layout, plan.speciesCount);
}

void writeFileContents(Contents& contents, const FilePlan_s& plan, ByteOutput& out) {
    Walk(contents, plan, out).run();
}

} // namespace plot3d::program
