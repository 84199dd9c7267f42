#include "printing/table.h"

#include <algorithm>

#include "printing/text.h"

namespace tarq::command {

namespace {

std::size_t lengthBeforePoint(const std::string& number) { return std::min(number.find_first_of(".e"), number.size()); }

std::string blanks(std::size_t count) { return std::string(count, ' '); }

}  // namespace

Table::Width Table::widthOf(std::size_t column) const {
    const bool atPoint = columns_[column].align == Align::Point;
    Width width;
    for (const auto& row : rows_) {
        const std::string& cell = row[column];
        const std::size_t before = atPoint ? lengthBeforePoint(cell) : characterCount(cell);
        width.before = std::max(width.before, before);
        if (atPoint) width.behind = std::max(width.behind, cell.size() - before);
    }
    width.whole = std::max(width.before + width.behind, characterCount(columns_[column].title));
    return width;
}

std::string Table::placed(const std::string& cell, Align align, const Width& width) const {
    const std::size_t free = width.whole - characterCount(cell);
    if (align == Align::Left) return cell + blanks(free);
    if (align == Align::Right) return blanks(free) + cell;
    const std::size_t behind = width.behind - (cell.size() - lengthBeforePoint(cell));
    return blanks(free - behind) + cell + blanks(behind);
}

std::string Table::text(std::size_t indent) const {
    std::vector<Width> widths(columns_.size());
    for (std::size_t column = 0; column < columns_.size(); ++column) widths[column] = widthOf(column);

    std::string result;
    const auto addLine = [&](const auto& cellOf) {
        std::string line;
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            line += blanks(column == 0 ? indent : 2) + cellOf(column);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        result += line + '\n';
    };
    addLine([&](std::size_t column) {
        const Align align = columns_[column].align == Align::Left ? Align::Left : Align::Right;
        return placed(columns_[column].title, align, widths[column]);
    });
    for (const auto& row : rows_) {
        addLine([&](std::size_t column) { return placed(row[column], columns_[column].align, widths[column]); });
    }
    return result;
}

}  // namespace tarq::command
