// Options: the values that `option` sets, on top of the environment that the program was started with.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "statementreader.h"

namespace tarq::translator {

class Options {
public:
    /// Carries out `option NAME VALUE, NAME VALUE ...;`. A value is a word, or strings and `$NAME`s joined. An option
    /// without a value is shown. Throws a Failure for anything else.
    void carryOut(const Statement& command);

    /// What was set, else what the environment holds, else the default of the few that have one, else nothing.
    [[nodiscard]] std::string valueOf(const std::string& name) const;
    /// Forgets what was set.
    void reset() { set_.clear(); }

    /// The environment for another program, one NAME=VALUE each: the own one with the options laid over it.
    [[nodiscard]] std::vector<std::string> environment() const;

private:
    std::map<std::string, std::string, std::less<>> set_;
};

}  // namespace tarq::translator
