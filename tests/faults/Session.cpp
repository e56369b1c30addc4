#include "faults/Session.h"

#include <filesystem>
#include <iterator>
#include <set>
#include <utility>

#include "acceptance/macros/MacroSession.h"
#include "app/macro/DialogSteps.h"
#include "faults/Faults.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {

using namespace plot3dwriter;

namespace {

using Settings = std::vector<std::pair<std::string, std::string>>;

host::ReferenceHost& theHost() {
    return host::ReferenceHost::instance();
}

Settings operator+(Settings settings, const Settings& more) {
    settings.insert(settings.end(), more.begin(), more.end());
    return settings;
}

const Settings appending = {{"APPEND", "Yes"}};
const Settings withStrands = {{"ASSIGNSTRANDIDS", "Yes"}};

Step_s instructed(const std::string& name, const Files_s& files, const Settings& settings = {},
                  Survival_e survival = Survival_e::BeforeOrNothing) {
    const auto composed = load(files, settings)["instructions"].get<Texts>();
    return {name, survival,
            [instructions = composed] { return theHost().importInstructions(instructions); }};
}

Step_s selected(const std::string& name, const Texts& files,
                Survival_e survival = Survival_e::BeforeOrNothing) {
    const bool appends = survival == Survival_e::BeforeAndVariables;
    return {name, survival, [files, appends] {
                constexpr bool advanced = false;
                return theHost().importSelection(files, advanced, appends);
            }};
}

/// A user reads what is shown: behind a message the dialog is cancelled, not worked on blindly.
host::ScriptEntry untilAMessage(host::ScriptEntry entry) {
    const auto* step = std::get_if<host::DialogStep>(&entry);
    if (step == nullptr)
        return entry;
    return host::DialogStep([step = *step, before = messagesShown()](const host::Dialog_s& dialog) {
        const FaultPause pause;
        if (messagesShown() == before)
            return step(dialog);
        return host::DialogMove_s{host::PressDialogButton_s{host::DialogButton_e::Cancel}, "",
                                  false};
    });
}

Step_s atDialog(const std::string& name, const Texts& files,
                const std::vector<host::MacroDialogAction>& actions,
                Survival_e survival = Survival_e::BeforeOrNothing) {
    return {name, survival, [files, actions] {
                std::vector<host::ScriptEntry> script;
                {
                    const FaultPause pause;
                    theHost().script().clearScript();
                    theHost().setAnswers({}, false);
                    for (host::ScriptEntry& entry : host::dialogSteps({actions}, {}))
                        script.push_back(untilAMessage(std::move(entry)));
                    theHost().script().addToScript(std::move(script));
                }
                constexpr bool advanced = true;
                constexpr bool appends = false; // the dialog's toggle says it
                return theHost().importSelection(files, advanced, appends);
            }};
}

/// Not the add-on's work: nothing fails in it.
Step_s deletesZones(const std::set<std::int64_t>& numbers) {
    return {"delete zones", Survival_e::BeforeOrNothing, [numbers] {
                const FaultPause pause;
                theHost().frame().dataSet()->deleteZones(numbers);
                return host::LoadResult_s{.ok = true, .interrupted = false, .hostError = {}};
            }};
}

} // namespace

Sessions::Sessions() {
    addFreshLoads();
    addAppendsAndReplacements();
    addSideFiles();
    addLayouts();
    addSelections();
}

SmallFiles Sessions::filesOf(const std::string& subfolder) const {
    const std::string folder = directory_.file(subfolder);
    std::filesystem::create_directory(folder);
    return SmallFiles(folder);
}

Session_s& Sessions::add(const std::string& name) {
    Session_s& session = all_.emplace_back();
    session.name = name;
    return session;
}

void Sessions::addFreshLoads() {
    const SmallFiles files = filesOf("fresh");
    const Files_s all = {.grids = {files.grid("a.x", true)},
                         .solutions = {files.solution("1.q", 1), files.solution("2.q", 2, 50)},
                         .functions = {files.function("1.f", 2), files.function("2.f", 2, 50)}};
    add("NewLoad").steps = {instructed("load", all, withStrands),
                            instructed("load again", all, withStrands)};

    Session_s& unlike = add("NewLoadAtAPlainHost");
    unlike.sharingAllowed = false;
    unlike.plainArrays = false;
    unlike.steps = {instructed("load", all, Settings{{"IINDEXRANGE", "1,,2"}})};

    const Settings shares = {{"SOLUTIONSSHARESTRUCTURE", "Yes"}};
    add("SharedStructure").steps = {instructed("load", all, withStrands + shares)};

    SmallFiles fortran = filesOf("fortran");
    fortran.form.encoding = Encoding_e::Fortran;
    fortran.form.byteOrder = ByteOrder_e::Big;
    fortran.form.markerBytes = 8;
    fortran.form.precision = Precision_e::Double;
    add("SeveralGridFiles").steps = {
        instructed("load",
                   Files_s{.grids = {fortran.grid("1.x", true), fortran.grid("2.x", true)},
                           .solutions = {fortran.solution("1.q", 1), fortran.solution("2.q", 2)}},
                   withStrands)};

    add("SetsAndRanges").steps = {instructed(
        "load", all,
        Settings{{"FILEGRIDSET", "2"}, {"IINDEXRANGE", "1,,2"}, {"KINDEXRANGE", "2,,1"}})};
}

