#include "describe/TextGrid.h"

#include <algorithm>
#include <ostream>

namespace quorvia::host {
namespace {

/// In code points, the way fmt pads.
std::size_t widthOf(const std::string& cell) {
    const auto startsCodePoint = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    };
    return static_cast<std::size_t>(std::count_if(cell.begin(), cell.end(), startsCodePoint));
}

std::string padded(const std::string& cell, std::size_t width, TextGrid::Align_e align) {
    const std::string blanks(width - std::min(width, widthOf(cell)), ' ');
    return align == TextGrid::Align_e::Left ? cell + blanks : blanks + cell;
}

} // namespace

std::string onOneLine(std::string_view text) {
    const auto isControl = [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code < 0x20U || code == 0x7FU;
    };
    std::string result(text);
    std::replace(result.begin(), result.end(), '\t', ' ');
    std::replace_if(result.begin(), result.end(), isControl, '?');
    return result;
}

void TextGrid::addRow(const std::vector<std::string>& cells) {
    std::vector<std::string> row;
    for (const std::string& cell : cells)
        row.push_back(onOneLine(cell));
    rows_.push_back(std::move(row));
}

std::vector<std::size_t> TextGrid::widths() const {
    std::vector<std::size_t> result;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        std::size_t widest = widthOf(columns_[column].heading);
        for (const auto& row : rows_)
            widest = std::max(widest, widthOf(row[column]));
        result.push_back(widest);
    }
    return result;
}

std::string TextGrid::line(const std::vector<std::string>& cells,
                           const std::vector<std::size_t>& widths) const {
    std::string result;
    for (std::size_t column = 0; column < columns_.size(); ++column)
        result += "  " + padded(cells[column], widths[column], columns_[column].align);
    result.erase(result.find_last_not_of(' ') + 1);
    return result;
}

void TextGrid::print(std::ostream& out) const {
    const std::vector<std::size_t> widest = widths();
    std::vector<std::string> headings;
    for (const Column_s& column : columns_)
        headings.push_back(column.heading);
    out << line(headings, widest) << '\n';
    for (const auto& row : rows_)
        out << line(row, widest) << '\n';
}

} // namespace quorvia::host
