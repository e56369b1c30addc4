// Indexes of written files, and what readers of others find through them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "program/convert/ReadBack.h"

namespace quorvia::testsupport {

class IndexTest : public ReadBackTest {
protected:
    /// The readers are those of read_index.py, or others, as with ReadBackTest.
    IndexTest();
    explicit IndexTest(std::string readers) : ReadBackTest(std::move(readers)) {}

    /// Runs plot3d index on the files; gives its exit code.
    static int index(std::vector<std::string> arguments, const std::string& output,
                     std::string* err = nullptr);
    /// What the library finds in the data set is what must be read through its index.
    static void expectWhatTheLibraryFinds(const std::string& folder,
                                          const std::vector<std::string>& files);

    /// A grid of 2 x 3 x 5 points and its solution, in big-endian Fortran records.
    static std::vector<std::string> writePair(const std::string& folder);
    /// Steps of two grids with I-blank: m_1.q and so on, and one grid file m.x, or one for each.
    static std::vector<std::string> writeSeries(const std::string& folder, int steps, bool moves);
};

} // namespace quorvia::testsupport
