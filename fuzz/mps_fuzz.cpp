// Any bytes as an MPS file: a message or a model, and a model whose parts agree.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

#include "modelfiles/modelfile.h"

namespace {

struct Model final : tarq::ModelFileTarget {
    tarq::ModelStore& store() override { return modelStore; }
    void clearModel() override { modelStore.clear(); }
    void setModelName(std::string) override {}
    void setParameter(std::string_view, std::string_view) override {}

    tarq::ModelStore modelStore;
};

void check(bool condition) {
    if (!condition) std::abort();
}

void checkNames(const tarq::ModelStore& store) {
    for (std::int32_t position = 0; position < store.rowCount(); ++position) {
        const tarq::RowRecord& row = store.row(position);
        check(store.findRow(row.name) == position);
        check(row.dual >= 1.0 && row.dual <= 4.0);
    }
    for (std::int32_t position = 0; position < store.columnCount(); ++position) {
        check(store.findColumn(store.column(position).name) == position);
    }
}

void checkNonzeros(const tarq::ModelStore& store) {
    std::int64_t found = 0;
    for (std::int32_t row = 1; row <= store.rowCount(); ++row) {
        for (std::int32_t column = 1; column <= store.columnCount(); ++column) {
            double value = 0.0;
            if (!store.findNonzero(column, row, value)) continue;
            check(value != 0.0);
            ++found;
        }
    }
    check(found == static_cast<std::int64_t>(store.nonzeros().size()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Model model;
    std::string text(data, data + size);
    const tarq::Outcome outcome = tarq::readModelText(std::move(text), tarq::TARQFileFormatType::MPS, model);
    check(outcome.isOk() == outcome.description().empty());
    check(outcome.isOk() || outcome.status() == tarq::status::syntaxError);
    checkNames(model.modelStore);
    checkNonzeros(model.modelStore);
    return 0;
}
