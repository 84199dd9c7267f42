// ModelTarget: the model that a reader fills, be it of a model file or of a modelling language.
#pragma once

#include <string>
#include <string_view>

#include "model/modelstore.h"
#include "tarq/interfaces/ireadingnotes.h"

namespace tarq {

class ModelTarget {
public:
    virtual ModelStore& store() = 0;
    /// Empties the model; called before the first record is added.
    virtual void clearModel() = 0;
    virtual void setModelName(std::string name) = 0;
    /// Stores a text in a solver parameter, through the same checks as a client's put.
    virtual void setParameter(std::string_view name, std::string_view value) = 0;
    /// Told at the end of a file that was read whole, by readers that have something to note.
    virtual void setReadingNotes(const ReadingNotes& /*notes*/) {}

protected:
    ~ModelTarget() = default;
};

}  // namespace tarq
