// LanguageTarget: the model that an import from a modelling language fills, and what it keeps of the translator's
// words.
#pragma once

#include <cstddef>
#include <string>

#include "model/modeltarget.h"

namespace tarq {

class LanguageTarget : public ModelTarget {
public:
    /// Longest output of a translator that is kept, in bytes.
    [[nodiscard]] virtual std::size_t outputLimit() const = 0;
    /// Replaces the kept output. Bytes that are no UTF-8 become U+FFFD. `clearModel` empties it, so an import that has
    /// the output beforehand sets it behind that.
    virtual void setOutput(std::string bytes) = 0;

protected:
    ~LanguageTarget() = default;
};

}  // namespace tarq
