#include "commandline.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>

#include "console.h"

namespace tarq::command {

namespace {

constexpr auto programFooter = R"(Examples:
  tarq solve plan.mps                        solve a model and show the result
  tarq solve plan.mps --solution plan.csv    keep the solution as a table
  tarq parameters                            all solver parameters
  tarq parameters xmxmin                     one of them in full
  tarq describe ITARQModel                   the members of an object, for programs

'tarq COMMAND --help' tells more about a command.)";

constexpr auto solveFooter = R"(Formats, told by the extension of FILE or by --format:
  mps      .mps   MPS in fixed columns
  triplet  .tri   Triplet
  lindo    .ltx   Lindo

Exit codes:
  0  an optimal solution was found
  1  wrong usage, or a parameter was refused
  2  a file could not be read, understood or written
  3  infeasible, unbounded or no integer solution
  4  ended at a limit or stopped; the best solution so far is shown
  5  the engine is missing or failed

Results go to standard output, messages to standard error. On a terminal a line
shows the progress of the run. Ctrl-C stops the run and reports the best solution
so far; a second Ctrl-C quits at once.

Examples:
  tarq solve plan.mps
  tarq solve plan.mps --set xminmx=max --set xmxmin=5
  tarq solve plan.mps --json --solution plan.csv
  gunzip -c plan.mps.gz | tarq solve - --format mps)";

constexpr auto parametersFooter = R"(Examples:
  tarq parameters              the whole list, by section
  tarq parameters xmxnod       limits, default and meaning of one parameter
  tarq parameters --json       the list for a program to read)";

constexpr auto describeFooter = R"(NAME is a class, an interface, an enumeration or one of its values, or a member,
alone or with its interface; capitals don't matter.

Examples:
  tarq describe                        all classes, interfaces and enumerations
  tarq describe ITARQModel             the members of an interface
  tarq describe ITARQModel.ColLB       what a member takes, gives and means
  tarq describe TARQColType --json     an enumeration for a program to read)";

void addEngineOption(CLI::App& app, std::string& engine) {
    app.add_option("--engine", engine, "Engine library to use instead of the one beside the component")
        ->option_text("FILE");
}

void describeSolve(CLI::App& app, SolveOptions& options) {
    app.add_option("FILE", options.file, "Model file; - is standard input and needs --format")
        ->option_text(" ")
        ->required();
    app.add_option("--format", options.format, "Format of the file, if the extension doesn't tell it")
        ->option_text("mps|triplet|lindo");
    app.add_option("--set", options.assignments, "Set a solver parameter; may be repeated and acts in the order given")
        ->option_text("NAME=VALUE")
        ->allow_extra_args(false);
    app.add_option("--solution", options.solutionFile,
                   "Write the solution to a file: CSV if its extension is .csv, else JSON")
        ->option_text("FILE");
    addEngineOption(app, options.engine);
    app.add_flag("--json", options.json, "Print the result as one JSON document");
    app.add_flag("--quiet", options.quiet, "Print only status and objective, and show no progress");
    app.footer(solveFooter);
}

void describeParameters(CLI::App& app, ParametersOptions& options) {
    app.add_option("NAME", options.name, "Explain only this parameter, in full")->option_text(" ");
    app.add_flag("--json", options.json, "Print JSON");
    app.footer(parametersFooter);
}

void describeDescribe(CLI::App& app, DescribeOptions& options) {
    app.add_option("NAME", options.name, "Explain only this, in full")->option_text(" ");
    app.add_flag("--json", options.json, "Print JSON");
    app.footer(describeFooter);
}

/// What is wrong in values that the parser takes as they are; empty when nothing is.
std::string complaintAbout(const SolveOptions& options) {
    for (const std::string& assignment : options.assignments) {
        const std::size_t sign = assignment.find('=');
        if (sign == std::string::npos || sign == 0) {
            return fmt::format("--set {}: expected NAME=VALUE, such as --set xmxmin=5", assignment);
        }
    }
    if (options.solutionFile == "-") return "--solution needs the name of a file; use --json to print the result";
    return {};
}

CommandLine refused(std::string_view complaint, std::string_view command) {
    showMessage(fmt::format("{}\nTry 'tarq {}--help'.", complaint, command));
    CommandLine line;
    line.exitCode = ExitCode::WrongUsage;
    return line;
}

}  // namespace

CommandLine parseCommandLine(int argc, const char* const* argv) {
    CommandLine line;
    bool version = false;
    CLI::App app("Solves linear and mixed-integer optimization models.", "tarq");
    app.add_flag("--version", version, "Show the version of the program and of the engine");
    addEngineOption(app, line.engine);
    app.footer(programFooter);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app.require_subcommand(0, 1);
    CLI::App& solve = *app.add_subcommand("solve", "Solve a model file");
    solve.group("Commands");
    describeSolve(solve, line.solve);
    CLI::App& parameters = *app.add_subcommand("parameters", "List or explain the solver parameters");
    parameters.group("Commands");
    describeParameters(parameters, line.parameters);
    CLI::App& describe = *app.add_subcommand("describe", "List or explain classes, interfaces and enumerations");
    describe.group("Commands");
    describeDescribe(describe, line.describe);

    const auto command = [&]() -> std::string {
        const std::vector<CLI::App*> given = app.get_subcommands();
        return given.empty() ? "" : given.front()->get_name() + " ";
    };
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& help) {
        line.exitCode = writeResult(app.help(), ExitCode::Success);
        return line;
    } catch (const CLI::ParseError& error) {
        return refused(error.what(), command());
    }

    if (version) {
        line.action = Action::Version;
    } else if (solve.parsed()) {
        if (const std::string complaint = complaintAbout(line.solve); !complaint.empty()) {
            return refused(complaint, command());
        }
        if (line.solve.engine.empty()) line.solve.engine = line.engine;
        line.action = Action::Solve;
    } else if (parameters.parsed()) {
        line.action = Action::Parameters;
    } else if (describe.parsed()) {
        line.action = Action::Describe;
    } else {
        return refused("no command was given; the commands are solve, parameters and describe", "");
    }
    return line;
}

}  // namespace tarq::command
