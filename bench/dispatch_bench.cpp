// What late binding adds to a call: AddNZ by member number beside the virtual function itself, and a name looked up
// beside a std::map of the same names.
#include <benchmark/benchmark.h>

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tarq/component/createobject.h"
#include "tarq/frame/membertable.h"
#include "tarq/interfaces/itarqmodel.h"

namespace tarq {
namespace {

Ref<ITARQModel> smallModel() {
    Ref<ITARQModel> model = createObject<ITARQModel>("TARQModel");
    (void)model->AddCol(0, 1, TARQColType::Continuous);
    (void)model->AddRow(0, 1);
    return model;
}

const std::array<Variant, 3> arguments{Variant(1), Variant(1), Variant(2.0)};

void addNzDirectly(benchmark::State& state) {
    const Ref<ITARQModel> model = smallModel();
    for (auto _ : state) benchmark::DoNotOptimize(model->AddNZ(arguments[0], arguments[1], 2.0));
}
BENCHMARK(addNzDirectly);

void addNzByNumber(benchmark::State& state) {
    const Ref<IDispatch> model = smallModel().query<IDispatch>();
    const std::int32_t number = model->GetMemberTable()->find("AddNZ")->id;
    for (auto _ : state) {
        benchmark::DoNotOptimize(model->Invoke(number, invoke::method, {arguments, {}}, nullptr, nullptr));
    }
}
BENCHMARK(addNzByNumber);

std::vector<std::string> memberNames() {
    std::vector<std::string> names;
    for (const MemberInfo& member : ITARQModel::memberTable().members()) names.emplace_back(member.name);
    return names;
}

void nameFound(benchmark::State& state) {
    const Ref<IDispatch> model = smallModel().query<IDispatch>();
    const std::vector<std::string> names = memberNames();
    std::size_t next = 0;
    for (auto _ : state) {
        const std::string_view name = names[next];
        std::int32_t number = 0;
        benchmark::DoNotOptimize(model->GetIDsOfNames({&name, 1}, &number));
        next = next + 1 < names.size() ? next + 1 : 0;
    }
}
BENCHMARK(nameFound);

void nameFoundInMap(benchmark::State& state) {
    const std::vector<std::string> names = memberNames();
    std::map<std::string, std::int32_t, std::less<>> numbers;
    for (const MemberInfo& member : ITARQModel::memberTable().members()) numbers.emplace(member.name, member.id);
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(numbers.find(std::string_view(names[next])));
        next = next + 1 < names.size() ? next + 1 : 0;
    }
}
BENCHMARK(nameFoundInMap);

}  // namespace
}  // namespace tarq
