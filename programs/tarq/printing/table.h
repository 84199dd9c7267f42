// Table: rows of text in aligned columns.
#pragma once

#include <string>
#include <vector>

namespace tarq::command {

enum class Align { Left, Right, Point };  ///< Point: numbers one below the other at their decimal point

class Table {
public:
    struct Column {
        std::string title;
        Align align;
    };

    explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}

    /// Adds a row with one cell for each column.
    void add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

    /// The lines with the titles first, each behind `indent` blanks and none with blanks at its end.
    [[nodiscard]] std::string text(std::size_t indent = 0) const;

private:
    struct Width {
        std::size_t before = 0;  ///< of the part before the decimal point
        std::size_t behind = 0;  ///< of the point and what follows
        std::size_t whole = 0;
    };

    [[nodiscard]] Width widthOf(std::size_t column) const;
    [[nodiscard]] std::string placed(const std::string& cell, Align align, const Width& width) const;

    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace tarq::command
