// Model files with HiGHS, whose kind of file hangs on the extension of its name.
#include "Highs.h"

#include <filesystem>

#include "modelfilebench.h"
#include "peerfiles.h"

namespace {

class HighsFiles {
public:
    HighsFiles() { highs_.setOptionValue("output_flag", false); }

    bool readMps(const std::string& path) { return readAs(path, true); }
    bool readMpsFixed(const std::string& path) { return readAs(path, false); }
    bool readLp(const std::string& path) { return readAs(path, true); }
    bool writeMps(const std::string& path) { return writeAs(path, ".mps"); }
    bool writeLp(const std::string& path) { return writeAs(path, ".lp"); }
    [[nodiscard]] std::int64_t nonzeros() const { return highs_.getLp().a_matrix_.numNz(); }

private:
    bool readAs(const std::string& path, bool isFree) {
        highs_.setOptionValue("mps_parser_type_free", isFree);
        return highs_.readModel(path) != HighsStatus::kError;
    }
    bool writeAs(const std::string& path, const std::string& extension) {
        const std::string named = path + extension;
        if (highs_.writeModel(named) == HighsStatus::kError) return false;
        std::filesystem::rename(named, path);
        return true;
    }

    Highs highs_;
};

[[maybe_unused]] const bool added[]{
    filebench::addReading<HighsFiles>("highs/mps_free", &HighsFiles::readMps, filebench::largeMpsFile),
    filebench::addReading<HighsFiles>("highs/mps_fixed", &HighsFiles::readMpsFixed, filebench::largeMpsFile),
    filebench::addReading<HighsFiles>("highs/lp", &HighsFiles::readLp, filebench::largeLpFile),
    filebench::addWriting<HighsFiles>("highs/mps", &HighsFiles::writeMps),
    filebench::addWriting<HighsFiles>("highs/lp", &HighsFiles::writeLp)};

}  // namespace

namespace filebench {

std::string largeLpFile() {
    return fileMadeOnce("large.lp", [](const std::string& path) {
        HighsFiles model;
        return model.readMps(largeMpsFile()) && model.writeLp(path);
    });
}

}  // namespace filebench
