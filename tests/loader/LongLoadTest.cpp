// Loads that read a lot: the user stops them inside a field.
#include <filesystem>

#include "LoaderFixture.h"
#include "support/FakeDisk.h"

namespace quorvia::testsupport {
namespace {

class LongLoad : public LoaderTest {
protected:
    /// A plain binary grid of 257 x 257 x 261 points, all 0; of each field one value is kept.
    void useBigGrid() {
        const std::string header{1, 1, 0, 0, 1, 1, 0, 0, 5, 1, 0, 0};
        const std::string file = directory.write("big.x", header);
        std::filesystem::resize_file(file, 12 + 3 * 4 * 257 * 257 * 261);
        useFiles({file});
        options.iRange = options.jRange = options.kRange = {1, 1, 1};
    }
};

TEST_F(LongLoad, ComesInWhileNobodyInterrupts) {
    useBigGrid();
    EXPECT_TRUE(load());
    EXPECT_EQ(messages(), Texts());
}

TEST_F(LongLoad, ThatIsStoppedInsideAFieldTellsOfTheInterruptionAlone) {
    useBigGrid();
    FakeDisk watched(FakeDisk::Behind_e::Platform);
    watched.onRead = [&] {
        if (watched.bytesRead > 1'000'000)
            host().requestInterrupt();
    };
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), Texts{"Plot3D Data load interrupted"});
    EXPECT_EQ(zoneCount(), 0);
    EXPECT_LT(watched.bytesRead, 4 * 257 * 257 * 261);
}

} // namespace
} // namespace quorvia::testsupport
