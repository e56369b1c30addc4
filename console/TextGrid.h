// Rows of cells printed in columns that are as wide as their widest cell.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

#include "console/Terminal.h"

namespace console {

class TextGrid {
public:
    enum class Align_e { Left, Right };
    /// What a column does where the table is wider than the terminal.
    enum class Fit_e { Keep, Shorten, Wrap };

    struct Column_s {
        std::string heading;
        Align_e align = Align_e::Left;
        Fit_e fit = Fit_e::Keep;
    };

    explicit TextGrid(std::vector<Column_s> columns) : columns_(std::move(columns)) {}

    /// One cell for each column; shown as onOneLine() gives it.
    void addRow(const std::vector<std::string>& cells);
    bool isEmpty() const { return rows_.empty(); }
    /// Of its widest line, where no column gives way.
    std::size_t width() const;

    /// Headings, then the rows, indented by two blanks; no blanks at the ends of lines. `columns`:
    /// width that the table should fit into; 0 for any.
    void print(std::ostream& out, int columns = 0, Paint_s paint = {}) const;

private:
    using Row = std::vector<std::string>;

    std::vector<std::size_t> widths(std::size_t columns) const;
    void printRow(std::ostream& out, const Row& row, const std::vector<std::size_t>& widths) const;
    std::string line(const Row& cells, const std::vector<std::size_t>& widths) const;

    std::vector<Column_s> columns_;
    std::vector<Row> rows_;
};

} // namespace console
