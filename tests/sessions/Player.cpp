#include "sessions/Player.h"

#include <memory>
#include <stdexcept>

#include <fmt/core.h>
#include <fmt/format.h>

#include "app/macro/DialogSteps.h"
#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"
#include "sessions/Comparer.h"
#include "sessions/rules/SessionRules.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::sessions {

namespace {

using Texts = std::vector<std::string>;

/// Ahead of what no user could do: a mistake of the session.
const std::string impossible = "impossible: ";

class Performance {
public:
    explicit Performance(const Session_s& session)
        : session_(session), folder_(directory_.path().string()) {
        for (const FileModel_s& file : session.files)
            write(file, folder_);
        host_.reset();
        std::string error;
        library_ = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
        if (library_ == nullptr)
            throw std::runtime_error(error);
    }
    ~Performance() {
        library_->unload();
        host_.reset();
    }
    Performance(const Performance&) = delete;
    Performance& operator=(const Performance&) = delete;

    Difference_s play(Tally_s& tally) {
        for (std::size_t index = 0; index < session_.commands.size(); ++index) {
            const Command& command = session_.commands[index];
            const Verdict_s verdict = apply(command, session_.files, expected_);
            const std::string text = perform(command, verdict);
            if (!text.empty())
                return {index + 1, text};
            if (std::holds_alternative<Load_s>(command))
                ++(verdict.ending == Ending_e::Done ? tally.loads : tally.refusals);
            if (verdict.ending == Ending_e::RefusedAmidst)
                break; // what is there now is open
        }
        return {};
    }

private:
    std::string perform(const Command& command, const Verdict_s& verdict) {
        const std::size_t messagesBefore = host_.log().messages.size();
        const bool isDone = std::visit([this](const auto& what) { return does(what); }, command);
        if (!host_.script().problem().empty())
            return impossible + host_.script().problem();
        if (!host_.log().violations.empty())
            return "contract broken: " + host_.log().violations.front();
        if (host_.lockDepth() != 0)
            return "the lock is held";
        const std::string told = messagesSince(messagesBefore);
        if (isDone != (verdict.ending == Ending_e::Done))
            return isDone ? "loads, expected to be refused: " + verdict.reason
                          : "is refused: " + told;
        if (!isDone && host_.log().messages.size() == messagesBefore)
            return "is refused without a message; the reason is: " + verdict.reason;
        if (verdict.ending == Ending_e::RefusedAmidst)
            return "";
        const bool isLast = &command == &session_.commands.back();
        const std::string text = findDifference(host_, expected_, session_.fetchesOften || isLast);
        if (!isLast || !text.empty())
            return text.empty() || told.empty() ? text : text + "\n    told: " + told;
        host_.unloadAll(); // every value once more from its file
        return findDifference(host_, expected_, true);
    }

    std::string messagesSince(std::size_t before) const {
        std::string text;
        for (std::size_t index = before; index < host_.log().messages.size(); ++index)
            text += "[" + host_.log().messages[index].text + "]";
        return text;
    }

    Texts paths(const std::vector<std::size_t>& places) const {
        Texts names;
        for (const std::size_t place : places)
            names.push_back(folder_ + "/" + session_.files[place].name);
        return names;
    }
    Texts allPaths(const Load_s& load) const {
        Texts names;
        for (const auto* places : {&load.grids, &load.solutions, &load.functions})
            for (const std::string& name : paths(*places))
                names.push_back(name);
        return names;
    }

    bool does(const Load_s& load) {
        host_.setAnswers({}, load.answersOk);
        if (load.road == Road_e::Instructions)
            return host_.importInstructions(instructionsOf(load)).ok;
        if (load.road == Road_e::Selection)
            return host_.importSelection(allPaths(load), false, load.append).ok;
        host_.script().addToScript(host::dialogSteps(actionsOf(load), [](const std::string&) {}));
        const bool isDone = host_.importSelection(allPaths(load), true, false).ok;
        if (host_.script().problem().empty())
            host_.script().clearScript();
        return isDone;
    }
    bool does(const DeleteZones_s& command) {
        host::DataSet* const dataSet = host_.frame().dataSet();
        std::set<std::int64_t> numbers;
        for (const std::int64_t number : command.zones)
            if (dataSet != nullptr && number <= dataSet->zoneCount())
                numbers.insert(number);
        if (!numbers.empty())
            dataSet->deleteZones(numbers);
        return true;
    }
    bool does(const Unload_s&) {
        host_.unloadAll();
        return true;
    }
    bool does(const AllowSharing_s& command) {
        host_.settings().sharingAllowed = command.isAllowed;
        return true;
    }

    Texts instructionsOf(const Load_s& load) const;
    static host::DialogCommand_s actionsOf(const Load_s& load);

