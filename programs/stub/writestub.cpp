#include <fcntl.h>
#include <sys/mman.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

#include "languages/stubprotocol.h"
#include "stub.h"

// Last, as its macros name nearly everything.
#include "amplsolver.h"

namespace tarq::stub {
namespace {

// The states of a basis as AMPL numbers and describes them.
char basisTable[] =
    "0\tnone\tno status assigned\n"
    "1\tbas\tbasic\n"
    "2\tsup\tsuperbasic\n"
    "3\tlow\tnonbasic <= (normally =) lower bound\n"
    "4\tupp\tnonbasic >= (normally =) upper bound\n"
    "5\tequ\tnonbasic at equal lower and upper bounds\n"
    "6\tbtw\tnonbasic between bounds\n";
char basisName[] = "sstatus";

struct Solution {
    std::int32_t code = 0;
    std::int32_t columns = 0;
    std::int32_t rows = 0;
    std::string message;
    std::vector<double> values;
    std::vector<double> duals;
    std::vector<int> columnStates;
    std::vector<int> rowStates;

    [[nodiscard]] bool fits(const ASL& problem) const {
        return problem.i.n_var_ == columns && problem.i.n_con_ == rows;
    }
};

Solution hearSolution() {
    Solution solution;
    solution.code = hearInteger();
    solution.columns = hearInteger();
    solution.rows = hearInteger();
    solution.message = hearText();
    solution.values = hearReals();
    solution.duals = hearReals();
    solution.columnStates = hearIntegers();
    solution.rowStates = hearIntegers();
    return solution;
}

template <class Element>
Element* orNull(std::vector<Element>& values) {
    return values.empty() ? nullptr : values.data();
}

void putStates(ASL* problem, Solution& solution) {
    constexpr int kind = ASL_Sufkind_output | ASL_Sufkind_iodcl;
    std::array<SufDecl, 2> declared{SufDecl{basisName, basisTable, ASL_Sufkind_var | kind, 0},
                                    SufDecl{basisName, basisTable, ASL_Sufkind_con | kind, 0}};
    suf_declare_ASL(problem, declared.data(), static_cast<int>(declared.size()));
    suf_iput_ASL(problem, basisName, ASL_Sufkind_var, solution.columnStates.data());
    suf_iput_ASL(problem, basisName, ASL_Sufkind_con, solution.rowStates.data());
}

bool copyAll(int file, int memory) {
    struct stat about {};
    if (::fstat(memory, &about) != 0) return false;
    off_t copied = 0;
    while (copied < about.st_size) {
        const auto left = static_cast<std::size_t>(about.st_size - copied);
        if (::sendfile(file, memory, &copied, left) <= 0) return false;
    }
    return true;
}

/// Copies a file in memory to `fileName`; false, with nothing left there, when it has no room.
bool copyTo(const std::string& fileName, int memory) {
    constexpr mode_t readAndWrite = 0666;
    const int file = ::open(fileName.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, readAndWrite);
    if (file < 0) return false;
    const bool copied = copyAll(file, memory);
    if (::close(file) == 0 && copied) return true;
    ::unlink(fileName.c_str());
    return false;
}

/// The library doesn't say whether its writes succeeded, so it writes where they do.
bool write(ASL* problem, Solution& solution) {
    const int memory = ::memfd_create("solution", MFD_CLOEXEC);
    const std::string memoryName = "/proc/self/fd/" + std::to_string(memory);
    if (write_solf_ASL(problem, solution.message.c_str(), orNull(solution.values), orNull(solution.duals), nullptr,
                       memoryName.c_str()) != 0) {
        return false;
    }
    const std::string base(problem->i.filename_, problem->i.stub_end_);
    return copyTo(base + ".sol", memory);
}

}  // namespace

bool writeSolution(const std::string& stub, Answer& answer) {
    Solution solution = hearSolution();
    ASL* const problem = ASL_alloc(ASL_read_fg);
    problem->i.return_nofile_ = 1;
    FILE* const file = jac0dim_ASL(problem, stub.c_str(), 0);
    if (file == nullptr || !solution.fits(*problem)) return false;
    if (!solution.columnStates.empty()) putStates(problem, solution);
    problem->p.solve_code_ = solution.code;
    if (!write(problem, solution)) return false;
    answer.integer(farewell);
    answer.flush();
    return true;
}

}  // namespace tarq::stub
