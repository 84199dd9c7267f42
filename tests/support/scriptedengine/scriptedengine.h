// What the scripted engine plays and what it has recorded.
//
// A script is a text of entries name=value, separated by blanks; a value with blanks stands in single quotes.
//   OptimizeLP=4           the result of an operation, 0 unless told
//   xline1='It failed.'    what GetParameter serves; any other name is refused
//   lpSolution=3           an output, as listed at EngineScript::outputs
//   wait=listening         what OptimizeLP does until it is told to stop: listening, deaf, spinning
// Tests in the process get the library's script from engineScript(); a process of its own, or a thread of the
// component, takes it from the environment variable PLAYED_RUN when its run begins, which may also hold the name of a
// script: optimal, notanumber, long, deaf, spinning, numeric, nomemory.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "tarq/engine.h"

struct EngineScript {
    std::map<std::string, std::int32_t> results;
    std::map<std::string, std::string> parameters;
    /// By name. Of the stages: iterations, infeasibilities, lpStatus, lpObjective, sum; nodes, integerSolutions,
    /// stopReason, ipObjective, bestPossible. Of the solutions: lpSolution, ipSolution (their status),
    /// lpSolutionObjective, ipSolutionObjective; value k is lpValue or ipValue plus k times step, its reduced cost
    /// starts at lpDual or ipDual, and its basis status is k * step % 5 + 1. Of GetMaxDim: rows, columns, nonzeros.
    std::map<std::string, double> outputs;
    std::map<std::string, std::function<void()>> during;  ///< called within an operation, outputs already written
    std::string wait;

    TarqCallback callback = nullptr;  ///< what SetCallback registered
    std::int32_t entries = 0;         ///< columns and rows of the model taken over
    bool stopped = false;             ///< by XCBSTP=1
    std::string log;                  ///< a line for each call, with its arguments

    /// Adds the entries of a text.
    void play(std::string_view text) {
        while (!text.empty()) {
            const std::size_t equals = text.find('=');
            if (equals == std::string_view::npos) return;
            const std::string name(text.substr(0, equals));
            text.remove_prefix(equals + 1);
            const char end = text.starts_with('\'') ? '\'' : ' ';
            if (end == '\'') text.remove_prefix(1);
            const std::string value(text.substr(0, text.find(end)));
            text.remove_prefix(std::min(text.size(), value.size() + 1));
            text.remove_prefix(std::min(text.size(), text.find_first_not_of(' ')));
            if (name == "wait") {
                wait = value;
            } else if (name.front() == 'x') {
                parameters[name] = value;
            } else if (name.front() >= 'A' && name.front() <= 'Z') {
                results[name] = std::stoi(value);
            } else {
                outputs[name] = std::stod(value);
            }
        }
    }
};
