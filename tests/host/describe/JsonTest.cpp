#include "describe/Json.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "host/describe/OutcomeSamples.h"
#include "support/Json.h"

namespace quorvia::host {
namespace {

using quorvia::testsupport::Json;

Json told(const Outcome_s& outcome) {
    return Json::parse(toJson(outcome));
}

TEST(Json, TopHasTheNamesOfTheSchemaInOrder) {
    const std::vector<std::string> names = {
        "schema",       "ok",   "hostError", "messages",  "progress",   "plotType", "instructions",
        "stateChanges", "undo", "redraws",   "lockDepth", "violations", "dataSet"};
    EXPECT_EQ(names, told(Outcome_s()).names());
    EXPECT_EQ("quorhost.outcome/1", told(Outcome_s())["schema"]);
}

TEST(Json, OutcomeOfNothingIsEmptyAndNotOk) {
    const Json json = told(Outcome_s());
    EXPECT_EQ(false, json["ok"]);
    EXPECT_TRUE(json["hostError"].isNull());
    EXPECT_TRUE(json["dataSet"].isNull());
    EXPECT_EQ("none", json["plotType"]);
    EXPECT_EQ(Json::array(), json["instructions"]);
}

TEST(Json, DataSetZoneAndFieldHaveTheNamesOfTheSchema) {
    const Json dataSet = told(loadedOutcome(1))["dataSet"];
    EXPECT_EQ((std::vector<std::string>{"title", "auxData", "variables", "zones"}),
              dataSet.names());
    EXPECT_EQ((std::vector<std::string>{"number", "name", "type", "i", "j", "k", "strandId",
                                        "solutionTime", "parentZone", "connectivitySharedWith",
                                        "auxData", "connectivity", "fields"}),
              dataSet["zones"][0].names());
    EXPECT_EQ((std::vector<std::string>{"variable", "type", "state", "sharedWith", "count", "min",
                                        "max", "mean", "crc32", "error"}),
              dataSet["zones"][0]["fields"][0].names());
}

TEST(Json, FieldTellsItsNumbers) {
    const Json field = told(loadedOutcome(1))["dataSet"]["zones"][0]["fields"][0];
    EXPECT_EQ(Json::parse(R"({"variable":1,"type":"float32","state":"deferred","sharedWith":0,
                              "count":30,"min":-1.5,"max":2.5,"mean":0.5,"crc32":"00c0ffee",
                              "error":null})"),
              field);
}

TEST(Json, FieldThatWasNotFetchedHasNoStatistics) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->zones[0].fields[0].statistics.reset();
    const Json field = told(outcome)["dataSet"]["zones"][0]["fields"][0];
    EXPECT_EQ(
        (std::vector<std::string>{"variable", "type", "state", "sharedWith", "count", "error"}),
        field.names());
}

TEST(Json, FieldThatCouldNotBeFetchedTellsWhy) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->zones[0].fields[0].error = "The file is gone.";
    EXPECT_EQ("The file is gone.", told(outcome)["dataSet"]["zones"][0]["fields"][0]["error"]);
}

TEST(Json, NonFiniteNumbersAreStrings) {
    Outcome_s outcome = loadedOutcome(1);
    const double infinity = std::numeric_limits<double>::infinity();
    outcome.dataSet->zones[0].solutionTime = std::nan("");
    outcome.dataSet->zones[0].fields[0].statistics = {-infinity, infinity, std::nan(""), 0};
    const Json zone = told(outcome)["dataSet"]["zones"][0];
    EXPECT_EQ("NaN", zone["solutionTime"]);
    EXPECT_EQ("-Infinity", zone["fields"][0]["min"]);
    EXPECT_EQ("Infinity", zone["fields"][0]["max"]);
    EXPECT_EQ("NaN", zone["fields"][0]["mean"]);
}

TEST(Json, NumbersKeepEveryDigit) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->zones[0].solutionTime = 0.1 + 0.2;
    EXPECT_EQ(0.1 + 0.2, told(outcome)["dataSet"]["zones"][0]["solutionTime"].get<double>());
}

TEST(Json, BytesThatAreNoUtf8AreReplaced) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->title = "ca\xF1on";
    outcome.dataSet->auxData = {{"\xFF", "x"}};
    EXPECT_EQ("ca\xEF\xBF\xBDon", told(outcome)["dataSet"]["title"]);
    EXPECT_EQ("x", told(outcome)["dataSet"]["auxData"]["\xEF\xBF\xBD"]);
}

