#include "languages/stubmodel.h"

#include <cmath>
#include <optional>
#include <utility>

#include "languages/amplfailures.h"
#include "languages/stubprotocol.h"
#include "model/modelstore.h"
#include "model/nonzeroloader.h"

namespace tarq {
namespace {

// Room for more records is made as they come.
constexpr std::int32_t expectedRecords = 1 << 20;

bool isNonlinear(const stub::Sizes& sizes) {
    return sizes.nonlinearObjectives > 0 || sizes.nonlinearRows > 0 || sizes.nonlinearNetworkRows > 0 ||
           sizes.columnsNonlinearInRows > 0 || sizes.columnsNonlinearInObjectives > 0 || sizes.objectives > 1;
}

bool isPossible(const stub::Sizes& sizes) {
    const auto discrete = std::int64_t{sizes.binaryColumns} + sizes.integerColumns;
    return sizes.columns >= 0 && sizes.rows >= 0 && sizes.binaryColumns >= 0 && sizes.integerColumns >= 0 &&
           discrete <= sizes.columns;
}

/// Reads into a store of its own, so that the old model stands until the answer has come to its end.
class StubModel {
public:
    StubModel(ByteSource source, ModelTarget& target) : answer_(std::move(source)), target_(target) {
        store_.setInfinity(target.store().infinity());
    }

    Outcome receive() {
        if (!readSizes()) return ampl::ioError();
        if (isNonlinear(sizes_)) return ampl::nonlinearModel();
        if (!isPossible(sizes_) || !readVerdict()) return ampl::interfaceFailure();
        if (verdict_ == stub::verdict::nonlinear) return ampl::nonlinearModel();
        if (!readRecords() || (!failure_ && !readEnd())) return ampl::interfaceFailure();

        target_.clearModel();
        store_.loadNonzeros(nonzeros_);
        target_.store().take(std::move(store_));
        if (failure_) return *std::move(failure_);
        target_.setParameter("xminmx", direction_ == 0 ? "min" : "max");
        return {};
    }

private:
    bool readSizes() {
        std::int32_t greeting = 0;
        return answer_.integer(greeting) && greeting == stub::hello && answer_.bytes(&sizes_, sizeof sizes_);
    }

    bool readVerdict() {
        return answer_.integer(verdict_) && answer_.integer(direction_) &&
               (verdict_ == stub::verdict::linear || verdict_ == stub::verdict::nonlinear);
    }

    /// Stops early, with success, at a record that the store doesn't take.
    bool readRecords() {
        store_.reserveColumns(std::min(sizes_.columns, expectedRecords));
        store_.reserveRows(std::min(sizes_.rows, expectedRecords));
        for (std::int32_t j = 0; j < sizes_.columns && !failure_; ++j) {
            if (!readColumn(j)) return false;
        }
        for (std::int32_t i = 0; i < sizes_.rows && !failure_; ++i) {
            if (!readRow()) return false;
        }
        return true;
    }

    bool readEnd() {
        for (std::int32_t row = 1; row <= sizes_.rows; ++row) {
            if (!readCoefficients(row)) return false;
        }
        std::int32_t end = 0;
        return answer_.integer(end) && end == stub::farewell;
    }

    bool readColumn(std::int32_t position) {
        ColumnRecord column;
        if (!readBounds(column) || !readNumber(column.cost)) return false;
        if (sizes_.longestColumnName != 0 && !answer_.text(column.name)) return false;
        column.type = typeOf(position);
        note(store_.addColumnRecord(std::move(column)));
        return true;
    }

    bool readRow() {
        RowRecord row;
        if (!readBounds(row)) return false;
        if (sizes_.longestRowName != 0 && !answer_.text(row.name)) return false;
        note(store_.addRowRecord(std::move(row)));
        return true;
    }

    bool readCoefficients(std::int32_t rowNumber) {
        std::int32_t count = 0;
        if (!answer_.integer(count) || count < 0) return false;
        for (; count > 0; --count) {
            std::int32_t position = 0;
            double value = 0.0;
            if (!answer_.integer(position) || !readNumber(value)) return false;
            if (position < 0 || position >= sizes_.columns) return false;
            nonzeros_.append(position + 1, rowNumber, store_.clampToInfinity(value));
        }
        return true;
    }

    template <class Record>
    bool readBounds(Record& record) {
        if (!readNumber(record.lowerBound) || !readNumber(record.upperBound)) return false;
        record.lowerBound = store_.clampToInfinity(record.lowerBound);
        record.upperBound = store_.clampToInfinity(record.upperBound);
        return true;
    }

    bool readNumber(double& value) { return answer_.real(value) && !std::isnan(value); }

    /// A stub has its continuous columns first, then the binary ones.
    [[nodiscard]] TARQColType typeOf(std::int32_t position) const {
        if (position < sizes_.columns - sizes_.binaryColumns - sizes_.integerColumns) return TARQColType::Continuous;
        return position < sizes_.columns - sizes_.integerColumns ? TARQColType::Binary : TARQColType::Integer;
    }

    void note(Outcome added) {
        if (!added.isOk()) failure_ = std::move(added);
    }

    StubAnswer answer_;
    ModelTarget& target_;
    ModelStore store_;
    NonzeroLoader nonzeros_;
    stub::Sizes sizes_;
    std::int32_t verdict_ = 0;
    std::int32_t direction_ = 0;
    std::optional<Outcome> failure_;
};

}  // namespace

Outcome receiveStubModel(ByteSource source, ModelTarget& target) {
    return StubModel(std::move(source), target).receive();
}

}  // namespace tarq
