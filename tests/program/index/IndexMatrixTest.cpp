// Every file of the matrix through each index that can tell of it, read by readers of others, bit
// for bit; the others are refused with the command that makes a copy.
#include <filesystem>

#include "IndexFixture.h"
#include "IndexRows.h"

namespace quorvia::testsupport {
namespace {

class IndexMatrix : public IndexTest {
protected:
    static void expectRefused(const std::vector<std::string>& arguments,
                              const std::string& output) {
        std::string err;
        EXPECT_EQ(index(arguments, output, &err), 1) << output;
        EXPECT_NE(err.find("\ntry: plot3d convert "), std::string::npos) << err;
        EXPECT_FALSE(std::filesystem::exists(output));
    }
};

TEST_F(IndexMatrix, HoldsEveryValueOrRefuses) {
    int count = 0;
    for (const MatrixCase_s& tested : everyCase()) {
        const std::string where = folder(nameOf(tested));
        const OpenedCase_s opened = writeCase(where, tested);
        for (const std::string ending : {"cgns", "json", "xmf2", "p3d", "vp3d"}) {
            const std::string output = where + "/out." + ending;
            if (!canSay(ending, tested)) {
                expectRefused(arguments(opened), output);
                continue;
            }
            EXPECT_EQ(index(arguments(opened), output), 0) << output;
            ++count;
        }
        writeExpected(where, opened);
    }
    expectReadBack(count);
}

} // namespace
} // namespace quorvia::testsupport
