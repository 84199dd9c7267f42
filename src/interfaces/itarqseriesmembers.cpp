// The members of series and of their enumerators in published order.
#include "tarq/frame/memberbinding.h"
#include "tarq/interfaces/itarqseries.h"
#include "tarq/interfaces/itarqseriesenum.h"

namespace tarq {
namespace {

constexpr MemberFlags hidden{.hidden = true};
constexpr MemberFlags restricted{.restricted = true};

std::vector<MemberInfo> seriesMembers() {
    return {
        numbered(1, method<&ITARQSeries::Init>("Init", "Sets the sequence; a missing Step is 1 or -1.", "Start", "End",
                                               optional("Step"))),
        numbered(memberid::enumerator,
                 flagged(restricted, get<&ITARQSeries::get__NewEnum>("_NewEnum", "Enumerator over the members."))),
        numbered(memberid::value, returning<ITARQSeries>(get<&ITARQSeries::get_Series>(
                                      "Series", "Sets the sequence and hands back the series itself.", "Start", "End",
                                      optional("Step")))),
        numbered(10, get<&ITARQSeries::get_Count>("Count", "Number of members; 1 before Init.")),
    };
}

std::vector<MemberInfo> enumeratorMembers() {
    return {numbered(1, flagged(hidden, method<&ITARQSeriesEnum::Init>("Init", "For series: sets what is walked.",
                                                                       "Start", "End", "Step")))};
}

}  // namespace

const InterfaceTable& ITARQSeries::memberTable() {
    static const InterfaceTable table("ITARQSeries", id, "An arithmetic sequence of numbers.", seriesMembers());
    return table;
}

const InterfaceTable& ITARQSeriesEnum::memberTable() {
    static const InterfaceTable table("ITARQSeriesEnum", id, "Walks a series.", enumeratorMembers());
    return table;
}

}  // namespace tarq
