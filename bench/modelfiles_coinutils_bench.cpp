// Model files with CoinUtils, whose LP reader had not ended after minutes on a model of this size.
#include <CoinMpsIO.hpp>

#include "modelfilebench.h"

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

[[maybe_unused]] const bool added[]{
    filebench::addReading<CoinMpsFiles>("coinutils/mps", &CoinMpsFiles::readMps, filebench::largeMpsFile),
    filebench::addWriting<CoinMpsFiles>("coinutils/mps", &CoinMpsFiles::writeMps)};

}  // namespace
