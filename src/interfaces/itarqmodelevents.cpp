#include "tarq/interfaces/itarqmodelevents.h"

#include "tarq/frame/memberbinding.h"

namespace tarq {

const InterfaceTable& _ITARQModelEvents::memberTable() {
    static const InterfaceTable table = [] {
        MemberInfo finished;
        finished.id = optimizationFinished;
        finished.name = "OptimizationFinished";
        finished.help = "Event OptimizationFinished";
        return InterfaceTable("_ITARQModelEvents", id, "What a model tells its clients.", {finished});
    }();
    return table;
}

}  // namespace tarq
