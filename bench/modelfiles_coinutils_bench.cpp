// Model files with CoinUtils.
#include <CoinLpIO.hpp>
#include <CoinMpsIO.hpp>

#include "modelfilebench.h"
#include "peerfiles.h"

namespace {

class CoinMpsFiles {
public:
    CoinMpsFiles() { model_.messageHandler()->setLogLevel(0); }

    bool readMps(const std::string& path) { return model_.readMps(path.c_str(), "mps") == 0; }
    bool writeMps(const std::string& path) { return model_.writeMps(path.c_str()) == 0; }
    [[nodiscard]] std::int64_t nonzeros() const { return model_.getNumElements(); }

private:
    CoinMpsIO model_;
};

class CoinLpFiles {
public:
    CoinLpFiles() { model_.messageHandler()->setLogLevel(0); }

    bool readLp(const std::string& path) {
        model_.readLp(path.c_str());
        return true;
    }
    [[nodiscard]] std::int64_t nonzeros() const { return model_.getNumElements(); }

private:
    CoinLpIO model_;
};

[[maybe_unused]] const bool added[]{
    filebench::addReading<CoinMpsFiles>("coinutils/mps", &CoinMpsFiles::readMps, filebench::largeMpsFile),
    filebench::addReading<CoinLpFiles>("coinutils/lp", &CoinLpFiles::readLp, filebench::largeLpFile),
    filebench::addWriting<CoinMpsFiles>("coinutils/mps", &CoinMpsFiles::writeMps)};

}  // namespace
