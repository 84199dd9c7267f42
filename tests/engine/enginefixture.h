// EngineTest: a model of three columns and two rows, and an engine to run it on.
#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>

#include "engine/enginelibrary.h"
#include "engine/run.h"
#include "tests/support/enginefile.h"
#include "tests/support/outcomematchers.h"
#include "tests/support/scriptedengine/scriptedengine.h"

namespace tarq {

class EngineTest : public ::testing::Test {
protected:
    EngineTest() {
        addColumn("x", 0.0, 10.0, 1.0);
        addColumn("y", -1e25, 5.0, -2.0);
        addColumn("z", 0.0, 1.0, 0.5);
        addRow("first", -1e25, 8.0);
        addRow("second", 2.0, 2.0);
        store.setNonzero(3, 2, 4.0);
        store.setNonzero(1, 1, 1.0);
        store.setNonzero(3, 1, 2.0);
        store.setNonzero(2, 2, 3.0);
    }
    ~EngineTest() override { unload(); }

    void addColumn(const char* name, double lower, double upper, double cost) {
        ASSERT_THAT(store.addColumnRecord({.name = name, .lowerBound = lower, .upperBound = upper, .cost = cost}),
                    succeeds());
    }
    void addRow(const char* name, double lower, double upper) {
        ASSERT_THAT(store.addRowRecord({.name = name, .lowerBound = lower, .upperBound = upper}), succeeds());
    }
    void makeInteger() { store.column(1).type = TARQColType::Integer; }

    using Names = std::vector<std::string_view>;
    static inline const Names noInitialize{"Initialize"};

    /// Path of the scripted engine without the operations named.
    static std::string scripted(const Names& missing = {}) {
        return missing.empty() ? SCRIPTED_ENGINE : engineWithout(missing, SCRIPTED_ENGINE);
    }

    /// Chooses a scripted engine and begins its script anew with `text`. Every result value is served as its place in
    /// the table, 1 to 14.
    EngineScript& use(std::string_view text = {}, const Names& missing = {}) {
        unload();
        const std::string path = scripted(missing);
        library_ = dlopen(path.c_str(), RTLD_NOW);
        EXPECT_NE(library_, nullptr) << dlerror();
        script = reinterpret_cast<EngineScript* (*)()>(dlsym(library_, "engineScript"))();
        *script = {};
        int place = 0;
        for (const auto& slot : resultSlots()) script->parameters[std::string(slot.name)] = std::to_string(++place);
        script->play(text);
        EXPECT_THAT(binding.setLocation(path), succeeds());
        return *script;
    }

    /// Lets go of the test's own load of the engine.
    void unload() {
        if (library_ != nullptr) dlclose(library_);
        library_ = nullptr;
        script = nullptr;
    }

    Status run() { return run(binding); }
    Status run(EngineBinding& engineBinding) {
        busy = true;
        RunnableModel model{store, parameters, summary, engineBinding, stopRequested, busy, [this] {
                                if (script != nullptr) script->log += busy ? "finished while busy\n" : "finished\n";
                                if (whenFinished) whenFinished();
                            }};
        model.breakPoint = breakPoint;
        const Status ended = runOptimization(model);
        pendingError = model.pendingError;
        return ended;
    }

    void set(const char* parameter, int value) {
        ASSERT_THAT(parameters.setLong(parameterIndex(parameter), value), succeeds());
    }
    [[nodiscard]] int resultOf(std::string_view name) const { return parameters.resultLong(resultIndex(name)); }

    [[nodiscard]] bool wasCalled(std::string_view operation) const {
        return script->log.find(operation) != std::string::npos;
    }

    /// The log, in which calls of one operation after another are only counted.
    [[nodiscard]] std::string calls() const {
        std::string text;
        std::string last;
        std::size_t count = 0;
        std::istringstream lines(script->log);
        for (std::string line; std::getline(lines, line);) {
            const std::string operation = line.substr(0, line.find(' '));
            count = operation == last ? count + 1 : 1;
            if (count > 1) text.erase(text.rfind(operation));
            text += count > 1 ? operation + " x" + std::to_string(count) + "\n" : line + "\n";
            last = operation;
        }
        return text;
    }

    ModelStore store;
    ParameterTable parameters;
    SolutionSummary summary;
    EngineBinding binding;
    std::atomic<bool> stopRequested{false};
    std::atomic<bool> busy{false};
    Outcome pendingError;
    std::function<void()> whenFinished;
    std::function<void(EngineInterface&)> breakPoint;
    EngineScript* script = nullptr;

private:
    void* library_ = nullptr;
};

/// A binder that takes the scripted engine through a class of the test's own.
template <class Engine>
class BindingTo : public EngineBinding {
public:
    Status bindEngine() override {
        bind({}, std::make_shared<Engine>(DynamicLibrary::load(SCRIPTED_ENGINE)));
        return status::ok;
    }
};

}  // namespace tarq
