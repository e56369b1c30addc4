// Files that are not what they should be, loaded as a macro would. Whatever they hold, the add-on
// keeps the contract (the base fixture asks for that), ends in time, says nothing or one of its own
// messages, and asks for no memory that the files' sizes do not justify.
#pragma once

#include <string>
#include <string_view>

#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {

enum class Fate_e { Loaded, Refused };

class BadInputTest : public LoadedAddOnTest {
protected:
    /// Loads the files; of what comes in every field is fetched, whether or not that succeeds.
    static Fate_e attempt(const Load_s& load);

    /// Refused, or taken for something smaller than it claims that its bytes do hold: a few numbers
    /// are enough for a small grid, and nothing in them says that it is none.
    static Fate_e expectNotBelieved(const Load_s& load);

    /// Refused, with exactly these messages.
    static void expectRefusal(const Load_s& load, const Texts& expectedMessages);

    /// Writes `bytes` to a file and gives the load of it alone, as a grid file.
    Load_s gridLoad(std::string_view bytes) const;
    /// The same as a solution or function file beside the grid file of smallGrid().
    Load_s solutionLoad(std::string_view bytes) const;

    /// What detection says to a file that it can make nothing of.
    static std::string undetectedGrid(const std::string& file);
    static std::string undetectedSolution(const std::string& file);
    /// What the dataset stage adds to the message of a walk that failed.
    static std::string invalidGrid(const std::string& file);

private:
    std::string writeAnew(std::string_view name, std::string_view bytes) const;
};

/// One 3-D grid of 2 x 3 x 5 points, and a Classic solution on it.
FileDescription_s smallGrid();
FileDescription_s smallSolution();

/// 32-bit integers as they stand in a binary file.
std::string headerIntegers(std::initializer_list<std::int64_t> values,
                           ByteOrder_e order = ByteOrder_e::Little);

} // namespace quorvia::testsupport
