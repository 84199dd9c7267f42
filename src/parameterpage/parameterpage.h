// ParameterPage: the parameters of a model while a person edits them, apart from how they are shown.
//
// The page works on values of its own. They may be such as the model refuses, or no values at all where a text is no
// number: that is told when they are applied, never before. The model is known by its Parameter property alone.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "parameters/parameterrows.h"
#include "tarq/frame/object.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/itarqmodel.h"
#include "tarq/page.h"

namespace tarq {

/// Something to tell the person, as a message of its own.
struct PageMessage {
    std::string text;
    TARQPageIcon icon = TARQPageWarning;
};

/// A value as the page shows it: a number with a point, a text as it is, nothing for Empty.
[[nodiscard]] std::string pageText(const Variant& value);

class ParameterPage {
public:
    /// Reads the value of every row from the model; what the model doesn't give stays at its default.
    explicit ParameterPage(ITARQModel& model, std::span<const ParameterRow> rows = parameterRows());

    [[nodiscard]] std::span<const ParameterRow> rows() const { return rows_; }
    /// The page's own value of a row of `rows`, 0-based.
    [[nodiscard]] const Variant& value(std::size_t row) const { return values_[row]; }

    /// Takes what a person has made of a row's value. A number is a whole text with a point and without blanks. A name
    /// that no row has is ignored.
    void edit(std::string_view name, std::string_view text);

    /// Writes all rows to the model in their order, whatever was edited, where anything was edited since the last time;
    /// otherwise none. Then tells the model that its parameters are to be saved. A row that can't be set has its
    /// message, doesn't keep the others from being written, and is tried again by the next apply that writes. An
    /// exception leaves what was written before it, and the edits for another apply.
    [[nodiscard]] std::vector<PageMessage> apply();

private:
    [[nodiscard]] std::vector<PageMessage> writeRows();

    Ref<ITARQModel> model_;
    std::span<const ParameterRow> rows_;
    std::vector<Variant> values_;  ///< of the rows' types; Empty where there is none
    bool dirty_ = false;
};

}  // namespace tarq
