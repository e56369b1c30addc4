// Every file of the matrix, converted to each format and read by readers of others, bit for bit.
#include "program/convert/ReadBack.h"

namespace quorvia::testsupport {
namespace {

using ReadBackMatrix = ReadBackTest;

TEST_F(ReadBackMatrix, HoldsEveryValueInEachFormat) {
    const std::vector<std::string> endings = {"cgns", "npz", "csv", "pvd"};
    for (const MatrixCase_s& matrixCase : everyCase()) {
        const std::string where = folder(nameOf(matrixCase));
        const OpenedCase_s opened = writeCase(where, matrixCase);
        convert(where, arguments(opened), endings);
        writeExpected(where, opened);
    }
    expectReadBack(static_cast<int>(everyCase().size() * endings.size()));
}

} // namespace
} // namespace quorvia::testsupport
