// The import of a model in AMPL: the translator turns its text into a stub, and the stub is read.
#pragma once

#include <string>

#include "frame/status.h"
#include "frame/valuelist.h"
#include "languages/languagetarget.h"

namespace tarq {

/// Replaces the target's model by the one in `modelFile` with the data in `dataFiles`, each a text. The translator is
/// the program that `translator` names (see findProgram); what it writes is kept as the target's output, also when its
/// text is in error. Waits for it without a limit.
/// 0x8004102F and 0x80041030 for files that can't be read; 0x80041031 for a data file that is no text; 0x80041023 for a
/// temporary file that can't be made or read; 0x8004101D for a translator that can't be started; 0x80041021 when it has
/// written no stub; else the failures of readAmplStub. The temporary files that the translator has written stay after a
/// failure.
[[nodiscard]] Outcome readAmplModel(const std::string& modelFile, const ValueList& dataFiles,
                                    const std::string& translator, LanguageTarget& target);

}  // namespace tarq
