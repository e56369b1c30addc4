#include "describe/Table.h"

#include <sstream>

#include <gtest/gtest.h>

#include "host/describe/OutcomeSamples.h"

namespace quorvia::host {
namespace {

std::string table(const Outcome_s& outcome, TableLimits_s limits = {}) {
    std::ostringstream out;
    printTable(outcome, out, limits);
    return out.str();
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(Table, ShowsDataSetVariablesAndZones) {
    Outcome_s outcome = loadedOutcome(2);
    outcome.dataSet->zones[1].strandId = 3;
    outcome.dataSet->zones[1].solutionTime = 0.25;
    outcome.dataSet->zones[1].parentZone = 1;
    EXPECT_EQ("Data set \"Cylinder\": 2 zones, 2 variables, plot type 3D\n"
              "\n"
              "Variables\n"
              "  #  name     type     minimum  maximum\n"
              "  1  X        float32     -1.5      2.5\n"
              "  2  Density  float32        0        7\n"
              "\n"
              "Zones\n"
              "  #  name    type     size       strand  time  parent  fields\n"
              "  1  Zone 1  ordered  2 x 3 x 5       -     0       -  2 deferred\n"
              "  2  Zone 2  ordered  2 x 3 x 5       3  0.25       1  2 deferred\n",
              table(outcome));
}

TEST(Table, SaysThatThereIsNoDataSet) {
    EXPECT_EQ("No data set\n", table(Outcome_s()));
}

TEST(Table, RangeOfAVariableSpansAllZones) {
    Outcome_s outcome = loadedOutcome(2);
    outcome.dataSet->zones[1].fields[1] = fetchedField(2, -11, 1);
    EXPECT_TRUE(contains(table(outcome), "  2  Density  float32      -11        7\n"));
}

TEST(Table, VariableWithoutFetchedValuesHasNoRange) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->zones[0].fields[1].statistics.reset();
    EXPECT_TRUE(contains(table(outcome), "  2  Density  float32        -        -\n"));
}

TEST(Table, SaysHowManyZonesAreLeftOutAndHowToSeeThem) {
    const std::string text = table(loadedOutcome(613), {7});
    EXPECT_TRUE(contains(text, "  7  Zone 7  ordered"));
    EXPECT_FALSE(contains(text, "Zone 8"));
    EXPECT_TRUE(contains(text, "  ... and 606 more zones; --json FILE lists every one\n"));
}

TEST(Table, UnstructuredZoneTellsNodesAndElements) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->zones[0].type = QuorZoneType_Triangles;
    EXPECT_TRUE(contains(table(outcome), "triangles  2 nodes, 3 elements"));
}

TEST(Table, CountsTheStatesOfAZonesFields) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->zones[0].fields[1].sharedWith = 7;
    EXPECT_TRUE(contains(table(outcome), "  1 deferred, 1 shared\n"));
}

TEST(Table, ZonesWithTheSameAuxiliaryDataStandTogether) {
    Outcome_s outcome = loadedOutcome(5);
    for (const std::size_t index : {0U, 1U, 2U, 4U})
        outcome.dataSet->zones[index].auxData = {{"Alpha", "1.5"}, {"Re", "7"}};
    outcome.dataSet->zones[3].auxData = {{"Alpha", "2.5"}};
    outcome.dataSet->auxData = {{"Mach", "0.2"}};
    EXPECT_TRUE(contains(table(outcome), "\nAuxiliary data\n"
                                         "  data set\n"
                                         "    Mach  0.2\n"
                                         "  zones 1-3, 5\n"
                                         "    Alpha  1.5\n"
                                         "    Re     7\n"
                                         "  zone 4\n"
                                         "    Alpha  2.5\n"));
}

TEST(Table, AuxiliaryDataOfManyZonesIsCutShort) {
    Outcome_s outcome = loadedOutcome(613);
    for (ZoneOutcome_s& zone : outcome.dataSet->zones)
        zone.auxData = {{"Time", zone.name}, {"Re", "7"}};
    const std::string text = table(outcome, {6});
    EXPECT_TRUE(contains(text, "  zone 2\n    Time  Zone 2\n    Re    7\n  ... and 611 more "
                               "groups of zones; --json FILE lists every one\n"));
}

TEST(Table, ListsValuesThatCouldNotBeFetched) {
    Outcome_s outcome = loadedOutcome(3);
    outcome.dataSet->zones[1].fields[0].error = "Gone.";
    outcome.dataSet->zones[2].fields[1].error = "Cut short.";
    EXPECT_TRUE(contains(table(outcome), "\nValues that could not be fetched\n"
                                         "  zone 2, variable 1: Gone.\n"
                                         "  zone 3, variable 2: Cut short.\n"));
}

TEST(Table, MessagesOfSeveralLinesStayReadable) {
    Outcome_s outcome;
    outcome.messages = {{MessageKind_e::Question, "Replace?\nFile: a.q", true}};
    EXPECT_EQ("No data set\n"
              "\n"
              "Messages\n"
              "  question:\n"
              "    Replace?\n"
              "    File: a.q\n"
              "    answered: OK or Yes\n",
              table(outcome));
}

TEST(Table, ViolationsStandAtTheEndAndCannotBeOverlooked) {
    Outcome_s outcome;
    outcome.violations = {"QuorUtilSetDealloc: set was given back already"};
    EXPECT_EQ("No data set\n"
              "\n"
              "*** 1 VIOLATION of the host's contract by the add-on ***\n"
              "*** QuorUtilSetDealloc: set was given back already\n",
              table(outcome));
}

TEST(Table, NamesCannotSteerTheTerminal) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->zones[0].name = "\x1b[31mred\nnext";
    EXPECT_TRUE(contains(table(outcome), "  1  ?[31mred?next  ordered"));
}

TEST(Table, ColumnsCountCodePoints) {
    Outcome_s outcome = loadedOutcome(1);
    outcome.dataSet->variables = {"\xCF\x81", "rho"};
    EXPECT_TRUE(contains(table(outcome), "  1  \xCF\x81     float32"));
}

} // namespace
} // namespace quorvia::host
