#include "commandline.h"

#include <fmt/format.h>

#include <cstdlib>
#include <string_view>

#include "console.h"

namespace tarq::translator {

namespace {

constexpr std::string_view help = R"(usage: ampl [-P] [-ogSTUB] FILE

Carries out FILE, text in AMPL's language within what it shares with GNU MathProg.

  -ogSTUB        at the end write the model as a stub, STUB.nl
  -P             taken, and without effect: nothing is ever presolved away
  -v, --version  the version
  -?, --help     this text

Commands beside declarations and data:

  reset;  reset options;           forget the model; the options
  model;  data;                    model or data follows
  model FILE;  data FILE;          the model or data in a file
  include FILE;                    the text of a file
  option NAME VALUE, NAME VALUE;   set options, which solvers find in their environment
  solve;                           have the program of the option `solver` (tarqampl) solve the model
  display ...;  printf ...;        show sets, parameters, and behind a solve the solution
  end;                             leave the file

With the option auxfiles, names go to STUB.row (r) and STUB.col (c). Temporary files lie in TMPDIR.
Exit code 1 and no stub when something is wrong, which is told on standard output with file and line.
)";

std::nullopt_t misused(int& exitCode, std::string_view words) {
    fmt::print(stderr, "ampl: {}; 'ampl --help' tells more\n", words);
    exitCode = EXIT_FAILURE;
    return std::nullopt;
}

std::nullopt_t answered(int& exitCode, std::string_view text) {
    show(text);
    exitCode = flushOutput() ? EXIT_SUCCESS : EXIT_FAILURE;
    return std::nullopt;
}

}  // namespace

std::optional<CommandLine> parseCommandLine(int count, const char* const* words, int& exitCode) {
    CommandLine line;
    for (int position = 1; position < count; ++position) {
        const std::string_view word = words[position];
        if (word == "-?" || word == "--help" || word == "-h") return answered(exitCode, help);
        if (word == "-v" || word == "--version")
            return answered(exitCode, "ampl, translator of TARQ " TARQ_VERSION "\n");
        if (word == "-P") continue;
        if (word.substr(0, 3) == "-og" && word.size() > 3) {
            line.stub = word.substr(3);
        } else if (word.size() > 1 && word[0] == '-') {
            return misused(exitCode, fmt::format("the option {} isn't taken", word));
        } else if (!line.file.empty()) {
            return misused(exitCode, fmt::format("one file is taken, not {} too", word));
        } else {
            line.file = word;
        }
    }
    if (line.file.empty()) return misused(exitCode, "the file is missing");
    return line;
}

}  // namespace tarq::translator
