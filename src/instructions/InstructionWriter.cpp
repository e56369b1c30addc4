#include "instructions/InstructionWriter.h"

#include <array>
#include <cstdio>
#include <string>
#include <variant>
#include <vector>

#include "instructions/InstructionWords.h"
#include "instructions/OptionKeys.h"
#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

namespace {

bool append(QuorStringListHandle list, const char* text) {
    return QuorUtilStringListAppendString(list, text);
}

void appendValue(QuorStringListHandle list, const char* key, const char* value) {
    append(list, key);
    append(list, value);
}

bool appendNames(QuorStringListHandle list, const char* key,
                 const std::vector<std::string>& names) {
    if (!append(list, key) ||
        !append(list, integerToText(static_cast<std::int64_t>(names.size())).c_str()))
        return false;
    for (const std::string& name : names)
        if (!append(list, name.c_str()))
            return false;
    return true;
}

/// A start or end of 0 is an empty field, which a reader takes for the default.
std::string formatIndexOrNothing(std::int32_t value) {
    return value != 0 ? integerToText(value) : std::string();
}

/// The members as runs, such as 1-3,7,12-13. Null: no memory.
HostString formatSet(QuorSetHandle set) {
    std::string text;
    std::int64_t previous = 0;
    bool runIsOpen = false;
    for (std::int64_t member = QuorUtilSetGetNextMember(set, 0); member != 0;
         member = QuorUtilSetGetNextMember(set, member)) {
        if (previous == 0) {
            text = integerToText(member);
        } else if (member == previous + 1) {
            runIsOpen = true;
        } else {
            if (runIsOpen)
                appendSetEdge(text, true, previous);
            appendSetEdge(text, false, member);
            runIsOpen = false;
        }
        previous = member;
    }
    if (runIsOpen)
        appendSetEdge(text, true, previous);
    return HostString::copyOf(text);
}

bool isWritten(WrittenWhen_e when, const Plot3DLoadOptions_s& options) {
    const bool rangesApply =
        !options.autoDetect || options.dataStructure != Plot3DDataStructure_Unstructured;
    switch (when) {
    case WrittenWhen_e::Always:
        return true;
    case WrittenWhen_e::NameFileIsUsed:
        return options.hasNameFile;
    case WrittenWhen_e::StructureIsGiven:
        return !options.autoDetect;
    case WrittenWhen_e::RangesApply:
        return rangesApply;
    case WrittenWhen_e::KRangeApplies:
        return rangesApply && options.dataStructure == Plot3DDataStructure_3DWhole;
    }
    return false;
}

/// Writes keys with their values, each form of value in its way.
class OptionWriter {
public:
    OptionWriter(QuorStringListHandle list, const Plot3DLoadOptions_s& options)
        : list_(list), options_(options) {}

    void write(const OptionKey_s& key) {
        if (isWritten(key.writtenWhen, options_))
            std::visit([&](auto member) { writeValue(key.word, options_.*member); }, key.member);
    }

    /// Whether the list holds all files. Other appends are not watched; without all its files a
    /// list would repeat another load.
    bool hasAllFiles() const { return hasAllFiles_; }

private:
    void writeValue(const char* key, bool flag) {
        appendValue(list_, key, flag ? trueWord : falseWord);
    }
    void writeValue(const char* key, const std::vector<std::string>& files) {
        if (!files.empty())
            hasAllFiles_ = hasAllFiles_ && appendNames(list_, key, files);
    }
    void writeValue(const char* key, const std::string& name) {
        appendValue(list_, key, name.c_str());
    }
    void writeValue(const char* key, Plot3DStyle_e style) {
        writeWord(key, findWord(styleWords, style));
    }
    void writeValue(const char* key, Plot3DDataStructure_e dataStructure) {
        writeWord(key, findWord(dataStructureWords, dataStructure));
    }
    void writeValue(const char* key, const Plot3DIndexRange_s& range) {
        appendValue(list_, key, formatIndexRange(range));
    }
    void writeValue(const char* /*key*/, QuorSetHandle set) {
        appendGridSetInstruction(list_, set);
    }

    /// The key alone if the value has no word.
    void writeWord(const char* key, const char* wordOrNull) {
        append(list_, key);
        if (wordOrNull != nullptr)
            append(list_, wordOrNull);
    }

    QuorStringListHandle list_;
    const Plot3DLoadOptions_s& options_;
    bool hasAllFiles_ = true;
};

} // namespace

HostStringList writeLoadInstructions(const Plot3DLoadOptions_s& options) {
    HostStringList list(QuorUtilStringListAlloc());
    if (!list) {
        QuorUtilDialogErrMsg("Out of Memory!!!");
        return list;
    }
    appendValue(list.get(), standardSyntaxWord, standardSyntaxVersion);
    OptionWriter writer(list.get(), options);
    for (const OptionKey_s& key : optionKeys)
        writer.write(key);
    if (!writer.hasAllFiles())
        list.reset();
    return list;
}

const char* formatIndexRange(const Plot3DIndexRange_s& range) {
    static std::array<char, 64> buffer;
    std::snprintf(buffer.data(), buffer.size(), "%s,%s,%s",
                  formatIndexOrNothing(range.start).c_str(),
                  formatIndexOrNothing(range.end).c_str(), integerToText(range.skip).c_str());
    return buffer.data();
}

void appendGridSetInstruction(QuorStringListHandle list, QuorSetHandle set) {
    if (set == nullptr)
        return;
    if (const HostString text = formatSet(set))
        appendValue(list, optionKeyWord(&Plot3DLoadOptions_s::gridSet), text.get());
}

} // namespace quorvia::quorutildataio
