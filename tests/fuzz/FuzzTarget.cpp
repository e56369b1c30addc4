#include <cstdlib>
#include <iostream>
#include <vector>

#include "FuzzInput.h"
#include "addon/AddOnEntry.h"
#include "instructions/InstructionWords.h"
#include "session/ReferenceHost.h"
#include "support/FakeDisk.h"

namespace quorvia::testsupport {
namespace {

using Texts = std::vector<std::string>;

Texts descriptionByHand(int choice) {
    auto takeOneOf = [choice = static_cast<std::size_t>(choice)](auto& words) mutable {
        const std::size_t place = choice % std::size(words);
        choice /= std::size(words);
        return words[place];
    };
    constexpr const char* yesAndNo[] = {"Yes", "No"};
    const char* const structure = takeOneOf(quorutildataio::dataStructureWords).word;
    const char* const style = takeOneOf(quorutildataio::styleWords).word;
    return {"AUTODETECT", "No",  "DATASTRUCTURE", structure,
            "STYLE",      style, "ISMULTIGRID",   takeOneOf(yesAndNo)};
}

Texts settingsOf(int choice) {
    switch (choice) {
    case 0:
        return {};
    case 1:
        return {"IINDEXRANGE", "1,,2", "KINDEXRANGE", "2,2,1"};
    case 2:
        return {"FILEGRIDSET", "2-3", "ASCIIISDOUBLE", "Yes"};
    case 3:
        return {"ASCIIHASIBLANK", "Yes", "SOLUTIONSSHARESTRUCTURE", "Yes"};
    default:
        return descriptionByHand(choice - 4);
    }
}

/// The other file comes twice, so that the later time step takes its road too.
Texts instructionsOf(const FuzzInput_s& input) {
    Texts instructions = {"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", "grid"};
    const int fileChoice = input.fileChoice % 3;
    if (fileChoice == 1)
        instructions.insert(instructions.end(),
                            {"FILELIST_SOLUTIONFILES", "2", "other1", "other2"});
    if (fileChoice == 2)
        instructions.insert(instructions.end(), {"FILELIST_FUNCTIONFILES", "1", "other1"});
    const Texts settings = settingsOf(input.readingChoice % readingChoiceCount);
    instructions.insert(instructions.end(), settings.begin(), settings.end());
    return instructions;
}

host::ReferenceHost& enteredHost() {
    static const bool isEntered = [] {
        InitQuorAddOn113();
        return true;
    }();
    static_cast<void>(isEntered);
    return host::ReferenceHost::instance();
}

void fetchEverything(host::ReferenceHost& host) {
    const host::DataSet* const dataSet = host.frame().dataSet();
    if (dataSet == nullptr)
        return;
    for (std::int32_t zone = 1; zone <= dataSet->zoneCount(); ++zone)
        for (std::int32_t variable = 1; variable <= dataSet->variableCount(); ++variable)
            host.fetch(zone, variable);
}

bool loadAndDiscard(host::ReferenceHost& host, const FuzzInput_s& input) {
    FakeDisk disk;
    disk.put("grid", input.grid);
    disk.put("other1", input.other);
    disk.put("other2", input.other);
    const bool isLoaded = host.importInstructions(instructionsOf(input)).ok;
    fetchEverything(host);
    host.frame().reset();
    return isLoaded;
}

void endOnViolation(host::ReferenceHost& host) {
    host.checkForLeaks();
    for (const std::string& violation : host.log().violations)
        std::cerr << violation << '\n';
    if (!host.log().violations.empty() || host.lockDepth() != 0)
        std::abort();
}

} // namespace

bool loadInput(const FuzzInput_s& input) {
    host::ReferenceHost& host = enteredHost();
    const bool isLoaded = loadAndDiscard(host, input);
    endOnViolation(host);
    host.reset();
    return isLoaded;
}

} // namespace quorvia::testsupport

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quorvia::testsupport::loadInput(quorvia::testsupport::fromBytes(data, size));
    return 0;
}
