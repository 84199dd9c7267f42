#include "languages/mathprogimport.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <utility>
#include <vector>

#include "frame/result.h"
#include "languages/amplfailures.h"
#include "parameters/inputfile.h"
#include "platform/dynamiclibrary.h"
#include "platform/temporaryfile.h"
#include "platform/wholefile.h"
#include "tarq/interfaces/failuretexts.h"

namespace tarq {
namespace {

/// Held by whoever uses a library. The same thread may come twice: what a library does in its operations is its own.
std::recursive_mutex& libraryInUse() {
    static std::recursive_mutex mutex;
    return mutex;
}

/// A text in a buffer as long as libraries may count on.
class TextBuffer {
public:
    explicit TextBuffer(const std::string& text) : text_(text) { text_.resize(std::max(text.size(), shortestBuffer)); }
    [[nodiscard]] const char* get() const { return text_.c_str(); }

private:
    static constexpr std::size_t shortestBuffer = 255;
    std::string text_;
};

std::string textOrEmpty(const char* text) { return text != nullptr ? text : ""; }

/// The bounds that a column's or row's type tells of; the others are the model's infinity.
struct Bounds {
    double lower;
    double upper;
};

template <class AskLower, class AskUpper>
Bounds boundsOf(std::int32_t type, double infinity, AskLower askLower, AskUpper askUpper) {
    const bool both = type == MP_TYPE_DOUBLE || type == MP_TYPE_FIXED;
    return {both || type == MP_TYPE_LOWER ? askLower() : -infinity,
            both || type == MP_TYPE_UPPER ? askUpper() : infinity};
}

/// Copies the problem that a library has generated into an empty store.
class ProblemCopy {
public:
    ProblemCopy(const MathProgLibrary& library, ModelStore& store)
        : library_(library),
          store_(store),
          rowCount_(library.slot<"mp_get_num_rows">()()),
          columnCount_(library.slot<"mp_get_num_cols">()()) {}

    Outcome addColumns();
    Outcome addRows();
    void addNonzeros();

private:
    [[nodiscard]] TARQColType columnType(bool isLp, std::int32_t number, const Bounds& bounds) const;

