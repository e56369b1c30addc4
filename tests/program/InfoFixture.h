// plot3d info on files that were made by hand.
#pragma once

#include <map>
#include <sstream>
#include <stop_token>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "info/InfoCommand.h"
#include "manners/Talk.h"
#include "program/HandMadeInfo.h"

namespace plot3d::program {

class InfoFixture : public testing::Test {
protected:
    /// Runs the command; gives what it wrote to standard output.
    std::string told(const std::vector<std::string>& arguments) {
        std::stop_source stop;
        InfoCommand command(
            [&](const std::string& file, const InspectOptions& options, const Watch&) {
                asked.push_back(options);
                if (file == stoppedBehind)
                    stop.request_stop();
                FileInfo info = files.at(file);
                info.file = file;
                return info;
            });
        std::ostringstream out;
        try {
            code = DeclaredCommand(command).run(
                arguments,
                {in, out, err, columns, 0, false, ProgressWish_e::Auto, false, stop.get_token()});
        } catch (const Error& error) {
            code = exitCodeOf(error.kind());
        }
        return out.str();
    }

    std::map<std::string, FileInfo> files = {
        {"comb.q", wholeSolution()}, {"multi.x", multiGrid()}, {"my blunt.q", refused()}};
    std::vector<InspectOptions> asked;
    std::string stoppedBehind; // the file behind which Ctrl-C comes; empty: none
    std::istringstream in;
    std::ostringstream err;
    int columns = 0;
    int code = -1;
};

} // namespace plot3d::program
