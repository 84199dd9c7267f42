#include "run/solutiontable.h"

namespace tarq::command {

SolutionTable::SolutionTable(ITARQModel& model, Side side, SolutionKind kind)
    : model_(model), side_(side), kind_(kind) {
    if (kind == SolutionKind::None) return;
    const Status status = side == Side::Columns ? model.get_NumberOfCols(&size_) : model.get_NumberOfRows(&size_);
    if (!status.isOk()) size_ = 0;
}

SolutionLine SolutionTable::line(std::int32_t number) const {
    SolutionLine line;
    const Variant index(number);
    const bool integer = kind_ == SolutionKind::Integer;
    const auto take = [](Status status, auto& value) {
        if (!status.isOk()) value = {};
    };
    if (side_ == Side::Columns) {
        take(model_.get_ColName(number, &line.name), line.name);
        take(integer ? model_.get_ColIPSol(index, &line.value) : model_.get_ColLPSol(index, &line.value), line.value);
        take(model_.get_ColRedCost(index, &line.dual), line.dual);
        take(model_.get_ColStatus(index, &line.status), line.status);
    } else {
        take(model_.get_RowName(number, &line.name), line.name);
        take(integer ? model_.get_RowIPSol(index, &line.value) : model_.get_RowLPSol(index, &line.value), line.value);
        take(model_.get_RowDual(index, &line.dual), line.dual);
        take(model_.get_RowStatus(index, &line.status), line.status);
    }
    // Adding 0 makes 0 of minus 0, which would look odd in a file.
    line.value += 0.0;
    line.dual += 0.0;
    return line;
}

}  // namespace tarq::command
