#include "frame/convertelement.h"

#include <array>
#include <utility>

namespace tarq {
namespace {

struct ElementRule {
    Kind target;
    bool (Variant::*convert)();
    Variant (*ofMissing)();  ///< null where a missing value is converted like any other
    const char* message;
};

// The misspelling is what clients have always seen.
constexpr std::array rules{
    ElementRule{Kind::Empty, &Variant::normalizeValue, nullptr, "Value cannot be converted to string or numeric."},
    ElementRule{Kind::Long, &Variant::toInteger, [] { return Variant(0); }, "Value cound not be converted to integer."},
    ElementRule{Kind::Double, &Variant::toReal, [] { return Variant(0.0); },
                "Value cound not be converted to numeric."},
    ElementRule{Kind::Text, &Variant::toText, [] { return Variant(""); }, "Value cound not be converted to string."},
};

}  // namespace

bool convertElement(Variant value, Kind target, std::vector<Variant>& list, std::string& message) {
    for (const ElementRule& rule : rules) {
        if (rule.target != target) continue;
        if (rule.ofMissing != nullptr && value.isMissing()) {
            value = rule.ofMissing();
        } else if (!(value.*rule.convert)()) {
            message = rule.message;
            return false;
        }
        break;
    }
    list.push_back(std::move(value));
    return true;
}

}  // namespace tarq
