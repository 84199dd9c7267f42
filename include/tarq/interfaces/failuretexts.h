// Words of the component that its own programs recognize or explain, word for word.
//
// A status tells what kind of failure it was; where a program has to tell two failures of one status apart, it compares
// the description with these. The same constants make the descriptions, so that the two can't drift apart.
#pragma once

#include <string_view>

namespace tarq {

/// What TARQDLLVersion tells where no engine does.
inline constexpr std::string_view unknownEngineVersion = "unknown";

namespace failuretext {

/// Optimize: the engine wouldn't take the data of the model. Its status also stands for an engine that can't start.
inline constexpr std::string_view modelNotTransferred = "Input error while transfering model to TARQ.DLL.";

/// The beginning of what is said about a data file of a model in a language.
inline constexpr std::string_view aboutDataFile = ".DAT file";

}  // namespace failuretext
}  // namespace tarq
