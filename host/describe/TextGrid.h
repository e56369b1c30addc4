// Rows of cells printed in columns that are as wide as their widest cell.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace quorvia::host {

/// `text` on one line: a tab becomes a blank, other control characters become `?`.
std::string onOneLine(std::string_view text);

class TextGrid {
public:
    enum class Align_e { Left, Right };

    struct Column_s {
        std::string heading;
        Align_e align = Align_e::Left;
    };

    explicit TextGrid(std::vector<Column_s> columns) : columns_(std::move(columns)) {}

    /// One cell for each column; shown as onOneLine() gives it.
    void addRow(const std::vector<std::string>& cells);

    /// Headings, then the rows, indented by two blanks; no blanks at the ends of lines.
    void print(std::ostream& out) const;

private:
    std::vector<std::size_t> widths() const;
    std::string line(const std::vector<std::string>& cells,
                     const std::vector<std::size_t>& widths) const;

    std::vector<Column_s> columns_;
    std::vector<std::vector<std::string>> rows_;
};

} // namespace quorvia::host
