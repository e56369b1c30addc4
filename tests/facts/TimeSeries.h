// Files of several time steps on two grids, and what a load makes of them.
#pragma once

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {

const Setting withStrands = {"ASSIGNSTRANDIDS", "Yes"};
const Setting noStrands = {"ASSIGNSTRANDIDS", "No"};
const Setting timesOfNames = {"EXTRACTTIMEFROMSOLFILENAMES", "Yes"};
const Setting appending = {"APPEND", "Yes"};

class TimeSeries : public LoadedAddOnTest {
protected:
    /// "strand@time" of each zone, such as "2@0.25".
    static Texts series() {
        Texts all;
        for (std::int32_t number = 1; number <= zoneCount(); ++number) {
            std::ostringstream text;
            text << zone(number).strandId << '@' << zone(number).solutionTime;
            all.push_back(text.str());
        }
        return all;
    }
    /// That of a load that comes in silently, on what is there or in an empty frame.
    static Texts after(const Load_s& load) {
        host().clearLog();
        expectLoads(load);
        return series();
    }
    static Texts afterFresh(const Load_s& load) {
        host().frame().reset();
        return after(load);
    }
    static bool handedOver(const std::string& key, const std::string& value) {
        const Texts& list = host().log().instructions;
        for (std::size_t at = 0; at + 1 < list.size(); ++at)
            if (list[at] == key)
                return list[at + 1] == value;
        return false;
    }

    /// One grid file, and a solution file of that name and time for each step.
    Load_s named(const std::vector<std::pair<std::string, double>>& solutions,
                 const Settings& settings = {withStrands}) const {
        Load_s load{.gridFiles = {files_.grid("a.x")}, .settings = settings};
        for (const auto& [name, time] : solutions)
            load.solutionFiles.push_back(files_.solution(name, time));
        return load;
    }
    /// The same with names that tell no time.
    Load_s steps(const Numbers& times, const Settings& settings = {withStrands}) const {
        std::vector<std::pair<std::string, double>> solutions;
        for (const double time : times)
            solutions.emplace_back(std::string(1, static_cast<char>('a' + solutions.size())) + ".q",
                                   time);
        return named(solutions, settings);
    }
    /// Two steps with a grid file each.
    Load_s gridEachStep(const Numbers& times, const Settings& settings) const {
        Load_s load = steps(times, settings);
        load.gridFiles.push_back(files_.grid("b.x"));
        return load;
    }
    /// Two function files whose names tell 10 and 20.
    Load_s functions(const Settings& settings) const {
        return {.gridFiles = {files_.grid("a.x")},
                .functionFiles = {files_.function("f.10", 1), files_.function("f.20", 1)},
                .settings = settings};
    }

    SmallFiles files_{directory().path().string()};
};

} // namespace quorvia::testsupport