TEST(Json, VariableNamesKeepTrailingBlanks) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->variables[0] = "X  ";
    EXPECT_EQ("X  ", told(outcome)["dataSet"]["variables"][0]);
}

TEST(Json, MessagesTellKindAndAnswer) {
    Outcome_s outcome;
    outcome.messages = {{MessageKind_e::Error, "Bad.", std::nullopt},
                        {MessageKind_e::Information, "Good.", std::nullopt},
                        {MessageKind_e::Question, "Which?", false}};
    EXPECT_EQ(Json::parse(R"([{"kind":"error","text":"Bad.","answer":null},
                              {"kind":"information","text":"Good.","answer":null},
                              {"kind":"question","text":"Which?","answer":false}])"),
              told(outcome)["messages"]);
}

TEST(Json, HostEventsAreTold) {
    Outcome_s outcome;
    outcome.stateChanges = {{3, {1, 2}}};
    outcome.undo = {{UndoKind_e::Begin, 0, std::nullopt}, {UndoKind_e::End, 0, true}};
    const Json json = told(outcome);
    EXPECT_EQ(Json::parse(R"([{"code":3,"members":[1,2]}])"), json["stateChanges"]);
    EXPECT_EQ(Json::parse(R"([{"event":"begin","success":null},{"event":"end","success":true}])"),
              json["undo"]);
}

TEST(Json, ConnectivityTellsElementsAndCorners) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->zones[0].type = QuorZoneType_Tetrahedra;
    outcome.dataSet->zones[0].connectivity = {7, 4, 0x1a};
    const Json zone = told(outcome)["dataSet"]["zones"][0];
    EXPECT_EQ("tetrahedra", zone["type"]);
    EXPECT_EQ(Json::parse(R"({"elements":7,"corners":4,"crc32":"0000001a"})"),
              zone["connectivity"]);
}

/// A dialog with a page that holds a control of each kind that has a value.
Dialog_s sampleDialog() {
    Dialog_s dialog;
    dialog.open = true;
    dialog.tabs.emplace();
    dialog.tabs->pages = {{2, "Files"}, {3, "Options"}};
    dialog.tabs->frontPage = 3;
    const auto add = [&dialog](ControlKind_e kind, const char* caption) -> Control_s& {
        Control_s& control = dialog.controls.emplace_back();
        control.id = 10 + static_cast<std::int32_t>(dialog.controls.size());
        control.parent = 2;
        control.kind = kind;
        control.caption = caption;
        control.geometry = {1, 2, 3, 4};
        return control;
    };
    add(ControlKind_e::Label, "Name:").sensitive = false;
    add(ControlKind_e::Toggle, "Swirl ").value = 1;
    Control_s& menu = add(ControlKind_e::OptionMenu, "");
    menu.items = {"Red", "Green"};
    menu.value = 2;
    add(ControlKind_e::TextField, "").text = "wing";
    Control_s& list = add(ControlKind_e::List, "");
    list.items = {"a", "b"};
    list.selected = {2};
    dialog.focus = list.id;
    return dialog;
}

// ---- The text itself ----------------------------------------------------------------------------

/// What the library makes of the same values.
std::string dumped(const std::string& text) {
    return Json::parse(text).dump(2) + '\n';
}

TEST(Json, TextOfNothingIsTheLibrarysDump) {
    EXPECT_EQ(dumped(toJson(Outcome_s())), toJson(Outcome_s()));
    EXPECT_EQ(dumped(toJson(SessionOutcome_s())), toJson(SessionOutcome_s()));
}

TEST(Json, TextOfAnOutcomeIsTheLibrarysDump) {
    Outcome_s outcome = loadedOutcome(3);
    outcome.hostError = "No.";
    outcome.messages = {{MessageKind_e::Question, "Which?\nThis?", false}};
    outcome.progress.add("Zone 1");
    outcome.progress.add("Zone 2");
    outcome.stateChanges = {{3, {1, 2}}, {0, {}}};
    outcome.undo = {{UndoKind_e::Begin, 0, std::nullopt}, {UndoKind_e::End, 0, true}};
    outcome.dataSet->auxData = {{"Common.Mach", "0.5"}};
    outcome.dataSet->zones[1].fields.clear();
    outcome.dataSet->zones[2].connectivity = {7, 4, 0x1a};
    EXPECT_EQ(dumped(toJson(outcome)), toJson(outcome));
    EXPECT_EQ(Json({"Zone 1", "Zone 2"}), told(outcome)["progress"]);
}

