// Any bytes as a stub program's answer: a model as it was told, or a message and the old model.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "languages/stubmodel.h"
#include "languages/stubprotocol.h"
#include "target.h"

namespace {

using tarq::fuzzing::check;

class Model final : public tarq::ModelTarget {
public:
    Model() { check(store_.addColumnRecord({.name = "old"}).isOk(), "a column can be added"); }
    tarq::ModelStore& store() override { return store_; }
    void clearModel() override { store_.clear(); }
    void setModelName(std::string /*name*/) override {}
    void setParameter(std::string_view name, std::string_view value) override {
        check(name == "xminmx" && (value == "min" || value == "max"), "the direction is the only parameter");
    }
    [[nodiscard]] bool isOld() const { return store_.columnCount() == 1 && store_.findColumn("old") == 0; }

private:
    tarq::ModelStore store_;
};

constexpr std::size_t headerLength = sizeof(tarq::stub::hello) + sizeof(tarq::stub::Sizes);

tarq::stub::Sizes sizesIn(const std::uint8_t* data) {
    tarq::stub::Sizes sizes;
    std::memcpy(&sizes, data + sizeof(tarq::stub::hello), sizeof sizes);
    return sizes;
}

bool hasSizes(const std::uint8_t* data, std::size_t size) {
    return size >= headerLength && std::memcmp(data, &tarq::stub::hello, sizeof(tarq::stub::hello)) == 0;
}

void checkBounds(double lower, double upper, double infinity) {
    check(lower >= -infinity && lower <= infinity && upper >= -infinity && upper <= infinity, "bounds are clamped");
}

void checkModel(const tarq::ModelStore& store, const tarq::stub::Sizes& sizes) {
    check(store.columnCount() == sizes.columns && store.rowCount() == sizes.rows, "the sizes are those that were told");
    for (std::int32_t j = 0; j < store.columnCount(); ++j) {
        const tarq::ColumnRecord& column = store.column(j);
        checkBounds(column.lowerBound, column.upperBound, store.infinity());
        check(column.name.empty() || store.findColumn(column.name) == j, "a column is found by its name");
    }
    for (std::int32_t i = 0; i < store.rowCount(); ++i) {
        checkBounds(store.row(i).lowerBound, store.row(i).upperBound, store.infinity());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The size of the pieces must not matter, so it comes from the bytes too.
    const std::size_t largestPiece = size > 0 ? 1 + data[size - 1] : 1;
    std::size_t next = 0;
    const auto source = [&](char* buffer, std::size_t length) {
        const std::size_t piece = std::min({length, largestPiece, size - next});
        if (piece > 0) std::memcpy(buffer, data + next, piece);
        next += piece;
        return piece;
    };
    Model model;
    const tarq::Outcome outcome = tarq::receiveStubModel(source, model);
    check(outcome.isOk() == outcome.description().empty(), "a failure has a message, a success none");
    using namespace tarq::status;
    check((outcome.status() == temporaryFile) == !hasSizes(data, size), "an answer without sizes is told apart");
    if (outcome.isOk()) {
        checkModel(model.store(), sizesIn(data));
    } else if (outcome.status() != badColumnName && outcome.status() != badRowName) {
        check(model.isOld(), "a failure leaves the old model");
    }
    return 0;
}
