// What the examples have in common.
#pragma once

#include <tarq/client.h>

#include <cstdio>
#include <exception>

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
