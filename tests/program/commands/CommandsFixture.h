// Random data sets on disk, and the commands of the program on them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "program/commands/ModelSelection.h"
#include "program/commands/ModelSet.h"
#include "program/values/ValueFiles.h"
#include "support/Json.h"

namespace plot3d::program {

using Words = std::vector<std::string>;

/// Random sets that each test draws.
constexpr int setCount = 40;

class CommandsTest : public ValueFilesTest {
protected:
    /// Writes the files into a folder of their own.
    void writeFiles(const ModelSet& data, const std::string& folder) const;
    std::string path(const std::string& folder, const ModelFile_s& fileOfSet) const {
        return file(folder + "/" + fileOfSet.name);
    }
    /// The files and what else a load of them needs.
    Words loadWords(const ModelSet& data, const std::string& folder) const;
    /// `plot3d COMMAND`, then all the words.
    static Ended_s ran(const std::string& command, const std::vector<Words>& words);

    /// Whether the bytes of a file mean something else, too, which comes ahead of it in the order
    /// of trials. That it is found among the readings that fit is tested here.
    bool isAmbiguous(const ModelSet& data, const std::string& folder) const;

    /// `info` of one file, taken for what it is.
    Json infoOf(const ModelFile_s& fileOfSet, const std::string& folder) const;

    /// Calls `check(data, draw, folder)` with random sets on disk that are not ambiguous.
    template <class Check>
    void forRandomSets(int count, const Check& check) {
        const std::uint64_t seed = seedOfRun();
        int checked = 0;
        for (int number = 0; number < count && !HasFatalFailure(); ++number) {
            SCOPED_TRACE("seed " + std::to_string(seed + static_cast<std::uint64_t>(number)));
            const ModelSet data(seed + static_cast<std::uint64_t>(number),
                                seed + static_cast<std::uint64_t>(number) + 1000);
            Dice draw(seed + static_cast<std::uint64_t>(number) + 2000);
            const std::string folder = "set" + std::to_string(number);
            writeFiles(data, folder);
            if (isAmbiguous(data, folder))
                continue;
            ++checked;
            check(data, draw, folder);
        }
        EXPECT_GT(checked, count / 4);
    }
};

} // namespace plot3d::program
