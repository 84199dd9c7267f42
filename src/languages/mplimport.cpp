#include "languages/mplimport.h"

#include <array>
#include <new>
#include <utility>

#include "frame/latebound.h"

namespace tarq {
namespace {

/// Numbers of the server's published members.
namespace servermember {
constexpr std::int32_t models = 1;
constexpr std::int32_t workingDirectory = 5;
}  // namespace servermember
namespace modelsmember {
constexpr std::int32_t add = 3;
}  // namespace modelsmember
namespace modelmember {
constexpr std::int32_t matrix = 2;
constexpr std::int32_t errorText = 18;
constexpr std::int32_t readFile = 25;
constexpr std::int32_t errorLine = 32;
}  // namespace modelmember
namespace matrixmember {
constexpr std::int32_t coefficient = 0;
constexpr std::int32_t rows = 1;
constexpr std::int32_t columns = 2;
constexpr std::int32_t nonlinearRows = 23;
constexpr std::int32_t nonlinearColumns = 25;
constexpr std::int32_t columnCount = 26;
constexpr std::int32_t rowCount = 27;
constexpr std::int32_t direction = 28;
}  // namespace matrixmember
namespace collectionmember {
constexpr std::int32_t item = 0;
}  // namespace collectionmember
namespace columnmember {
constexpr std::int32_t cost = 4;
constexpr std::int32_t lowerBound = 9;
constexpr std::int32_t upperBound = 10;
constexpr std::int32_t name = 13;
constexpr std::int32_t isInteger = 17;
constexpr std::int32_t isBinary = 18;
}  // namespace columnmember
namespace rowmember {
constexpr std::int32_t range = 1;
constexpr std::int32_t type = 3;
constexpr std::int32_t lower = 4;
constexpr std::int32_t upper = 5;
constexpr std::int32_t name = 12;
}  // namespace rowmember

/// Types of rows.
constexpr std::int32_t equationRow = 16;
constexpr std::int32_t atMostRow = 32;
constexpr std::int32_t atLeastRow = 64;
constexpr std::int32_t rangeRow = 128;

/// Ends a reading. It never leaves this file.
struct Refusal {
    Outcome outcome;
};

[[noreturn]] void refuse(const char* description) { throw Refusal{{status::languageInterface, description}}; }

void require(Outcome outcome) {
    if (!outcome.isOk()) throw Refusal{std::move(outcome)};
}

template <class Value>
Value required(Result<Value> result) {
    if (!result.isOk()) throw Refusal{std::move(result).outcome()};
    return *std::move(result);
}

template <class Value>
Value get(const LateBound& object, std::int32_t member, LateBound::Arguments arguments = {}) {
    return required(object.get<Value>(member, arguments));
}

template <class Value>
Value call(const LateBound& object, std::int32_t member, const Variant& argument) {
    return required(object.call<Value>(member, {&argument, 1}));
}

/// Whether a record could be added.
template <class Add>
bool succeeds(Add add) {
    try {
        return add().isOk();
    } catch (const std::bad_alloc&) {
        return false;
    }
}

/// Copies the matrix of a model that the server has read into an empty store. The store may be changed by whatever the
/// server calls meanwhile; each step takes it as it is.
class MatrixCopy {
public:
    MatrixCopy(LateBound matrix, LanguageTarget& target) : matrix_(std::move(matrix)), target_(target) {}

    void addColumns();
    void addRows();
    void addNonzeros();
    void setDirection();

private:
    static TARQColType typeOf(const LateBound& column);
    double limited(const LateBound& object, std::int32_t member) {
        return target_.store().clampToInfinity(get<double>(object, member));
    }
    void setBounds(RowRecord& row, const LateBound& source);

