#include "inspect/evidence/Evidence.h"

#include <utility>

#include "inspect/words/Words.h"
#include "instructions/InstructionWords.h"

namespace plot3dlib {

namespace {

plot3d::FileKind kindToLoad(const Evidence_s& evidence) {
    return evidence.reading ? kindOf(*evidence.reading)
                            : evidence.expectedKind.value_or(plot3d::FileKind::Grid);
}

/// A key with its word, as the loader spells it; of a value without one, `unknown`.
template <typename Words, typename Value>
std::string setting(const char* key, const Words& words, Value value, const char* unknown) {
    const char* const word = io::findWord(words, value);
    return std::string(key) + "=" + (word != nullptr ? word : unknown);
}

void addSetting(std::vector<std::string>& command, std::string setting) {
    command.emplace_back("--set");
    command.push_back(std::move(setting));
}

} // namespace

std::vector<std::string> loadCommand(plot3d::FileKind kind, const std::string& file) {
    std::vector<std::string> command = {"plot3d", "stats"};
    if (kind == plot3d::FileKind::Solution || kind == plot3d::FileKind::Function)
        command.insert(command.end(), {"--grid", gridToName});
    command.insert(command.end(), {std::string("--") + wordOf(kind), file});
    return command;
}

std::vector<std::string> loadCommand(const Evidence_s& evidence) {
    std::vector<std::string> command = loadCommand(kindToLoad(evidence), evidence.file.name());
    const bool isText = evidence.form.encoding == io::Plot3DEncoding_Ascii;
    if (isText && evidence.reading && evidence.reading->hasIBlank)
        addSetting(command, "ASCIIHASIBLANK=Yes");
    return command;
}

std::vector<std::string> describedLoadCommand(const Evidence_s& evidence) {
    std::vector<std::string> command = loadCommand(evidence);
    addSetting(command, "AUTODETECT=No");
    addSetting(command, setting("DATASTRUCTURE", io::dataStructureWords,
                                evidence.reading->dataStructure, "3DW"));
    addSetting(command, setting("STYLE", io::styleWords, evidence.reading->style, "PLOT3DCLASSIC"));
    addSetting(command, evidence.reading->isMultiGrid ? "ISMULTIGRID=Yes" : "ISMULTIGRID=No");
    return command;
}

std::vector<std::string> whyCommand(const Evidence_s& evidence) {
    return {"plot3d", "info", "--why", evidence.file.name()};
}

} // namespace plot3dlib