    const MathProgLibrary& library_;
    ModelStore& store_;
    std::int32_t rowCount_;
    std::int32_t columnCount_;
    std::int32_t objectiveRow_ = 0;  ///< number in the library; 0 where no row is free
};

TARQColType ProblemCopy::columnType(bool isLp, std::int32_t number, const Bounds& bounds) const {
    if (isLp || library_.slot<"mp_get_col_kind">()(number) == MP_KIND_CONTINUOUS) return TARQColType::Continuous;
    return bounds.lower == 0.0 && bounds.upper == 1.0 ? TARQColType::Binary : TARQColType::Integer;
}

Outcome ProblemCopy::addColumns() {
    const bool isLp = library_.slot<"mp_get_class">()() == MP_CLASS_LP;
    for (std::int32_t position = 0; position < columnCount_; ++position) {
        const std::int32_t number = position + 1;
        const Bounds bounds = boundsOf(
            library_.slot<"mp_get_col_type">()(number), store_.infinity(),
            [&] { return library_.slot<"mp_get_col_lb">()(number); },
            [&] { return library_.slot<"mp_get_col_ub">()(number); });
        ColumnRecord column;
        column.name = textOrEmpty(library_.slot<"mp_get_col_name">()(number));
        column.lowerBound = bounds.lower;
        column.upperBound = bounds.upper;
        column.cost = library_.slot<"mp_get_obj_coef">()(number);
        column.type = columnType(isLp, number, bounds);
        TARQ_TRY(store_.addColumnRecord(std::move(column)));
    }
    return {};
}

Outcome ProblemCopy::addRows() {
    for (std::int32_t position = 0; position < rowCount_; ++position) {
        const std::int32_t number = position + 1;
        const std::int32_t type = library_.slot<"mp_get_row_type">()(number);
        if (type == MP_TYPE_FREE && objectiveRow_ == 0) {
            objectiveRow_ = number;
            continue;
        }
        const Bounds bounds = boundsOf(
            type, store_.infinity(), [&] { return library_.slot<"mp_get_row_lb">()(number); },
            [&] { return library_.slot<"mp_get_row_ub">()(number); });
        RowRecord row;
        row.name = textOrEmpty(library_.slot<"mp_get_row_name">()(number));
        row.lowerBound = bounds.lower;
        row.upperBound = bounds.upper;
        TARQ_TRY(store_.addRowRecord(std::move(row)));
    }
    return {};
}

void ProblemCopy::addNonzeros() {
    const std::size_t length = static_cast<std::size_t>(std::max(columnCount_, 0)) + 1;
    std::vector<std::int32_t> columns(length);
    std::vector<double> values(length);
    NonzeroLoader nonzeros;
    for (std::int32_t position = 0; position < rowCount_; ++position) {
        const std::int32_t number = position + 1;
        const std::int32_t count = library_.slot<"mp_get_mat_row">()(number, columns.data(), values.data());
        if (number == objectiveRow_) continue;  // its coefficients are the costs
        const std::int32_t rowNumber = number < objectiveRow_ ? number : number - 1;
        for (std::size_t k = 1; k < length && static_cast<std::int64_t>(k) <= count; ++k) {
            nonzeros.append(columns[k], rowNumber, values[k]);
        }
    }
    store_.loadNonzeros(nonzeros);
}

Outcome copyProblem(const MathProgLibrary& library, LanguageTarget& target) {
    ProblemCopy copy(library, target.store());
    TARQ_TRY(copy.addColumns());
    TARQ_TRY(copy.addRows());
    copy.addNonzeros();
    target.setParameter("xminmx", library.slot<"mp_get_obj_dir">()() == MP_DIR_MIN ? "min" : "max");
    return {};
}

/// The name of the data file, which can be read; empty for a missing one.
Result<std::string> checkDataFile(const Variant& dataFile) {
    Variant plain = dataFile.copyDereferenced();
    if (plain.isMissing()) return std::string();
    if (!plain.isText()) return Outcome(status::invalidArgument, "Bad argument for .DAT filename.");
    TARQ_TRY(checkInputFile(plain.text(), failuretext::aboutDataFile));
    return plain.takeText();
}

/// Has the library read the model. True when it did.
bool readInLibrary(const MathProgLibrary& library, const std::string& modelFile, const std::string& dataFile,
                   const std::string& listingFile) {
    const TextBuffer model(modelFile);
    const TextBuffer data(dataFile);
    const TextBuffer listing(listingFile);
    return library.slot<"mp_read_model2">()(model.get(), dataFile.empty() ? nullptr : data.get(), listing.get()) == 0;
}

}  // namespace

Outcome importMathProgModel(const MathProgLibrary& library, const std::string& modelFile, const Variant& dataFile,
                            LanguageTarget& target) {
    // Nobody calls these two.
    if (!library.isBoundBut<"mp_create_prob", "mp_print_prob">()) {
        return {status::entryPointsMissing, "Could not get MathProg.DLL function handles."};
    }
    TARQ_TRY(checkInputFile(modelFile, ampl::aboutModelFile));
    TARQ_ASSIGN(const std::string dataFileName, checkDataFile(dataFile));
    const TemporaryFile listingFile;
    if (!listingFile.isMade()) return ampl::ioError();

    const std::lock_guard lock(libraryInUse());
    const bool wasRead = readInLibrary(library, modelFile, dataFileName, listingFile.name());
    std::string listing = readStartOfFile(listingFile.name(), target.outputLimit());
    if (!wasRead) {
        target.setOutput(std::move(listing));
        return {status::modelRejected, "Error in MathProg model."};
    }
    target.clearModel();
    target.setOutput(std::move(listing));
    return copyProblem(library, target);
}

Outcome readMathProgModel(const std::string& location, const std::string& modelFile, const Variant& dataFile,
                          LanguageTarget& target) {
    const DynamicLibrary loaded = DynamicLibrary::load(location);
    if (!loaded) return {status::libraryNotFound, "Could not find MathProg.DLL."};
    MathProgLibrary library;
    library.bind(loaded);
    return importMathProgModel(library, modelFile, dataFile, target);
}

}  // namespace tarq
