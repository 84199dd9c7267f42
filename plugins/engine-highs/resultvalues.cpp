#include "resultvalues.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <variant>

namespace tarq::engine {

namespace {

struct ResultRow {
    std::string_view name;
    std::variant<std::int64_t ResultValues::*, double ResultValues::*> field;
};

constexpr std::array resultRows{
    ResultRow{"xnodes", &ResultValues::nodes},         ResultRow{"xipfun", &ResultValues::ipObjective},
    ResultRow{"xcmgap", &ResultValues::gap},           ResultRow{"xctime", &ResultValues::runSeconds},
    ResultRow{"xiptim", &ResultValues::ipSeconds},     ResultRow{"xiter", &ResultValues::iterations},
    ResultRow{"xlpfun", &ResultValues::lpObjective},   ResultRow{"xlptim", &ResultValues::lpSeconds},
    ResultRow{"xzbest", &ResultValues::best},          ResultRow{"xzlbnd", &ResultValues::lowerBound},
    ResultRow{"xzubnd", &ResultValues::upperBound},    ResultRow{"xnints", &ResultValues::integerSolutions},
    ResultRow{"xnif", &ResultValues::infeasibilities}, ResultRow{"xsipti", &ResultValues::branchingAfter},
};

std::string textOf(std::int64_t value) {
    return fmt::format("{}", std::min<std::int64_t>(value, std::numeric_limits<std::int32_t>::max()));
}

std::string textOf(double value) {
    if (std::isnan(value)) return "0";
    return fmt::format("{}", std::clamp(value, -unknownValue, unknownValue));
}

}  // namespace

std::optional<std::string> resultText(const ResultValues& results, std::string_view name) {
    for (const ResultRow& row : resultRows) {
        if (row.name != name) continue;
        return std::visit([&](auto field) { return textOf(results.*field); }, row.field);
    }
    return std::nullopt;
}

}  // namespace tarq::engine
