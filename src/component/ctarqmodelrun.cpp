// CTARQModel: running the engine and the summary of the latest run.
#include <memory>
#include <mutex>
#include <utility>

#include "component/ctarqmodel.h"

namespace tarq {

RunModel CTARQModel::runModel() {
    return {.store = store_,
            .parameters = parameters_,
            .summary = summary_,
            .binding = binding_,
            .stopRequested = stopRequested_,
            .busy = busy_,
            .finished = [this] { (void)events_.fire(_ITARQModelEvents::optimizationFinished); },
            .presence = RunPresence(store_.gate())};
}

Status CTARQModel::Optimize() {
    return guarded([&] {
        // A sink may drop the last reference but this one.
        const Ref<IUnknown> held(static_cast<ITARQModel*>(this));
        RunModel model = runModel();
        const Status ended = runOptimization(model);
        return model.pendingError.isOk() ? Outcome(ended) : std::move(model.pendingError);
    });
}

Status CTARQModel::OptimizeAsync() {
    return guarded([&] {
        const auto run = std::make_shared<BackgroundRun>(Ref<IUnknown>(static_cast<ITARQModel*>(this)), runModel());
        if (busy_.exchange(true)) return Outcome(status::componentFailure, "Component is busy at the moment.");
        {
            // Before the thread can call a sink that starts the next run.
            const std::lock_guard lock(backgroundMutex_);
            background_ = run;
        }
        if (BackgroundRun::start(run)) return Outcome();
        const std::lock_guard lock(backgroundMutex_);
        background_ = nullptr;  // with its reference to this object
        busy_ = false;
        return Outcome(status::componentFailure, "Failed to create thread.");
    });
}

Status CTARQModel::KillThread() {
    return guarded([&] {
        std::shared_ptr<BackgroundRun> run;
        {
            const std::lock_guard lock(backgroundMutex_);
            run = background_;
        }
        if (busy_ && run && run->kill()) busy_ = false;
        return Outcome();
    });
}

Status CTARQModel::FindConnectionPoint(const Guid& interfaceId, IConnectionPoint** point) {
    if (point == nullptr) return status::nullPointer;
    *point = nullptr;
    if (interfaceId != _ITARQModelEvents::id) return status::noConnection;
    events_.AddRef();
    *point = &events_;
    return status::ok;
}

Status CTARQModel::StopOptimizeAsync() {
    stopRequested_ = true;
    return status::ok;
}

Status CTARQModel::get_IsBusy(std::int32_t* value) {
    return guardedGet(value, [&] { return busy_ ? 1 : 0; });
}

Status CTARQModel::get_TARQDLLVersion(std::string* value) {
    return guardedGet(value, [&] { return binding_.versionText(); });
}

Status CTARQModel::get_LocationOfTARQDLL(std::string* value) {
    return guardedGet(value, [&] { return binding_.location(); });
}

Status CTARQModel::put_LocationOfTARQDLL(const std::string& value) {
    return guarded([&] { return binding_.setLocation(value); });
}

Status CTARQModel::get_LastSolverMessage(std::string* value) {
    return guardedGet(value, [&] { return summary_.lastSolverMessage.get(); });
}

Status CTARQModel::get_SolverStatus(TARQSolverStatusTyp* value) {
    return guardedGet(value, [&] { return readShared(summary_.solverStatus); });
}

Status CTARQModel::get_SolutionStatus(TARQSolutionStatusTyp* value) {
    return guardedGet(value, [&] { return readShared(summary_.solutionStatus); });
}

Status CTARQModel::get_LPObjFunctValue(double* value) {
    return guardedGet(value, [&] { return readShared(summary_.lpObjectiveValue); });
}

Status CTARQModel::get_LPSumInfeas(double* value) {
    return guardedGet(value, [&] { return readShared(summary_.lpSumInfeasibilities); });
}

Status CTARQModel::get_NumberOfLPInfeas(std::int32_t* value) {
    return guardedGet(value, [&] { return readShared(summary_.lpInfeasibilities); });
}

Status CTARQModel::get_NumberOfLPIterations(std::int32_t* value) {
    return guardedGet(value, [&] { return readShared(summary_.lpIterations); });
}

Status CTARQModel::get_IPObjFunctValue(double* value) {
    return guardedGet(value, [&] { return readShared(summary_.ipObjectiveValue); });
}

Status CTARQModel::get_IPObjFunctBestPossible(double* value) {
    return guardedGet(value, [&] { return readShared(summary_.ipBestPossible); });
}

Status CTARQModel::get_NumberOfNodesProcessed(std::int32_t* value) {
    return guardedGet(value, [&] { return readShared(summary_.nodesProcessed); });
}

Status CTARQModel::get_NumberOfIntSolutions(std::int32_t* value) {
    return guardedGet(value, [&] { return readShared(summary_.integerSolutions); });
}

}  // namespace tarq