void Sessions::addAppendsAndReplacements() {
    const SmallFiles files = filesOf("onto");
    const std::string grid = files.grid("a.x");
    const Texts solutions = {files.solution("1.q", 1), files.solution("2.q", 2, 30)};
    const Texts later = {files.solution("3.q", 3, 50), files.solution("4.q", 4, 70)};
    const Texts functions = {files.function("1.f", 2, 50), files.function("2.f", 2, 70)};
    const Step_s start =
        instructed("start", Files_s{.grids = {grid}, .solutions = solutions}, withStrands);

    add("ReplacedSolution").steps = {start, instructed("replace", Files_s{.solutions = later},
                                                       withStrands, Survival_e::SomeReplaced)};
    add("AppendedGrid").steps = {
        start, instructed("append", Files_s{.grids = {grid}, .solutions = later},
                          appending + withStrands, Survival_e::BeforeAndVariables)};
    add("AppendedSolution").steps = {start, instructed("append", Files_s{.solutions = later},
                                                       appending + withStrands,
                                                       Survival_e::BeforeAndVariables)};
    add("AppendedFunctions").steps = {start, instructed("append", Files_s{.functions = functions},
                                                        appending, Survival_e::BeforeAndVariables)};

    SmallFiles lines = filesOf("line");
    lines.layout = Layout_e::OneD;
    lines.grids = {{7, 1, 1}};
    add("AppendedToLoneGrid").steps = {
        instructed("start",
                   {.grids = {lines.grid("a.x")}, .solutions = {lines.solution("0.q", 0)}}),
        instructed("append",
                   Files_s{.solutions = {lines.solution("1.q", 1), lines.solution("2.q", 2)}},
                   appending + withStrands, Survival_e::SomeReplaced)};
}

void Sessions::addSideFiles() {
    const SmallFiles files = filesOf("side");
    const std::string grid = files.grid("a.x", true);
    const Files_s steps = {.grids = {grid},
                           .solutions = {files.solution("1.q", 1), files.solution("2.q", 2)}};
    directory_.write("side/a.x.fvbnd", "FVBND 1 4\nwall\ninflow\nBOUNDARIES\n"
                                       "1 1 1 2 1 3 1 1 F 0\n2 2 3 3 1 5 1 2 F 0\n");
    const Step_s load = instructed("load", steps, withStrands + Settings{{"LOADBOUNDARY", "Yes"}});
    for (const bool deletes : {false, true}) {
        Session_s& boundaries = add(deletes ? "BoundaryZonesDeleted" : "BoundaryFile");
        boundaries.sideFile = SideFile_e::Boundaries;
        boundaries.zonesWithoutBoundaries = 4;
        boundaries.steps = {load};
        if (deletes)
            boundaries.steps.push_back(deletesZones({5, 6}));
    }

    const Files_s named = {.grids = {files.grid("b.x")}, .functions = {files.function("b.f", 2)}};
    const std::string nameFile = directory_.write("side/a.nam", "Pressure\nTemperature\n");
    Session_s& names = add("NameFile");
    names.sideFile = SideFile_e::Names;
    names.steps = {instructed("load", named, {{"FILENAME_NAMEFILE", nameFile}})};
}

void Sessions::addLayouts() {
    SmallFiles text = filesOf("text");
    text.form.encoding = Encoding_e::Text;
    add("Text").steps = {instructed(
        "load", {.grids = {text.grid("a.x", true)}, .solutions = {text.solution("1.q", 1)}})};

    filesOf("surface");
    const SmallFiles surfaces(directory_.file("surface"));
    add("Unstructured").steps = {instructed(
        "load",
        {.grids = {surfaces.surface("a.x")},
         .solutions = {surfaces.surfaceSolution("1.q", 1), surfaces.surfaceSolution("2.q", 2)}})};

    SmallFiles planes = filesOf("planes");
    planes.layout = Layout_e::ThreeDPlanes;
    planes.form.encoding = Encoding_e::Fortran;
    add("Planes").steps = {instructed(
        "load", {.grids = {planes.grid("a.x", true)}, .solutions = {planes.solution("1.q", 1)}})};
}

void Sessions::addSelections() {
    const SmallFiles files = filesOf("selected");
    const Texts first = {files.grid("a.x"), files.solution("a.1.q", 1), files.solution("a.2.q", 2)};
    const Texts later = {files.grid("b.x"), files.solution("b.3.q", 3)};
    add("Selection").steps = {selected("select", first),
                              selected("append", later, Survival_e::BeforeAndVariables)};

    using namespace host;
    Session_s& besideBoundaries = add("DialogBesideBoundaries");
    besideBoundaries.sideFile = SideFile_e::Boundaries;
    besideBoundaries.zonesWithoutBoundaries = 2;
    besideBoundaries.steps = {atDialog("load",
                                       {directory_.file("side/a.x"), directory_.file("side/1.q")},
                                       {PressAction_s{"OK", {}}})};
    add("Dialog").steps = {
        atDialog("load", first, {PressAction_s{"OK", {}}}),
        atDialog("append", later,
                 {ToggleAction_s{"Append to Existing Data Set", true}, PressAction_s{"OK", {}}},
                 Survival_e::BeforeAndVariables)};
    add("DialogByHand").steps = {atDialog(
        "load", {first[0]},
        {ChooseAction_s{{first[1], first[2]}},
         PressAction_s{"Add Files...", FileColumn_e::Solution}, ShowPageAction_s{"File Structure"},
         RadioAction_s{"Manually Describe"}, MenuAction_s{"Plot3D Classic"},
         ToggleAction_s{"Multi-Grid", true}, RadioAction_s{"3-D Whole"},
         ShowPageAction_s{"Data Subset"}, TypeAction_s{"2", "Grid Set"},
         TypeAction_s{"2", "I-Index Skip"}, PressAction_s{"OK", {}}})};
}

std::int64_t messagesShown() {
    return messagesSent() + std::ssize(theHost().log().messages);
}

} // namespace quorvia::testsupport
