#include "modelfiles/columnstatements.h"

#include <algorithm>
#include <utility>

namespace tarq {
namespace {

void change(ColumnRecord& column, ColumnStatement statement, double infinity) {
    switch (statement) {
        case ColumnStatement::Free:
            column.lowerBound = -infinity;
            column.upperBound = infinity;
            break;
        case ColumnStatement::General:
            column.type = TARQColType::Integer;
            break;
        case ColumnStatement::Binary:
            column.lowerBound = 0.0;
            column.upperBound = 1.0;
            column.type = TARQColType::Binary;
            break;
    }
}

}  // namespace

void ColumnStatements::applyToFirst(ColumnStatement statement, std::int32_t count) {
    if (count < 1) return;
    appliedUpTo_.resize(static_cast<std::size_t>(store_.columnCount()));
    std::vector<Mark>& marks = marks_[static_cast<std::size_t>(statement)];
    while (!marks.empty() && marks.back().count <= count) marks.pop_back();
    marks.push_back({count, ++now_});
}

void ColumnStatements::apply(ColumnStatement statement, std::int32_t position) {
    change(column(position), statement, store_.infinity());
}

ColumnStatements::Time ColumnStatements::latest(ColumnStatement statement, std::int32_t position) const {
    const std::vector<Mark>& marks = marks_[static_cast<std::size_t>(statement)];
    const auto behind = std::ranges::partition_point(marks, [&](const Mark& mark) { return mark.count > position; });
    return behind == marks.begin() ? 0 : (behind - 1)->time;
}

ColumnRecord& ColumnStatements::column(std::int32_t position) {
    ColumnRecord& record = store_.column(position);
    if (now_ == 0) return record;
    Time& applied = appliedUpTo_[static_cast<std::size_t>(position)];
    std::array<std::pair<Time, ColumnStatement>, 3> open{
        {{latest(ColumnStatement::Free, position), ColumnStatement::Free},
         {latest(ColumnStatement::General, position), ColumnStatement::General},
         {latest(ColumnStatement::Binary, position), ColumnStatement::Binary}}};
    std::ranges::sort(open);
    for (const auto& [time, statement] : open) {
        if (time > applied) change(record, statement, store_.infinity());
    }
    applied = now_;
    return record;
}

void ColumnStatements::finish() {
    if (now_ == 0) return;
    for (std::int32_t position = 0; position < store_.columnCount(); ++position) (void)column(position);
}

}  // namespace tarq
