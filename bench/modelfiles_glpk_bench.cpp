// Model files with GLPK.
#include <glpk.h>

#include <memory>

#include "modelfilebench.h"
#include "peerfiles.h"

namespace {

class GlpkFiles {
public:
    GlpkFiles() : model_(glp_create_prob(), &glp_delete_prob) { glp_term_out(GLP_OFF); }

    bool readMps(const std::string& path) { return readAs(path, GLP_MPS_FILE); }
    bool readMpsFixed(const std::string& path) { return readAs(path, GLP_MPS_DECK); }
    bool readLp(const std::string& path) { return glp_read_lp(model_.get(), nullptr, path.c_str()) == 0; }
    bool writeMps(const std::string& path) {
        return glp_write_mps(model_.get(), GLP_MPS_FILE, nullptr, path.c_str()) == 0;
    }
    bool writeMpsFixed(const std::string& path) {
        return glp_write_mps(model_.get(), GLP_MPS_DECK, nullptr, path.c_str()) == 0;
    }
    bool writeLp(const std::string& path) { return glp_write_lp(model_.get(), nullptr, path.c_str()) == 0; }

    /// Without the row that GLPK makes of the objective when it reads an MPS file.
    [[nodiscard]] std::int64_t nonzeros() const { return glp_get_num_nz(model_.get()) - objectiveRowLength(); }

private:
    bool readAs(const std::string& path, int format) {
        return glp_read_mps(model_.get(), format, nullptr, path.c_str()) == 0;
    }
    [[nodiscard]] int objectiveRowLength() const {
        for (int row = 1; row <= glp_get_num_rows(model_.get()); ++row) {
            if (glp_get_row_type(model_.get(), row) == GLP_FR)
                return glp_get_mat_row(model_.get(), row, nullptr, nullptr);
        }
        return 0;
    }

    std::unique_ptr<glp_prob, void (*)(glp_prob*)> model_;
};

[[maybe_unused]] const bool added[]{
    filebench::addReading<GlpkFiles>("glpk/mps_free", &GlpkFiles::readMps, filebench::largeMpsFile),
    filebench::addReading<GlpkFiles>("glpk/mps_fixed", &GlpkFiles::readMpsFixed, filebench::largeMpsFile),
    filebench::addReading<GlpkFiles>("glpk/lp", &GlpkFiles::readLp, filebench::largeLpFile),
    filebench::addWriting<GlpkFiles>("glpk/mps_free", &GlpkFiles::writeMps),
    filebench::addWriting<GlpkFiles>("glpk/mps_fixed", &GlpkFiles::writeMpsFixed),
    filebench::addWriting<GlpkFiles>("glpk/lp", &GlpkFiles::writeLp)};

}  // namespace
