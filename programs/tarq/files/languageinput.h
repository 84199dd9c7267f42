// Reading a model text in a modelling language, and telling what its translator has said.
#pragma once

#include <tarq/tarq.h>

#include <string>

#include "commandline.h"
#include "files/format.h"

namespace tarq::command {

/// Fails with WrongUsage for more data files than a language takes; null stands for a model file, which takes none.
void checkDataFiles(const Language* language, const LanguageOptions& options);

/// Reads a model text, or standard input for "-". The translator's listing goes to standard error when the reading
/// fails, or when it is asked for. The failure is InputRejected and names the file and the line where the translator
/// tells them.
void readModelText(ITARQModel& model, const std::string& file, const Language& language,
                   const LanguageOptions& options);

/// What lies behind the component's failure to read a stub, as a sentence; empty where its own words tell.
[[nodiscard]] std::string reasonOfStub(const std::string& stub, Status status);

}  // namespace tarq::command