TEST(Json, TextOfOddStringsIsTheLibrarysDump) {
    Outcome_s outcome = loadedOutcome(1);
    std::string all;
    for (int byte = 0; byte < 0x80; ++byte)
        all += static_cast<char>(byte);
    outcome.dataSet->title = all;
    outcome.dataSet->variables = {"\"", "\\", "\x7f", "\u00e9t\u00e9 \u6c34", ""};
    outcome.dataSet->auxData = {{all, "\t"}};
    EXPECT_EQ(dumped(toJson(outcome)), toJson(outcome));
    EXPECT_EQ(all, told(outcome)["dataSet"]["title"]);
}

TEST(Json, TextOfNumbersIsTheLibrarysDump) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.redraws = std::numeric_limits<std::int64_t>::min();
    for (const double number : {0.0, -0.0, 1.0, 0.1 + 0.2, 1e-5, 123456.75, 1e15, 1e16, -1e300,
                                5e-324, 1.7976931348623157e308, 1.0 / 3}) {
        outcome.dataSet->zones[0].solutionTime = number;
        EXPECT_EQ(dumped(toJson(outcome)), toJson(outcome));
        EXPECT_EQ(number, told(outcome)["dataSet"]["zones"][0]["solutionTime"].get<double>());
    }
}

TEST(Json, TextOfManyZonesIsWrittenInPiecesThatFitTogether) {
    const Outcome_s outcome = loadedOutcome(2000);
    EXPECT_EQ(dumped(toJson(outcome)), toJson(outcome));
}

TEST(Json, TextOfASessionIsTheLibrarysDump) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dialog = sampleDialog();
    outcome.helpShown = {"page.html#target"};
    const SessionOutcome_s session = {{{"a", outcome}, {"b", Outcome_s()}}, outcome};
    EXPECT_EQ(dumped(toJson(session)), toJson(session));
}

TEST(Json, TextEndsWithALineEnd) {
    EXPECT_EQ('\n', toJson(Outcome_s()).back());
}

/// An outcome of a session in which no dialog was shown.
Json inSession(const Outcome_s& outcome) {
    Json json = told(outcome);
    json.set("dialog", nullptr);
    json.set("helpShown", Json::array());
    return json;
}

TEST(Json, SessionHoldsEachDescriptionUnderItsNameAndTheEnd) {
    const SessionOutcome_s session = {{{"b", loadedOutcome(2)}, {"a \xff", Outcome_s()}},
                                      loadedOutcome(1)};
    const auto told = Json::parse(toJson(session));
    EXPECT_EQ("quorhost.session/1", told["schema"]);
    EXPECT_EQ("b", told["descriptions"].names().front());
    EXPECT_EQ(inSession(loadedOutcome(2)), told["descriptions"]["b"]);
    EXPECT_TRUE(told["descriptions"]["a \xEF\xBF\xBD"]["dataSet"].isNull());
    EXPECT_EQ(inSession(loadedOutcome(1)), told["final"]);
}

TEST(Json, SessionTellsTheDialogAndTheHelp) {
    Outcome_s outcome;
    outcome.dialog = sampleDialog();
    outcome.helpShown = {"page.html#target"};
    const Json json = Json::parse(toJson(SessionOutcome_s{{}, outcome}))["final"];
    EXPECT_EQ(json["helpShown"], Json({"page.html#target"}));
    const Json& dialog = json["dialog"];
    EXPECT_EQ(dialog["open"], true);
    EXPECT_EQ(dialog["page"], "Options");
    EXPECT_EQ(dialog["controls"][0],
              Json::parse(R"({"page":"Files","kind":"label","caption":"Name:","x":1,"y":2,"w":3,
                              "h":4,"value":null,"items":[],"selected":[],"sensitive":false,
                              "focus":false})"));
    EXPECT_EQ(dialog["controls"][1]["value"], true);
    EXPECT_EQ(dialog["controls"][1]["caption"], "Swirl ");
    EXPECT_EQ(dialog["controls"][2]["kind"], "optionMenu");
    EXPECT_EQ(dialog["controls"][2]["value"], 2);
    EXPECT_EQ(dialog["controls"][3]["value"], "wing");
    EXPECT_EQ(dialog["controls"][4]["selected"], Json({2}));
    EXPECT_EQ(dialog["controls"][4]["focus"], true);
}

} // namespace
} // namespace quorvia::host
