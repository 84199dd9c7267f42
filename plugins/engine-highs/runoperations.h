// RunOperations: the operations of one run: whether their arguments are whole and whether their turn has come.
//
// All of them come from the thread of the run, also the callback during a stage. The C interface in engine.cpp only
// forwards here; StageRunner does the work and RunDelivery tells of it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "modelbuild.h"
#include "parametervalues.h"
#include "rundelivery.h"
#include "runoutputs.h"
#include "stagerunner.h"
#include "tarq/engine.h"

namespace tarq::engine {

/// The results are a TarqResult; a failure leaves a message.
class RunOperations {
public:
    /// `givenUp`, for any thread, tells that the run's thread won't come back.
    explicit RunOperations(std::function<bool()> givenUp = {}) : runner_(parameters_, std::move(givenUp)) {}
    RunOperations(const RunOperations&) = delete;
    RunOperations& operator=(const RunOperations&) = delete;

    /// Whether a stage is under way: then this is its callback, and most operations are refused.
    [[nodiscard]] bool isAtWork() const { return runner_.isAtWork(); }

    /// An empty model and no results. Parameters set before stay.
    std::int32_t start();

    std::int32_t setParameter(std::string_view assignment);
    /// Value of a parameter or result by its name in lower case; nothing when there is no such one.
    [[nodiscard]] std::optional<std::string> parameter(std::string_view name) const;
    void setCallback(TarqCallback callback) { runner_.setCallback(callback); }

    std::int32_t putModel(const ModelArrays& arrays);
    std::int32_t optimizeLp(int iterationFrequency, const LpOutputs& outputs);
    /// Needs an LP stage that ended with an optimum, of a model with integer columns.
    std::int32_t optimizeIp(int nodeFrequency, const IpOutputs& outputs);
    /// The solution of a stage that has ended, whatever its result.
    std::int32_t solution(Stage stage, const SolutionOutputs& outputs);

    /// Keeps `text` as the last message and gives back `result`.
    std::int32_t fail(std::int32_t result, const std::string& text);
    std::int32_t failAtWork() { return fail(TarqGeneralError, "The engine is at work."); }

private:
    ParameterValues parameters_;
    StageRunner runner_;
    RunDelivery delivery_{parameters_};
};

}  // namespace tarq::engine
