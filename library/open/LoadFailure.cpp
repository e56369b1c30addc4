#include "open/LoadFailure.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "open/Facts.h"

namespace plot3dlib {

namespace {

using plot3d::Error;
using plot3d::ErrorFacts;
using plot3d::ErrorKind;
using quorvia::host::Message_s;
using quorvia::host::MessageKind_e;

std::string onOneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(),
        [](char character) { return character == '\n' || character == '\r' || character == '\t'; },
        ' ');
    const auto bothBlank = [](char left, char right) { return left == ' ' && right == ' '; };
    text.erase(std::unique(text.begin(), text.end(), bothBlank), text.end());
    text.erase(0, text.find_first_not_of(' '));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

struct Said_s {
    std::string text;
    std::string file; // empty where the message names none
};

/// The add-on's two ways to name a file: a last line "File: <name>", and "The file <name> could not
/// be opened." (also "The Name File").
Said_s split(const std::string& message) {
    constexpr std::string_view lastLine = "\nFile: ";
    if (const auto place = message.rfind(lastLine); place != std::string::npos)
        return {onOneLine(message.substr(0, place)), message.substr(place + lastLine.size())};
    for (const std::string_view begin : {"The file ", "The Name File "})
        for (const std::string_view end :
             {" could not be opened.", " could not be read to its end."})
            if (message.size() > begin.size() + end.size() && message.starts_with(begin) &&
                message.ends_with(end))
                return {"The file" + std::string(end),
                        message.substr(begin.size(), message.size() - begin.size() - end.size())};
    return {onOneLine(message), ""};
}

bool contains(const std::string& text, std::string_view words) {
    return text.find(words) != std::string::npos;
}

ErrorKind kindOf(const std::string& text) {
    if (contains(text, "could not be opened"))
        return ErrorKind::NotFound;
    if (contains(text, "could not be read"))
        return ErrorKind::Unreadable;
    if (contains(text, "ut of memory") || contains(text, "Out of Memory") ||
        contains(text, "memory allocation error"))
        return ErrorKind::NoMemory;
    if (text.starts_with("Auto Detect cannot determine"))
        return ErrorKind::NotPlot3D;
    return ErrorKind::Refused;
}

/// The add-on sends its users to a dialog, which nobody has here.
std::string wordsWithoutDialog(const std::string& text) {
    if (!text.starts_with("Auto Detect cannot determine"))
        return text;
    return contains(text, "solution/function")
               ? "No structure of a solution or function file fits the file."
               : "No structure of a grid file fits the file.";
}

/// What the errors say, each once: the add-on may tell a file twice, and first what failed and then
/// in which file.
std::vector<Said_s> errorsOf(const std::vector<Message_s>& messages) {
    std::vector<Said_s> all;
    for (const Message_s& message : messages) {
        if (message.kind != MessageKind_e::Error)
            continue;
        Said_s said = split(message.text);
        const auto isSame = [&said](const Said_s& other) { return other.text == said.text; };
        if (std::none_of(all.begin(), all.end(), isSame))
            all.push_back(std::move(said));
    }
    return all;
}

Error errorOf(const std::vector<Said_s>& errors) {
    ErrorKind kind = ErrorKind::Refused;
    std::string text;
    std::string file;
    for (const Said_s& said : errors) {
        if (kind == ErrorKind::Refused)
            kind = kindOf(said.text);
        if (file.empty())
            file = said.file;
        text += (text.empty() ? "" : " ") + wordsWithoutDialog(said.text);
    }
    ErrorFacts facts = ofFile(file);
    if (!file.empty() && kind != ErrorKind::NotFound)
        facts.next = commandOf({"plot3d", "info", file});
    return Error(kind, std::move(text), std::move(facts));
}

/// A look at all files of the load, unless these are too many for a line.
std::string lookAtAll(const plot3d::FileLists& files) {
    constexpr std::size_t mostNames = 10;
    std::vector<std::string> words = {"plot3d", "info"};
    for (const auto* list : {&files.grid, &files.solution, &files.function})
        words.insert(words.end(), list->begin(), list->end());
    return words.size() <= mostNames + 2 ? commandOf(words) : "";
}

bool contains(const std::vector<std::string>& files, const std::string& file) {
    return std::find(files.begin(), files.end(), file) != files.end();
}

/// What the load has taken the file for.
plot3d::FileKind kindIn(const plot3d::FileLists& files, const std::string& file) {
    if (contains(files.grid, file))
        return plot3d::FileKind::Grid;
    return contains(files.solution, file) ? plot3d::FileKind::Solution : plot3d::FileKind::Function;
}

} // namespace

Error failureOf(const quorvia::host::LoadResult_s& result, const std::vector<Message_s>& messages) {
    if (result.interrupted)
        return Error(ErrorKind::Interrupted, "The load was stopped.");
    if (!result.hostError.empty())
        return Error(kindOf(result.hostError), onOneLine(result.hostError));
    const std::vector<Said_s> errors = errorsOf(messages);
    if (!errors.empty())
        return errorOf(errors);
    return Error(ErrorKind::Refused, "The load was refused without a reason; its instructions have "
                                     "a word or a value that no load takes.");
}

Error fetchFailureOf(const std::vector<Message_s>& messages) {
    const std::vector<Said_s> errors = errorsOf(messages);
    if (errors.empty())
        return Error(ErrorKind::Unreadable, "The host could not fetch the values.");
    const Error said = errorOf(errors);
    return Error(ErrorKind::Unreadable, said.message(), ofFile(said.facts().file));
}

Error explained(const Error& error, const plot3d::FileLists& files, const plot3d::Watch& watch) {
    if (error.kind() != ErrorKind::NotPlot3D && error.kind() != ErrorKind::Refused)
        return error;
    ErrorFacts facts = error.facts();
    if (facts.file.empty()) {
        facts.next = lookAtAll(files);
        return Error(error.kind(), error.message(), std::move(facts));
    }
    plot3d::InspectOptions options;
    options.as = kindIn(files, facts.file);
    const plot3d::FileInfo info = plot3d::inspect(facts.file, options, watch);
    return info.problem ? Error(error.kind(), info.problem->misfit.what, factsOf(info, files.grid))
                        : error;
}

std::vector<std::string> notesOf(const std::vector<Message_s>& messages) {
    std::vector<std::string> notes;
    for (const Message_s& message : messages) {
        const Said_s said = split(message.text);
        std::string note = said.file.empty() ? said.text : said.file + ": " + said.text;
        if (message.kind == MessageKind_e::Question)
            note += message.answer.value_or(false) ? " (answered: yes)" : " (answered: no)";
        notes.push_back(std::move(note));
    }
    return notes;
}

} // namespace plot3dlib
