// plot3d info on files that were made by hand.
#pragma once

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "info/InfoCommand.h"
#include "program/HandMadeInfo.h"

namespace plot3d::program {

class InfoFixture : public testing::Test {
protected:
    /// Runs the command; gives what it wrote to standard output.
    std::string told(const std::vector<std::string>& arguments) {
        InfoCommand command(
            [this](const std::string& file, const InspectOptions& options, const Watch&) {
                asked.push_back(options);
                FileInfo info = files.at(file);
                info.file = file;
                return info;
            });
        std::ostringstream out;
        code = DeclaredCommand(command).run(
            arguments, {in, out, err, columns, 0, false, ProgressWish_e::Auto, false, {}});
        return out.str();
    }

    std::map<std::string, FileInfo> files = {
        {"comb.q", wholeSolution()}, {"multi.x", multiGrid()}, {"my blunt.q", refused()}};
    std::vector<InspectOptions> asked;
    std::istringstream in;
    std::ostringstream err;
    int columns = 0;
    int code = -1;
};

} // namespace plot3d::program
