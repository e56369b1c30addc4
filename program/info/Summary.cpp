#include "info/Summary.h"

#include <ostream>
#include <string>
#include <vector>

#include "console/Terminal.h"
#include "console/Text.h"
#include "manners/ShellWords.h"

namespace plot3d::program {
namespace {

using console::Colour_e;

/// Lines with a label each, their texts below one another.
class Sheet {
public:
    explicit Sheet(const Surroundings_s& surroundings)
        : out_(surroundings.out), columns_(static_cast<std::size_t>(surroundings.outColumns)),
          paint_({surroundings.colour}) {}

    void title(const std::string& text) {
        out_ << paint_(Colour_e::Bold, console::onOneLine(text)) << '\n';
    }

    void line(const std::string& label, const std::string& text) { line(label, label, text); }

    void line(const std::string& label, Colour_e colour, const std::string& text) {
        line(label, paint_(colour, label), text);
    }

    /// A line for a shell is never broken.
    void command(const std::vector<std::string>& words) {
        if (!words.empty())
            out_ << "  try" << std::string(indent - 5, ' ') << shellLine(words) << '\n';
    }

private:
    static constexpr std::size_t indent = 13;

    void line(const std::string& label, const std::string& painted, const std::string& text) {
        const std::string body = console::wrappedBehind(indent, console::onOneLine(text), columns_);
        const std::size_t taken = 2 + console::widthOf(label);
        out_ << "  " << painted << body.substr(taken) << '\n';
    }

    std::ostream& out_;
    std::size_t columns_;
    console::Paint_s paint_;
};

Colour_e colourOf(analysis::Finding_s::Kind_e kind) {
    return kind == analysis::Finding_s::Kind_e::Warning ? Colour_e::Yellow : Colour_e::Red;
}

} // namespace

void printSummary(const FileInfo& info, analysis::Lists_e lists,
                  const Surroundings_s& surroundings) {
    Sheet sheet(surroundings);
    sheet.title(info.file);
    for (const analysis::Finding_s& finding : analysis::findingsOf(info, lists)) {
        if (finding.kind == analysis::Finding_s::Kind_e::Fact)
            sheet.line(finding.label, finding.text);
        else
            sheet.line(finding.label, colourOf(finding.kind), finding.text);
        sheet.command(finding.next);
    }
}

} // namespace plot3d::program
