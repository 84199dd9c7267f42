// Model files with lp_solve, which has a kind of LP files of its own.
#include <lp_lib.h>

#include <memory>

#include "modelfilebench.h"

namespace {

class LpSolveFiles {
public:
    bool readMps(const std::string& path) { return take(read_MPS(nameOf(path), CRITICAL)); }
    bool readMpsFree(const std::string& path) { return take(read_MPS(nameOf(path), CRITICAL | MPS_FREE)); }
    bool readLp(const std::string& path) { return take(read_LP(nameOf(path), CRITICAL, nameOf(""))); }
    bool writeMps(const std::string& path) { return write_mps(model_.get(), nameOf(path)) != 0; }
    bool writeLp(const std::string& path) { return write_lp(model_.get(), nameOf(path)) != 0; }
    [[nodiscard]] std::int64_t nonzeros() const { return get_nonzeros(model_.get()); }

private:
    /// lp_solve changes no name, it only doesn't say so.
    static char* nameOf(const std::string& path) { return const_cast<char*>(path.c_str()); }
    bool take(lprec* model) {
        model_.reset(model);
        return model != nullptr;
    }

    std::unique_ptr<lprec, void (*)(lprec*)> model_{nullptr, &delete_lp};
};

std::string lpSolveFile() {
    return filebench::fileMadeOnce("large.lpsolve", [](const std::string& path) {
        LpSolveFiles model;
        return model.readMps(filebench::largeMpsFile()) && model.writeLp(path);
    });
}

[[maybe_unused]] const bool added[]{
    filebench::addReading<LpSolveFiles>("lpsolve/mps_fixed", &LpSolveFiles::readMps, filebench::largeMpsFile),
    filebench::addReading<LpSolveFiles>("lpsolve/mps_free", &LpSolveFiles::readMpsFree, filebench::largeMpsFile),
    filebench::addReading<LpSolveFiles>("lpsolve/lp", &LpSolveFiles::readLp, lpSolveFile, 1),  // nearly a minute
    filebench::addWriting<LpSolveFiles>("lpsolve/mps", &LpSolveFiles::writeMps),
    filebench::addWriting<LpSolveFiles>("lpsolve/lp", &LpSolveFiles::writeLp)};

}  // namespace
