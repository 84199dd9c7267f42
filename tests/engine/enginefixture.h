// EngineTest: a model of three columns and two rows, and an engine to run it on.
#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

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
        ColumnRecord column;
        column.name = name;
        column.lowerBound = lower;
        column.upperBound = upper;
        column.cost = cost;
        ASSERT_THAT(store.addColumnRecord(std::move(column)), succeeds());
    }
    void addRow(const char* name, double lower, double upper) {
        RowRecord row;
        row.name = name;
        row.lowerBound = lower;
        row.upperBound = upper;
        ASSERT_THAT(store.addRowRecord(std::move(row)), succeeds());
    }
    void makeInteger() { store.column(1).type = TARQColType::Integer; }

    /// Path of the scripted engine without the operations named.
    static std::string scripted(const std::vector<std::string_view>& missing = {}) {
        return missing.empty() ? SCRIPTED_ENGINE : engineWithout(missing, SCRIPTED_ENGINE);
    }

    /// Chooses a scripted engine and begins its script anew with `text`. Every result value is served as its place in
    /// the table, 1 to 14.
    EngineScript& use(std::string_view text = {}, const std::vector<std::string_view>& missing = {}) {
        unload();
        const std::string path = scripted(missing);
        library_ = dlopen(path.c_str(), RTLD_NOW);
        EXPECT_NE(library_, nullptr) << dlerror();
        script = reinterpret_cast<EngineScript* (*)()>(dlsym(library_, "engineScript"))();
        *script = {};
        for (int slot = 0; slot < resultCount; ++slot) {
            script->parameters[std::string(resultSlots()[static_cast<std::size_t>(slot)].name)] =
                std::to_string(slot + 1);
        }
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

    /// The log with the repeated calls of an operation drawn together: their arguments, or their number beyond three.
    [[nodiscard]] std::string calls() const {
        std::istringstream lines(script->log);
        std::vector<std::pair<std::string, std::vector<std::string>>> groups;
        for (std::string line; std::getline(lines, line);) {
            const std::size_t blank = std::min(line.find(' '), line.size());
            const std::string operation = line.substr(0, blank);
            if (groups.empty() || groups.back().first != operation) groups.push_back({operation, {}});
            groups.back().second.push_back(line.substr(blank));
        }
        std::string text;
        for (const auto& [operation, arguments] : groups) {
            text += operation;
            if (arguments.size() > 3) text += " x" + std::to_string(arguments.size());
            for (const std::string& argument : arguments) text += arguments.size() > 3 ? "" : argument;
            text += '\n';
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
