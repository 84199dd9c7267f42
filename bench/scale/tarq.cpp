#include <tarq/tarq.h>

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

#include "assignment.h"
#include "programs.h"
#include "stages.h"

namespace scale {
namespace {

using tarq::Ref;
using tarq::Variant;

void check(tarq::Status status) {
    if (status.isOk()) return;
    const tarq::ObjectError* error = tarq::lastError();
    throw std::runtime_error(error != nullptr ? error->description : std::string(tarq::status::meaning(status)));
}

template <class Interface>
Ref<Interface> newObject(const char* className) {
    Ref<Interface> object = tarq::createObject<Interface>(className);
    if (!object) throw std::runtime_error(std::string("can't create a ") + className);
    return object;
}

class Assignment {
public:
    explicit Assignment(std::size_t size)
        : size_(static_cast<std::int32_t>(size)),
          model_(newObject<tarq::ITARQModel>("TARQModel")),
          does_(newObject<tarq::ITARQVarSet>("TARQVarSet")),
          person_(newObject<tarq::ITARQResSet>("TARQResSet")),
          task_(newObject<tarq::ITARQResSet>("TARQResSet")) {}

    void createFamilies() {
        check(does_->Init(model_.get(), "does", tarq::ValueList({Variant(size_), Variant(size_)})));
        check(person_->Init(model_.get(), "person", tarq::ValueList({Variant(size_)})));
        check(task_->Init(model_.get(), "task", tarq::ValueList({Variant(size_)})));
    }
    void writeCostsAndBounds(const std::vector<double>& costs) {
        auto next = costs.begin();
        for (std::int32_t person = 1; person <= size_; ++person, next += size_) {
            const Variant row(tarq::SafeArray::of(std::vector<double>(next, next + size_)));
            check(does_->put_Cost(Variant(person), missing_, missing_, missing_, missing_, row));
            check(does_->put_UB(Variant(person), missing_, missing_, missing_, missing_, Variant(1.0)));
        }
        check(person_->SetEQ(Variant(1.0)));
        check(task_->SetEQ(Variant(1.0)));
    }
    void sumRows() {
        for (std::int32_t i = 1; i <= size_; ++i) {
            addSum(*person_, i, Variant(i), missing_);
            addSum(*task_, i, missing_, Variant(i));
        }
    }
    void solve() {
        check(model_->put_LocationOfTARQDLL(ENGINE));
        check(model_->Optimize());
    }
    double engineSeconds() {
        Variant seconds;
        check(model_->get_Parameter("xlptim", &seconds));
        return seconds.real();
    }
    double objective() {
        double value = 0;
        check(model_->get_LPObjFunctValue(&value));
        return value;
    }
    Variant solution() {
        Variant values;
        check(does_->get_LPSol(missing_, missing_, missing_, missing_, missing_, &values));
        return values;
    }

private:
    void addSum(tarq::ITARQResSet& rows, std::int32_t row, const Variant& person, const Variant& task) {
        Ref<tarq::IUnknown> object;
        check(rows.get_ItemByIndex(Variant(row), missing_, missing_, missing_, missing_, &object));
        Ref<tarq::IUnknown> columns;
        check(does_->get_Enum(person, task, missing_, missing_, missing_, &columns));
        check(object.query<tarq::ITARQRes>()->Sum(tarq::ValueList({Variant(columns)})));
    }

    const std::int32_t size_;
    const Variant missing_ = Variant::missing();
    Ref<tarq::ITARQModel> model_;
    Ref<tarq::ITARQVarSet> does_;
    Ref<tarq::ITARQResSet> person_;
    Ref<tarq::ITARQResSet> task_;
};

}  // namespace

void runTarq(std::size_t size) {
    Stages stages;
    const std::vector<double> costs = drawCosts(size);
    stages.end(1);
    Assignment model(size);
    model.createFamilies();
    stages.end(2);
    model.writeCostsAndBounds(costs);
    stages.end(3);
    model.sumRows();
    stages.end(4);
    model.solve();
    stages.end(5);
    const Variant solution = model.solution();
    stages.end(6);
    tellResult(costs, solution.array().elements<double>(), model.engineSeconds(), model.objective());
}

}  // namespace scale
