// Reading a model file: from a file name and a format to a filled model.
#pragma once

#include <string>
#include <string_view>

#include "frame/status.h"
#include "interfaces/enumerations.h"
#include "model/modelstore.h"

namespace tarq {

/// The model that a reader fills.
class ModelFileTarget {
public:
    virtual ModelStore& store() = 0;
    /// Empties the model; called before the first record is added.
    virtual void clearModel() = 0;
    virtual void setModelName(std::string name) = 0;
    /// Stores a text in a solver parameter, through the same checks as a client's put.
    virtual void setParameter(std::string_view name, std::string_view value) = 0;

protected:
    ~ModelFileTarget() = default;
};

/// Reads `fileName` into `target`. Failures before the reader starts leave the target as it was; a parse failure leaves
/// what was read so far.
[[nodiscard]] Outcome readModelFile(const std::string& fileName, TARQFileFormatType format, ModelFileTarget& target);

}  // namespace tarq
