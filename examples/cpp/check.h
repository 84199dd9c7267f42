// Statuses as exceptions, for programs that have nothing better to do with a failure than to end.
#pragma once

#include <tarq/tarq.h>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

/// Throws what the component has to say when a call has failed. A success with a message, such as a run that ended at a
/// limit, is none.
inline void check(tarq::Status status) {
    if (!status.failed()) return;
    const tarq::ObjectError* error = tarq::lastError();
    throw std::runtime_error(error != nullptr ? error->description : std::string(tarq::status::meaning(status)));
}

inline tarq::Ref<tarq::ITARQModel> newModel() {
    tarq::Ref<tarq::ITARQModel> model = tarq::createObject<tarq::ITARQModel>("TARQModel");
    if (!model) throw std::runtime_error("no model: the component can't create one");
    return model;
}

/// A property's value: valueOf<double>([&](double* value) { return model.get_ColLPSol(Variant("chair"), value); }).
/// Throws also where there is none, such as a value of a solution before the model is solved.
template <class Value, class Get>
Value valueOf(const Get& get) {
    Value value{};
    const tarq::Status status = get(&value);
    check(status);
    if (!status.isOk()) throw std::runtime_error(std::string(tarq::status::meaning(status)));
    return value;
}

/// Runs a program and gives the exit code of main; a failure is told on standard error.
template <class Program>
int exitCode(const Program& program) {
    try {
        program();
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
