#include "app/LeftOut.h"

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

using Strings = std::vector<std::string>;

const std::string extensions = "g.* *.g *.in.* *.nam";

TEST(LeftOut, KindGoesByTheFileNameInAnyCase) {
    EXPECT_EQ(
        (Strings{"a.bin", "x.g/mesh", "README"}),
        filesOfNoKind({"a.bin", "b.g", "G.DAT", "dir/c.in.old", "x.g/mesh", "README", "N.NAM"},
                      extensions));
}

TEST(LeftOut, BoundaryFileNeedsNoKind) {
    EXPECT_EQ(Strings(), filesOfNoKind({"a.g.fvbnd", "a.g.FVBND"}, extensions));
}

TEST(LeftOut, FilesAreNamedByTheInstructions) {
    const Strings instructions = {"FILELIST_GRIDFILES", "1", "a.g", "FILENAME_NAMEFILE", "a.nam"};
    EXPECT_EQ((Strings{"b.g"}), filesNotNamed({"a.g", "b.g", "a.nam"}, instructions));
}

TEST(LeftOut, BoundaryFileOfTheFirstGridFileComesInUnnamed) {
    const Strings grids = {"FILELIST_GRIDFILES", "2", "a.g", "b.g", "LOADBOUNDARY"};
    Strings with = grids;
    with.emplace_back("Yes");
    EXPECT_EQ((Strings{"b.g.fvbnd"}), filesNotNamed({"a.g.fvbnd", "b.g.fvbnd"}, with));
    Strings without = grids;
    without.emplace_back("No");
    EXPECT_EQ((Strings{"a.g.fvbnd"}), filesNotNamed({"a.g.fvbnd"}, without));
    EXPECT_EQ((Strings{"a.g.fvbnd"}), filesNotNamed({"a.g.fvbnd"}, {"LOADBOUNDARY"}));
}

} // namespace
} // namespace quorvia::host
