#include "sessions/Command.h"

#include <fmt/core.h>
#include <fmt/format.h>

namespace quorvia::sessions {

namespace {

std::string listed(const char* kind, const std::vector<std::size_t>& chosen,
                   const std::vector<FileModel_s>& files) {
    if (chosen.empty())
        return "";
    std::string text = fmt::format(" {}:", kind);
    for (const std::size_t place : chosen)
        text += " " + files[place].name;
    return text;
}

class Teller {
public:
    const std::vector<FileModel_s>& files;

    std::string operator()(const Load_s& load) const {
        static constexpr const char* roads[] = {"instructions", "selection", "dialog"};
        std::string text = roads[static_cast<int>(load.road)];
        text += load.append ? ", append," : ",";
        text += listed("grids", load.grids, files) + listed("solutions", load.solutions, files) +
                listed("functions", load.functions, files);
        for (std::size_t axis = 0; axis < load.ranges.size(); ++axis)
            if (const Range_s& range = load.ranges[axis]; !range.isWhole())
                text +=
                    fmt::format(", {}={},{},{}", "IJK"[axis], range.start, range.end, range.skip);
        if (!load.gridSet.empty())
            text += fmt::format(", grid set {}", fmt::join(load.gridSet, ","));
        const std::pair<bool, const char*> flags[] = {{load.isDescribed, "described by hand"},
                                                      {load.sharesStructure, "shared structure"},
                                                      {load.isUniform, "uniform"},
                                                      {load.assignsStrands, "strands"},
                                                      {load.addsToStrands, "add to strands"},
                                                      {load.newStrandEachStep, "new strands"},
                                                      {load.timesFromNames, "times of names"},
                                                      {load.loadsBoundary, "boundary file"},
                                                      {!load.answersOk, "answers no"}};
        for (const auto& [isOn, word] : flags)
            if (isOn)
                text += fmt::format(", {}", word);
        return text;
    }
    std::string operator()(const DeleteZones_s& command) const {
        return fmt::format("delete zones {}", fmt::join(command.zones, ","));
    }
    std::string operator()(const Unload_s&) const { return "unload"; }
    std::string operator()(const AllowSharing_s& command) const {
        return command.isAllowed ? "sharing allowed" : "sharing forbidden";
    }
};

std::set<std::size_t> usedFiles(const std::vector<Command>& commands) {
    std::set<std::size_t> used;
    for (const Command& command : commands)
        if (const auto* load = std::get_if<Load_s>(&command))
            for (const auto* places : {&load->grids, &load->solutions, &load->functions})
                used.insert(places->begin(), places->end());
    return used;
}

} // namespace

std::string describe(const Command& command, const std::vector<FileModel_s>& files) {
    return std::visit(Teller{files}, command);
}

std::string describe(const Session_s& session) {
    std::string text = fmt::format("session {}{}\n", session.seed,
                                   session.fetchesOften ? "" : ", values looked at in the end");
    for (const std::size_t place : usedFiles(session.commands))
        text += "  file " + describe(session.files[place]) + "\n";
    for (std::size_t index = 0; index < session.commands.size(); ++index)
        text +=
            fmt::format("  {} {}\n", index + 1, describe(session.commands[index], session.files));
    return text;
}

} // namespace quorvia::sessions
