#include "console/TextGrid.h"

#include <algorithm>
#include <numeric>
#include <ostream>

#include "console/Text.h"

namespace console {
namespace {

constexpr std::size_t gap = 2;        // blanks ahead of each column
constexpr std::size_t leastWidth = 8; // of a column that gives way

std::string padded(const std::string& cell, std::size_t width, TextGrid::Align_e align) {
    const std::string blanks(width - std::min(width, widthOf(cell)), ' ');
    return align == TextGrid::Align_e::Left ? cell + blanks : blanks + cell;
}

} // namespace

void TextGrid::addRow(const std::vector<std::string>& cells) {
    Row row;
    for (const std::string& cell : cells)
        row.push_back(onOneLine(cell));
    rows_.push_back(std::move(row));
}

std::size_t TextGrid::width() const {
    const std::vector<std::size_t> all = widths(0);
    return std::accumulate(all.begin(), all.end(), gap * all.size());
}

/// What is too much for the terminal is taken from the widest column that may give way, and so on.
std::vector<std::size_t> TextGrid::widths(std::size_t columns) const {
    std::vector<std::size_t> result;
    std::size_t total = 0;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        std::size_t widest = widthOf(columns_[column].heading);
        for (const Row& row : rows_)
            widest = std::max(widest, widthOf(row[column]));
        result.push_back(widest);
        total += gap + widest;
    }
    while (columns != 0 && total > columns) {
        std::size_t* widest = nullptr;
        for (std::size_t column = 0; column < columns_.size(); ++column)
            if (columns_[column].fit != Fit_e::Keep && result[column] > leastWidth &&
                (widest == nullptr || result[column] > *widest))
                widest = &result[column];
        if (widest == nullptr)
            break;
        --*widest;
        --total;
    }
    return result;
}

std::string TextGrid::line(const Row& cells, const std::vector<std::size_t>& widths) const {
    std::string result;
    for (std::size_t column = 0; column < columns_.size(); ++column)
        result +=
            std::string(gap, ' ') + padded(cells[column], widths[column], columns_[column].align);
    result.erase(result.find_last_not_of(' ') + 1);
    return result;
}

void TextGrid::printRow(std::ostream& out, const Row& row,
                        const std::vector<std::size_t>& widths) const {
    std::vector<std::vector<std::string>> cells;
    std::size_t lineCount = 1;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        if (columns_[column].fit == Fit_e::Wrap)
            cells.push_back(wrapped(row[column], widths[column]));
        else if (columns_[column].fit == Fit_e::Shorten)
            cells.push_back({shortened(row[column], widths[column])});
        else
            cells.push_back({row[column]});
        lineCount = std::max(lineCount, cells.back().size());
    }
    for (std::size_t number = 0; number < lineCount; ++number) {
        Row part;
        for (const auto& lines : cells)
            part.push_back(number < lines.size() ? lines[number] : std::string());
        out << line(part, widths) << '\n';
    }
}

void TextGrid::print(std::ostream& out, int columns, Paint_s paint) const {
    const std::vector<std::size_t> widest = widths(static_cast<std::size_t>(std::max(columns, 0)));
    Row headings;
    for (const Column_s& column : columns_)
        headings.push_back(column.heading);
    out << paint(Colour_e::Bold, line(headings, widest)) << '\n';
    for (const Row& row : rows_)
        printRow(out, row, widest);
}

} // namespace console
