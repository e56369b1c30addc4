#include "inspect/ListFiles.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string>
#include <string_view>

#include "inspect/words/Problems.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t fewestWordsOfBoundary = 10;

/// The lines of a file, without their ends.
class Lines {
public:
    explicit Lines(ExaminedFile& file) : stream_(file.stream()) {}

    std::optional<std::string> next() {
        std::string line;
        int character = stream_->readCharacter();
        if (character < 0)
            return std::nullopt;
        start_ = stream_->tell() - 1;
        for (; character >= 0 && character != '\n'; character = stream_->readCharacter())
            line.push_back(static_cast<char>(character));
        if (line.ends_with('\r'))
            line.pop_back();
        ++number_;
        return line;
    }
    std::int64_t number() const { return number_; } // of the last line, from 1
    std::int64_t start() const { return start_; }   // its position in bytes

private:
    std::unique_ptr<io::FileStream> stream_;
    std::int64_t number_ = 0;
    std::int64_t start_ = 0;
};

std::vector<std::string> wordsIn(std::string_view line) {
    std::vector<std::string> words;
    constexpr std::string_view separators = " \t\r\n";
    for (auto begin = line.find_first_not_of(separators); begin != std::string_view::npos;) {
        const auto end = std::min(line.find_first_of(separators, begin), line.size());
        words.emplace_back(line.substr(begin, end - begin));
        begin = line.find_first_not_of(separators, end);
    }
    return words;
}

std::string upperCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

std::string strippedName(const std::string& line) {
    std::string name = line.substr(0, line.find(';'));
    const auto last = name.find_last_not_of(" \t");
    name.resize(last == std::string::npos ? 0 : last + 1);
    return name;
}

void useAll(const ExaminedFile& file, plot3d::FileInfo& info, plot3d::FileKind kind) {
    info.kind = kind;
    info.encoding = plot3d::Encoding::Text;
    info.bytes = {file.size(), file.size(), 0, 0};
    info.ok = true;
}

class BoundaryReader {
public:
    BoundaryReader(ExaminedFile& file, plot3d::FileInfo& info)
        : file_(file), info_(info), lines_(file) {}

    void run() {
        if (!takeVersion() || !takeNames())
            return;
        while (const auto line = lines_.next())
            if (!takeBoundary(wordsIn(*line)))
                return;
    }

private:
    bool takeVersion() {
        const auto words = wordsIn(lines_.next().value_or(""));
        const bool isBoundaryFile = !words.empty() && upperCase(words[0]) == "FVBND";
        const bool isVersion =
            words.size() > 1 && words[1] == "1" && (words.size() == 2 || words[2] == "4");
        if (isBoundaryFile && isVersion)
            return true;
        std::string found;
        for (std::size_t index = 0; index < std::min<std::size_t>(words.size(), 3); ++index)
            found += (index > 0 ? " " : "") + words[index];
        return refuse(isBoundaryFile ? "This version of boundary files is not read."
                                     : "The file does not begin as a boundary file does.",
                      "FVBND 1 4", found,
                      isBoundaryFile ? editCommand("1s/.*/FVBND 1 4/", file_.name())
                                     : std::vector<std::string>{"head", "-n", "3", file_.name()});
    }

    bool takeNames() {
        while (const auto line = lines_.next()) {
            const auto words = wordsIn(*line);
            if (!words.empty() && upperCase(words[0]).starts_with("BOUNDARIES"))
                return true;
            if (words.empty())
                return refuse("A line without a name stands among the names.", "a name",
                              "an empty line", nextLook());
            info_.names.push_back(words[0]);
        }
        return refuse("The line BOUNDARIES is missing.", "BOUNDARIES", "the end of the file",
                      nextLook());
    }

    bool takeBoundary(const std::vector<std::string>& words) {
        if (words.empty())
            return true;
        if (std::ssize(words) < fewestWordsOfBoundary)
            return refuse("A boundary has too few words.", "10 words",
                          counted(std::ssize(words), "word"), nextLook());
        const bool isNumber = std::all_of(words[0].begin(), words[0].end(), ::isdigit);
        const bool isNamed = isNumber && words[0].size() < 10 && std::stol(words[0]) >= 1 &&
                             std::stol(words[0]) <= std::ssize(info_.names);
        return isNamed || refuse("A boundary has no name.",
                                 "a number from 1 to " + grouped(std::ssize(info_.names)), words[0],
                                 nextLook());
    }

    std::vector<std::string> nextLook() const {
        return {"sed", "-n", std::to_string(lines_.number()) + "p", file_.name()};
    }

    bool refuse(std::string what, std::string expected, std::string found,
                std::vector<std::string> next) {
        plot3d::Misfit misfit;
        misfit.what = std::move(what);
        misfit.byte = lines_.start();
        misfit.line = std::max<std::int64_t>(lines_.number(), 1);
        misfit.expected = std::move(expected);
        misfit.found = std::move(found);
        info_.problem = plot3d::FileProblem{std::move(misfit), std::move(next)};
        info_.ok = false;
        return false;
    }

    ExaminedFile& file_;
    plot3d::FileInfo& info_;
    Lines lines_;
};

} // namespace

bool beginsAsBoundaryFile(ExaminedFile& file) {
    const std::string_view head = file.head(64);
    const auto first = head.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos &&
           upperCase(std::string(head.substr(first, 5))) == "FVBND";
}

void inspectNameFile(ExaminedFile& file, plot3d::FileInfo& info) {
    useAll(file, info, plot3d::FileKind::Name);
    Lines lines(file);
    while (const auto line = lines.next())
        info.names.push_back(strippedName(*line));
    while (!info.names.empty() && info.names.back().empty())
        info.names.pop_back(); // blank lines at the end
}

void inspectBoundaryFile(ExaminedFile& file, plot3d::FileInfo& info) {
    useAll(file, info, plot3d::FileKind::Boundary);
    BoundaryReader(file, info).run();
}

} // namespace plot3dlib
