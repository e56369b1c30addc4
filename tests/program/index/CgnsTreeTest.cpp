// The limit of external data sets: how many slots fit into the header of one.
#include "index/cgns/CgnsTree.h"

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "index/contents/Slots.h"
#include "support/TemporaryDirectory.h"

namespace plot3d::program {
namespace {

class ManySlots : public ::testing::Test {
protected:
    void write(std::size_t slotCount) const {
        Source source;
        for (std::size_t slot = 0; slot < slotCount; ++slot)
            source.pieces.push_back({static_cast<std::int64_t>(slot) * 16, 4});
        const std::array<hsize_t, 1> sizes = {slotCount};
        CgnsTree tree(directory_.file("out.cgns"));
        tree.addExternal(tree.root(), "Field", "DataArray_t", sizes, source, "/a/field.q");
        tree.finish();
    }

private:
    const quorvia::testsupport::TemporaryDirectory directory_;
};

TEST_F(ManySlots, FitUpToTheLimit) {
    EXPECT_NO_THROW(write(mostSlots));
}

TEST_F(ManySlots, AreRefusedBeyondIt) {
    try {
        write(mostSlots + 1);
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.kind(), ErrorKind::Unsupported);
        EXPECT_EQ(error.message(), "a field is cut into 2701 pieces, and HDF5 takes 2700");
    }
}

} // namespace
} // namespace plot3d::program
