// Files that are cut short, at random places: where they end is told, and how much is missing. The
// seed is printed, and taken from PLOT3D_TEST_SEED.
#include <algorithm>
#include <cstdlib>
#include <random>

#include "InspectFixture.h"
#include "plot3dwriter/Plot3DWriter.h"

namespace plot3d {
namespace {

using writer::BlockKind_e;
using writer::Encoding_e;
using writer::FileKind_e;
using writer::Layout_e;

struct Written_s {
    LayoutCase_s layout;
    writer::FileForm_s form;
    std::string bytes;
    std::vector<writer::BlockPosition_s> blocks;
};

bool endsWithOneOf(const std::string& text, const Strings& ends) {
    return std::any_of(ends.begin(), ends.end(),
                       [&](const std::string& end) { return text.ends_with(end); });
}

class Truncated : public InspectTest {
protected:
    Truncated() : seed(chooseSeed()), random(seed) { RecordProperty("seed", std::to_string(seed)); }

    static std::uint32_t chooseSeed() {
        const char* const told = std::getenv("PLOT3D_TEST_SEED");
        return told != nullptr ? static_cast<std::uint32_t>(std::strtoul(told, nullptr, 10))
                               : std::random_device()();
    }

    std::size_t below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    }

    static Written_s write(const MatrixCase_s& matrixCase) {
        Written_s written{matrixCase.layout, matrixCase.form, {}, {}};
        auto outcome = writer::writePlot3DBytes(
            written.bytes, quorvia::testsupport::contentsOf(written.layout), written.form);
        EXPECT_EQ(outcome.problem, "");
        written.blocks = std::move(outcome.blocks);
        return written;
    }

    static std::string nameOf(const Written_s& written) {
        if (written.layout.kind == FileKind_e::Grid)
            return "wing.x";
        return written.layout.kind == FileKind_e::Function ? "wing.f" : "wing.q";
    }

    static std::string wordsOf(const writer::BlockPosition_s& block, const LayoutCase_s& layout) {
        constexpr const char* coordinates[] = {"X", "Y", "Z"};
        std::string words;
        if (block.kind == BlockKind_e::Scalars)
            words = "the scalars";
        else if (block.kind == BlockKind_e::IBlank)
            words = "I-blank";
        else if (block.kind == BlockKind_e::Connectivity)
            words = "the connectivity";
        else if (layout.kind == FileKind_e::Grid)
            words = coordinates[block.variable];
        else
            words = "variable " + std::to_string(block.variable + 1);
        if (block.plane >= 0)
            words += ", plane " + std::to_string(block.plane + 1);
        return "it ends in " + words + " of grid " + std::to_string(block.grid + 1) + ".";
    }

    /// The block that holds the first missing byte; of records it may be the one that ends there.
    static Strings placesOf(const Written_s& written, std::int64_t size) {
        Strings places;
        const std::int64_t markers =
            written.form.encoding == Encoding_e::Fortran ? 2 * written.form.markerBytes : 0;
        for (std::size_t index = 0; index < written.blocks.size(); ++index) {
            const auto end = index + 1 < written.blocks.size() ? written.blocks[index + 1].position
                                                               : std::ssize(written.bytes);
            if (size >= written.blocks[index].position - markers && size < end)
                places.push_back(wordsOf(written.blocks[index], written.layout));
        }
        return places;
    }

    static std::vector<MatrixCase_s> casesOf(Encoding_e encoding) {
        std::vector<MatrixCase_s> cases = quorvia::testsupport::everyCase();
        std::erase_if(cases, [=](const auto& c) { return c.form.encoding != encoding; });
        return cases;
    }

    static std::size_t firstValue(const Written_s& written) {
        const auto& blocks = written.blocks;
        const auto first = std::find_if(blocks.begin(), blocks.end(), [](const auto& block) {
            return block.kind == BlockKind_e::Variable;
        });
        return static_cast<std::size_t>(first->position);
    }

    FileInfo inspectCut(const Written_s& written, std::size_t size) const {
        const FileInfo info = inspectBytes(nameOf(written), written.bytes.substr(0, size));
        expectAccount(info);
        return info;
    }

    /// A few cuts of plain binary files leave all the bytes of another good one.
    static bool isAnotherFile(const FileInfo& info) {
        if (info.encoding != Encoding::Binary)
            return false;
        return (info.ok && info.bytes.surplus == 0) ||
               problemOf(info).ends_with(" file all its bytes are used.");
    }

    void expectToldCut(const Written_s& written, std::size_t size) const {
        SCOPED_TRACE(quorvia::testsupport::nameOf({written.layout, written.form}) + " cut to " +
                     std::to_string(size) + ", seed " + std::to_string(seed));
        const FileInfo info = inspectCut(written, size);
        if (isAnotherFile(info))
            return;
        EXPECT_FALSE(info.ok);
        EXPECT_TRUE(
            endsWithOneOf(problemOf(info), placesOf(written, static_cast<std::int64_t>(size))))
            << problemOf(info);
        EXPECT_EQ(info.bytes.missing, std::ssize(written.bytes) - static_cast<std::int64_t>(size));
    }

    /// A number that is cut in two counts as one that is there.
    void expectToldCutText(const Written_s& written, std::size_t size) const {
        SCOPED_TRACE(quorvia::testsupport::nameOf({written.layout, written.form}) + " cut to " +
                     std::to_string(size) + ", seed " + std::to_string(seed));
        const auto isBlank = [&](std::size_t index) {
            return written.bytes[index] == ' ' || written.bytes[index] == '\n';
        };
        while (!isBlank(size - 1)) // behind a whole number
            --size;
        const FileInfo info = inspectCut(written, size);
        EXPECT_TRUE(
            endsWithOneOf(problemOf(info), placesOf(written, static_cast<std::int64_t>(size))))
            << problemOf(info);
        EXPECT_GT(info.bytes.missing, 0);
    }

    std::uint32_t seed;
    std::mt19937 random;
};

TEST_F(Truncated, FortranFileTellsTheGridAndTheVariable) {
    for (const MatrixCase_s& matrixCase : casesOf(Encoding_e::Fortran)) {
        const Written_s written = write(matrixCase);
        // In the first grid's data, since ahead of them nothing tells the layout.
        const std::size_t first = firstValue(written) + 8;
        expectToldCut(written, first + below(written.bytes.size() - first));
    }
}

TEST_F(Truncated, TextTellsTheGridAndTheVariable) {
    for (const MatrixCase_s& matrixCase : casesOf(Encoding_e::Text)) {
        if (matrixCase.layout.layout == Layout_e::ThreeDPlanes || matrixCase.layout.hasIBlank)
            continue; // what tells it is cut off
        const Written_s written = write(matrixCase);
        const std::size_t first = (firstValue(written) + written.bytes.size()) / 2;
        expectToldCutText(written, first + below(written.bytes.size() - first));
    }
}

TEST_F(Truncated, PlainBinaryTellsTheGridAndTheVariable) {
    for (const MatrixCase_s& matrixCase : casesOf(Encoding_e::Binary)) {
        const LayoutCase_s& layout = matrixCase.layout;
        if (layout.layout == Layout_e::ThreeDPlanes || layout.layout == Layout_e::Unstructured)
            continue; // taken for whole fields
        if (layout.kind == FileKind_e::SwiftSolution || layout.hasIBlank)
            continue; // taken for Classic, or for Z without I-blank behind it
        const Written_s written = write(matrixCase);
        const std::size_t size = written.bytes.size();
        expectToldCut(written, size - 1 - below(size / 8));
    }
}

} // namespace
} // namespace plot3d
