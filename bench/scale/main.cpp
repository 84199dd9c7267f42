// tarq_scale WAY SIZE: builds and solves the model in one of the ways and tells what each stage took.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

#include "programs.h"

namespace {

struct Way {
    std::string_view name;
    void (*run)(std::size_t size);
};
constexpr Way ways[] = {
    {"tarq", scale::runTarq}, {"highs-rows", scale::runHighsRowByRow}, {"highs-arrays", scale::runHighsArrays}};

}  // namespace

int main(int count, char** arguments) {
    const std::string_view wanted = count == 3 ? arguments[1] : "";
    const int size = count == 3 ? std::atoi(arguments[2]) : 0;
    for (const Way& way : ways) {
        if (way.name != wanted || size < 1) continue;
        try {
            way.run(static_cast<std::size_t>(size));
            return 0;
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "tarq_scale %s: %s\n", arguments[1], failure.what());
            return 1;
        }
    }
    std::fputs("usage: tarq_scale tarq|highs-rows|highs-arrays SIZE\n", stderr);
    return 2;
}
