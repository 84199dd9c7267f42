// This component's own readers and writers of model files.
#include <string>
#include <string_view>

#include "modelfilebench.h"
#include "modelfiles/modelfile.h"
#include "modelfiles/modelwriter.h"

namespace {

using tarq::TARQFileFormatType;

class Tarq final : tarq::ModelFileTarget {
public:
    bool readMps(const std::string& path) { return read(path, TARQFileFormatType::MPS); }
    bool readTriplet(const std::string& path) { return read(path, TARQFileFormatType::Triplet); }
    bool readLindo(const std::string& path) { return read(path, TARQFileFormatType::Lindo); }
    bool writeMps(const std::string& path) { return write(path, TARQFileFormatType::MPS); }
    bool writeTriplet(const std::string& path) { return write(path, TARQFileFormatType::Triplet); }
    bool writeLindo(const std::string& path) { return write(path, TARQFileFormatType::Lindo); }
    bool writeListing(const std::string& path) {
        const tarq::ModelCutout whole{1, store_.rowCount(), 1, store_.columnCount()};
        return tarq::writeModelListing(path, written(), whole).isOk();
    }
    [[nodiscard]] std::int64_t nonzeros() const { return store_.nonzeros().size(); }

private:
    tarq::ModelStore& store() override { return store_; }
    void clearModel() override { store_.clear(); }
    void setModelName(std::string) override {}
    void setParameter(std::string_view, std::string_view) override {}

    bool read(const std::string& path, TARQFileFormatType format) {
        return tarq::readModelFile(path, format, *this).isOk();
    }
    bool write(const std::string& path, TARQFileFormatType format) {
        return tarq::writeModelFile(path, format, written()).isOk();
    }
    [[nodiscard]] tarq::WrittenModel written() const { return {store_, parameters_, "LARGE"}; }

    tarq::ModelStore store_;
    tarq::ParameterTable parameters_;
};

std::string written(const std::string& name, filebench::FileCall<Tarq> write) {
    return filebench::fileMadeOnce(name, [write](const std::string& path) {
        Tarq model;
        return model.readMps(filebench::largeMpsFile()) && (model.*write)(path);
    });
}

[[maybe_unused]] const bool added[]{
    filebench::addReading<Tarq>("tarq/mps", &Tarq::readMps, filebench::largeMpsFile),
    filebench::addReading<Tarq>("tarq/triplet", &Tarq::readTriplet,
                                [] { return written("large.triplet", &Tarq::writeTriplet); }),
    filebench::addReading<Tarq>("tarq/lindo", &Tarq::readLindo,
                                [] { return written("large.lindo", &Tarq::writeLindo); }),
    filebench::addWriting<Tarq>("tarq/mps", &Tarq::writeMps),
    filebench::addWriting<Tarq>("tarq/triplet", &Tarq::writeTriplet),
    filebench::addWriting<Tarq>("tarq/lindo", &Tarq::writeLindo),
    filebench::addWriting<Tarq>("tarq/listing", &Tarq::writeListing)};

}  // namespace