    LateBound matrix_;
    LanguageTarget& target_;
    std::int32_t columnCount_ = 0;
    std::int32_t rowCount_ = 0;
};

TARQColType MatrixCopy::typeOf(const LateBound& column) {
    if (get<std::int32_t>(column, columnmember::isInteger) != 0) return TARQColType::Integer;
    if (get<std::int32_t>(column, columnmember::isBinary) != 0) return TARQColType::Binary;
    return TARQColType::Continuous;
}

void MatrixCopy::addColumns() {
    columnCount_ = get<std::int32_t>(matrix_, matrixmember::columnCount);
    const auto columns = get<LateBound>(matrix_, matrixmember::columns);
    for (std::int32_t position = 0; position < columnCount_; ++position) {
        const Variant number(position + 1);
        const auto source = get<LateBound>(columns, collectionmember::item, {&number, 1});
        ColumnRecord column;
        column.lowerBound = limited(source, columnmember::lowerBound);
        column.upperBound = limited(source, columnmember::upperBound);
        column.cost = get<double>(source, columnmember::cost);
        column.type = typeOf(source);
        column.name = get<std::string>(source, columnmember::name);
        if (!succeeds([&] { return target_.store().addColumnRecord(std::move(column)); })) {
            refuse("Error creating TARQ variables (maybe not enough memory).");
        }
    }
}

/// A type that isn't known leaves the bounds as they are.
void MatrixCopy::setBounds(RowRecord& row, const LateBound& source) {
    switch (get<std::int32_t>(source, rowmember::type)) {
        case equationRow:
            row.lowerBound = row.upperBound = limited(source, rowmember::upper);
            break;
        case atMostRow:
            row.lowerBound = get<double>(source, rowmember::range) > 0.0 ? limited(source, rowmember::lower)
                                                                         : -target_.store().infinity();
            row.upperBound = limited(source, rowmember::upper);
            break;
        case atLeastRow:
            row.lowerBound = limited(source, rowmember::lower);
            row.upperBound = target_.store().infinity();
            break;
        case rangeRow:
            row.lowerBound = limited(source, rowmember::lower);
            row.upperBound = limited(source, rowmember::upper);
            break;
        default:
            break;
    }
}

void MatrixCopy::addRows() {
    rowCount_ = get<std::int32_t>(matrix_, matrixmember::rowCount);
    const auto rows = get<LateBound>(matrix_, matrixmember::rows);
    RowRecord row;  // a row of an unknown type has the bounds of the one before
    for (std::int32_t position = 0; position < rowCount_; ++position) {
        const Variant number(position + 1);
        const auto source = get<LateBound>(rows, collectionmember::item, {&number, 1});
        setBounds(row, source);
        row.name = get<std::string>(source, rowmember::name);
        if (!succeeds([&] { return target_.store().addRowRecord(RowRecord(row)); })) {
            refuse("Error creating TARQ rows (maybe not enough memory).");
        }
    }
}

void MatrixCopy::addNonzeros() {
    for (std::int32_t row = 0; row < rowCount_; ++row) {
        for (std::int32_t column = 0; column < columnCount_; ++column) {
            const std::array place{Variant(row + 1), Variant(column + 1)};
            const auto value = get<double>(matrix_, matrixmember::coefficient, place);
            if (value == 0.0) continue;
            target_.store().setNonzero(column + 1, row + 1, target_.store().clampToInfinity(value));
        }
    }
}

void MatrixCopy::setDirection() {
    target_.setParameter("xminmx", get<std::int32_t>(matrix_, matrixmember::direction) == 0 ? "min" : "max");
}

/// Has the server read the file; the model object that it then has.
LateBound readInServer(const LateBound& server, const std::string& fileName, const std::string& workingDirectory,
                       MplError& error) {
    require(server.put(servermember::workingDirectory, Variant(workingDirectory)));
    const auto models = get<LateBound>(server, servermember::models);
    auto model = call<LateBound>(models, modelsmember::add, Variant());
    error = {};
    const auto result = call<std::int32_t>(model, modelmember::readFile, Variant(fileName));
    error.message = get<std::string>(model, modelmember::errorText);
    error.line = get<std::int32_t>(model, modelmember::errorLine);
    if (result != 0) refuse("Error reading MPL model file.");
    return model;
}

void readThroughServer(const LateBound& server, const std::string& fileName, const std::string& workingDirectory,
                       MplError& error, LanguageTarget& target) {
    const LateBound model = readInServer(server, fileName, workingDirectory, error);
    auto matrix = get<LateBound>(model, modelmember::matrix);
    for (const std::int32_t indicator : {matrixmember::nonlinearColumns, matrixmember::nonlinearRows}) {
        if (get<std::int32_t>(matrix, indicator) >= 1) refuse("Model contains nonlinear terms.");
    }
    target.clearModel();
    MatrixCopy copy(std::move(matrix), target);
    copy.addColumns();
    copy.addRows();
    copy.addNonzeros();
    copy.setDirection();
}

}  // namespace

Outcome readMplModel(const std::string& fileName, const std::string& workingDirectory,
                     const CreateMplServer& createServer, MplError& error, LanguageTarget& target) {
    if (!createServer()) return {status::languageInterface, "MPL is not available."};
    const LateBound server(createServer());
    if (!server) return {status::languageInterface, "Error initializing MPL Optimax."};
    try {
        readThroughServer(server, fileName, workingDirectory, error, target);
        return {};
    } catch (Refusal& refusal) {
        return std::move(refusal.outcome);
    }
}

}  // namespace tarq