    const Session_s& session_;
    host::ReferenceHost& host_ = host::ReferenceHost::instance();
    testsupport::TemporaryDirectory directory_;
    std::string folder_;
    std::unique_ptr<host::AddOnLibrary> library_;
    ExpectedHost_s expected_;
};

const char* yesOrNo(bool isOn) {
    return isOn ? "Yes" : "No";
}

void addFiles(Texts& list, const char* key, const Texts& names) {
    if (names.empty())
        return;
    list.insert(list.end(), {key, std::to_string(names.size())});
    list.insert(list.end(), names.begin(), names.end());
}

const char* styleWord(FileKind_e kind) {
    switch (kind) {
    case FileKind_e::SwiftSolution:
        return "SWIFT";
    case FileKind_e::OverflowSolution:
        return "OVERFLOW";
    case FileKind_e::Function:
        return "PLOT3DFUNCTION";
    default:
        return "PLOT3DCLASSIC";
    }
}

Texts Performance::instructionsOf(const Load_s& load) const {
    Texts list = {"STANDARDSYNTAX", "1.0"};
    addFiles(list, "FILELIST_GRIDFILES", paths(load.grids));
    addFiles(list, "FILELIST_SOLUTIONFILES", paths(load.solutions));
    addFiles(list, "FILELIST_FUNCTIONFILES", paths(load.functions));
    const auto add = [&list](const char* key, const std::string& value) {
        list.insert(list.end(), {key, value});
    };
    bool isTextDouble = false;
    bool hasTextIBlank = false;
    FileKind_e kind = FileKind_e::Grid;
    const FileModel_s* first = nullptr;
    for (const auto* places : {&load.grids, &load.solutions, &load.functions})
        for (const std::size_t place : *places) {
            const FileModel_s& file = session_.files[place];
            isTextDouble |= file.isText() && file.isDouble();
            hasTextIBlank |= file.isText() && file.hasIBlank;
            kind = file.kind;
            first = first == nullptr ? &file : first;
        }
    add("APPEND", yesOrNo(load.append));
    add("ASCIIISDOUBLE", yesOrNo(isTextDouble));
    add("ASCIIHASIBLANK", yesOrNo(hasTextIBlank));
    add("SOLUTIONSSHARESTRUCTURE", yesOrNo(load.sharesStructure));
    add("UNIFORMGRIDSTRUCTURE", yesOrNo(load.isUniform));
    add("ASSIGNSTRANDIDS", yesOrNo(load.assignsStrands));
    add("ADDTOEXISTINGSTRANDS", yesOrNo(load.addsToStrands));
    add("ASSIGNNEWSTRANDIDFOREACHTIMESTEP", yesOrNo(load.newStrandEachStep));
    add("EXTRACTTIMEFROMSOLFILENAMES", yesOrNo(load.timesFromNames));
    add("LOADBOUNDARY", yesOrNo(load.loadsBoundary));
    if (load.isDescribed) {
        static constexpr const char* layouts[] = {"1D", "2D", "3DW", "3DP", "UNSTRUCTURED"};
        add("AUTODETECT", "No");
        add("STYLE", styleWord(kind));
        add("DATASTRUCTURE", layouts[static_cast<int>(first->layout)]);
        add("ISMULTIGRID", yesOrNo(first->isMultiGrid));
    }
    static constexpr const char* keys[] = {"IINDEXRANGE", "JINDEXRANGE", "KINDEXRANGE"};
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (const Range_s& range = load.ranges[axis]; !range.isWhole())
            add(keys[axis], fmt::format("{},{},{}", range.start, range.end, range.skip));
    if (!load.gridSet.empty())
        add("FILEGRIDSET", fmt::format("{}", fmt::join(load.gridSet, ",")));
    return list;
}

// From a dialog as it is at first.
host::DialogCommand_s Performance::actionsOf(const Load_s& load) {
    host::DialogCommand_s command;
    const auto toggle = [&](const char* caption, bool isOn) {
        command.actions.emplace_back(host::ToggleAction_s{caption, isOn});
    };
    const auto type = [&](std::size_t axis, const char* field, std::int32_t value) {
        command.actions.emplace_back(host::TypeAction_s{
            std::to_string(value), fmt::format("{}-Index {}", "IJK"[axis], field)});
    };
    if (load.append)
        toggle("Append to Existing Data Set", true);
    if (!load.isUniform)
        toggle("Uniform Grid Structure", false);
    if (!load.assignsStrands)
        toggle("Assign Strand IDs for Zones", false);
    if (!load.sharesStructure)
        toggle("Assume all Solution/Function Files have the same structure", false);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const Range_s& range = load.ranges[axis];
        if (range.start != 1)
            type(axis, "Start", range.start);
        if (range.skip != 1)
            type(axis, "Skip", range.skip);
        if (range.end != 0)
            type(axis, "End", range.end);
    }
    if (!load.gridSet.empty())
        command.actions.emplace_back(
            host::TypeAction_s{fmt::format("{}", fmt::join(load.gridSet, ",")), "Grid Set"});
    command.actions.emplace_back(host::PressAction_s{"OK", std::nullopt});
    return command;
}

} // namespace

Difference_s play(const Session_s& session, Tally_s& tally) {
    return Performance(session).play(tally);
}

Session_s minimised(const Session_s& session) {
    Session_s smallest = session;
    Tally_s ignored;
    for (std::size_t index = smallest.commands.size(); index-- > 0;) {
        Session_s shorter = smallest;
        shorter.commands.erase(shorter.commands.begin() + static_cast<std::ptrdiff_t>(index));
        const Difference_s difference = play(shorter, ignored);
        const bool isPossible = difference.text.compare(0, impossible.size(), impossible) != 0;
        if (difference.command != 0 && isPossible)
            smallest = shorter;
    }
    return smallest;
}

} // namespace quorvia::sessions
