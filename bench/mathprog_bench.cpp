// A model in GNU MathProg through the component, beside GLPK reading and generating it alone.
//
// What is timed is the processor time of this process and of those it has started, as the component has the reading
// done by another one.
#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <glpk.h>
#include <sys/resource.h>

#include <filesystem>
#include <fstream>

#include "tarq/component/createobject.h"
#include "tarq/interfaces/itarqmodel.h"

namespace {

constexpr int siteCount = 300;
constexpr std::int64_t nonzeroCount = 3LL * siteCount * siteCount;

/// A transport model with 90,000 columns; the objective is a row of GLPK's.
const std::string& modelFile() {
    static const std::string path = [] {
        std::string file = std::filesystem::temp_directory_path() / "tarq-bench-transport.mod";
        std::ofstream(file) << fmt::format(
            "param n := {}; set I := 1..n; set J := 1..n; param cost{{i in I, j in J}} := 1 + (i * 7 + j * 13) mod "
            "29;\n"
            "var ship{{I, J}} >= 0, <= 50; minimize total: sum{{i in I, j in J}} cost[i, j] * ship[i, j];\n"
            "s.t. supply{{i in I}}: sum{{j in J}} ship[i, j] <= 900; s.t. demand{{j in J}}: sum{{i in I}} ship[i, j] "
            ">= 700;\n"
            "s.t. lane{{i in I, j in J}}: ship[i, j] <= 40 + i; end;\n",
            siteCount);
        return file;
    }();
    return path;
}

/// Processor seconds so far, with those of programs that have ended.
double processorSeconds() {
    double seconds = 0.0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage used{};
        getrusage(who, &used);
        for (const timeval& time : {used.ru_utime, used.ru_stime}) {
            seconds += static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
        }
    }
    return seconds;
}

void readWithComponent(benchmark::State& state) {
    const auto model = tarq::createObject<tarq::ITARQModel>("TARQModel");
    (void)model->put_LocationOfMathProgDLL(MATHPROG);
    for (auto _ : state) {
        const double start = processorSeconds();
        std::int32_t nonzeros = 0;
        const bool isRead = model->ReadMathProgModel(modelFile(), tarq::Variant::missing()).isOk() &&
                            model->get_NumberOfNZ(&nonzeros).isOk();
        if (!isRead || nonzeros != nonzeroCount) state.SkipWithError("the model was not read in full");
        state.SetIterationTime(processorSeconds() - start);
    }
}

void readWithGlpk(benchmark::State& state) {
    glp_term_out(GLP_OFF);
    for (auto _ : state) {
        const double start = processorSeconds();
        glp_tran* const workspace = glp_mpl_alloc_wksp();
        glp_prob* const problem = glp_create_prob();
        const bool isRead =
            glp_mpl_read_model(workspace, modelFile().c_str(), 0) == 0 && glp_mpl_generate(workspace, nullptr) == 0;
        if (isRead) glp_mpl_build_prob(workspace, problem);
        if (glp_get_num_nz(problem) < nonzeroCount) state.SkipWithError("the model was not read in full");
        glp_mpl_free_wksp(workspace);
        glp_delete_prob(problem);
        state.SetIterationTime(processorSeconds() - start);
    }
}

BENCHMARK(readWithComponent)->Name("mathprog/tarq")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(readWithGlpk)->Name("mathprog/glpk")->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace
