// A program outside the project: a carpenter makes tables and chairs from limited wood and work, for the best profit.
#include <tarq/tarq.h>

#include <cmath>
#include <cstdio>

int main() {
    using namespace tarq;
    const Ref<ITARQModel> model = createObject<ITARQModel>("TARQModel");
    if (!model) return 1;

    double infinity = 0.0;
    bool ok = model->get_INF(&infinity).isOk();
    ok = ok && model->AddCol(0, infinity, TARQColType::Continuous, Variant(70.0), Variant("tables")).isOk();
    ok = ok && model->AddCol(0, infinity, TARQColType::Continuous, Variant(50.0), Variant("chairs")).isOk();
    ok = ok && model->AddRow(-infinity, 240, Variant("wood")).isOk();
    ok = ok && model->AddRow(-infinity, 100, Variant("work")).isOk();
    ok = ok && model->AddNZ(Variant("wood"), Variant("tables"), 4).isOk();
    ok = ok && model->AddNZ(Variant("wood"), Variant("chairs"), 3).isOk();
    ok = ok && model->AddNZ(Variant("work"), Variant("tables"), 2).isOk();
    ok = ok && model->AddNZ(Variant("work"), Variant("chairs"), 1).isOk();
    ok = ok && model->put_Parameter("xminmx", Variant("max")).isOk();
    ok = ok && model->Optimize().isOk();

    double profit = 0.0;
    double tables = 0.0;
    double workPrice = 0.0;
    ok = ok && model->get_LPObjFunctValue(&profit).isOk();
    ok = ok && model->get_ColLPSol(Variant("tables"), &tables).isOk();
    ok = ok && model->get_RowDual(Variant("work"), &workPrice).isOk();
    std::printf("profit %g with %g tables; an hour of work is worth %g\n", profit, tables, workPrice);
    if (!ok && lastError() != nullptr) std::printf("failed: %s\n", lastError()->description.c_str());
    return ok && std::abs(profit - 4100.0) < 1e-6 && std::abs(tables - 30.0) < 1e-6 ? 0 : 1;
}
