#include "commandline.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>

#include "printing/console.h"
#include "printing/text.h"

namespace tarq::command {

namespace {

constexpr auto programFooter = R"(Examples:
  tarq solve plan.mps                        solve a model and show the result
  tarq solve plan.mps --solution plan.csv    keep the solution as a table
  tarq convert plan.mps plan.ltx             the same model in another format
  tarq show plan.mps --rows 1:20             a readable listing
  tarq parameters                            all solver parameters
  tarq parameters xmxmin                     one of them in full
  tarq parameters --page --profile plan.pro  set them on a page, kept in a profile
  tarq describe ITARQModel                   the members of an object, for programs

'tarq COMMAND --help' tells more about a command.)";

constexpr auto solveFooter = R"(Formats, told by the extension of FILE or by --format:
  mps      .mps   MPS in fixed columns
  triplet  .tri   Triplet
  lindo    .ltx   Lindo
  mathprog .mod   GNU MathProg, with one data file or none
  ampl            AMPL, with any number of data files
  nl       .nl    AMPL's stub files
  mpl      .mpl   MPL, where its server is at hand

--data names data files of a language. What its translator says is shown when
the reading fails, and with --listing always.

--set and --profile act after the file is read, in the order given. --set takes
a number with a decimal point, and min or max for xminmx.

What other programs read differently in an MPS file is told in a note. --json
prints its document also when reading or solving fails, with a member "error";
what isn't known or doesn't exist in it is null.

Exit codes:
  0  an optimal solution was found
  1  wrong usage, or a parameter was refused
  2  a file could not be read, understood or written, or the model was refused
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
  tarq solve plan.mod --data plan.dat
  gunzip -c plan.mps.gz | tarq solve - --format mps)";

constexpr auto parametersFooter = R"(Examples:
  tarq parameters              the whole list, by section
  tarq parameters xmxnod       limits, default and meaning of one parameter
  tarq parameters cuts         the parameters whose meaning speaks of cuts
  tarq parameters --json       the list for a program to read
  tarq parameters --write a    a profile with all parameters, to be edited
  tarq parameters --page --profile a
                               the same, chosen on a page with all meanings

The page starts from the profile if that is there, else from the defaults. OK or
Apply writes every parameter to the profile anew, without the comments that it
had; without --profile they go to standard output. Cancel writes nothing. A page
that can't be shown, as without a display, is exit code 5.)";

constexpr auto convertFooter = R"(The format of a file is told by its extension (.mps, .tri, .ltx) or by --from and
--to; - as a file is standard input or output. IN may be a text in a language, as
'tarq solve --help' lists them. A model that the format can't hold leaves no
file. MPS and Lindo take names of up to 8 characters, Lindo takes no row with two
bounds, Triplet holds everything but the model's name and its direction.

Examples:
  tarq convert plan.mps plan.tri
  tarq convert plan.tri plan.ltx --rename
  tarq convert plan.mod plan.mps --data plan.dat --rename
  gunzip -c plan.mps.gz | tarq convert - plan.tri --from mps)";

constexpr auto showFooter = R"(A range is FIRST:LAST, by number from 1 or by name; either may be left out, and a
single one means itself.

Examples:
  tarq show plan.mps
  tarq show plan.mps --rows 1:20 --cols 5:
  tarq show plan.mps --cols CHAIRS)";

constexpr auto describeFooter = R"(NAME is a class, an interface, an enumeration or one of its values, or a member,
alone or with its interface; capitals don't matter.

Examples:
  tarq describe                        all classes, interfaces and enumerations
  tarq describe ITARQModel             the members of an interface
  tarq describe ITARQModel.ColLB       what a member takes, gives and means
  tarq describe TARQColType --json     an enumeration for a program to read)";

struct CommandRow {
    const char* name;
    Action action;
};
constexpr CommandRow commands[] = {{"solve", Action::Solve},
                                   {"convert", Action::Convert},
                                   {"show", Action::Show},
                                   {"parameters", Action::Parameters},
                                   {"describe", Action::Describe}};

const char* nameOf(Action action) { return std::ranges::find(commands, action, &CommandRow::action)->name; }

void addEngineOption(CLI::App& app, std::string& engine) {
    app.add_option("--engine", engine, "Engine library to use instead of the one beside the component")
        ->option_text("FILE");
}

constexpr auto readFormats = "mps|triplet|lindo|mathprog|ampl|nl|mpl";

void addLanguageOptions(CLI::App& app, LanguageOptions& options) {
    app.add_option("--data", options.dataFiles, "Data file of a model in a language; may be repeated")
        ->option_text("FILE")
        ->allow_extra_args(false);
    app.add_flag("--listing", options.listing, "Show what the translator of a language says");
}

/// What names the one file that a command reads.
template <class Options>
void addModelFile(CLI::App& app, Options& options) {
    app.add_option("FILE", options.file, "Model file; - is standard input and needs --format")
        ->option_text(" ")
        ->required();
    app.add_option("--format", options.format, "Format of the file, if the extension doesn't tell it")
        ->option_text(readFormats);
    addLanguageOptions(app, options.language);
}

void describeSolve(CLI::App& app, SolveOptions& options) {
    addModelFile(app, options);
    app.add_option("--set", "Set a solver parameter; may be repeated")
        ->option_text("NAME=VALUE")
        ->expected(1)
        ->take_all();
    app.add_option("--profile", "Set solver parameters from a profile file; may be repeated")
        ->option_text("FILE")
        ->expected(1)
        ->take_all();
    app.add_option("--solution", options.solutionFile,
                   "Write the solution to a file: CSV if its extension is .csv, else JSON")
        ->option_text("FILE");
    addEngineOption(app, options.engine);
    app.add_flag("--json", options.json, "Print the result as one JSON document");
    app.add_flag("--quiet", options.quiet, "Print only status and objective, and show no progress");
    app.footer(solveFooter);
}

void describeConvert(CLI::App& app, ConvertOptions& options) {
    app.add_option("IN", options.input, "Model file to read")->option_text(" ")->required();
    app.add_option("OUT", options.output, "Model file to write")->option_text(" ")->required();
    app.add_option("--from", options.from, "Format of IN")->option_text(readFormats);
    app.add_option("--to", options.to, "Format of OUT")->option_text("mps|triplet|lindo");
    addLanguageOptions(app, options.language);
    app.add_flag("--rename", options.rename, "Name the columns C1, C2 and so on, and the rows R1, R2 and so on");
    app.footer(convertFooter);
}

void describeShow(CLI::App& app, ShowOptions& options) {
    addModelFile(app, options);
    app.add_option("--rows", options.rows, "Only these rows")->option_text("FIRST:LAST");
    app.add_option("--cols", options.columns, "Only these columns")->option_text("FIRST:LAST");
    app.footer(showFooter);
}

void describeParameters(CLI::App& app, ParametersOptions& options) {
    CLI::Option* const name = app.add_option(
        "NAME", options.name, "Explain only this parameter, in full; any other word is looked for in the list");
    name->option_text(" ");
    CLI::Option* const json = app.add_flag("--json", options.json, "Print JSON");
    CLI::Option* const write =
        app.add_option("--write", options.profile,
                       "Write a profile with every parameter at its default; - for standard output")
            ->option_text("FILE")
            ->excludes(name)
            ->excludes(json);
    CLI::Option* const page = app.add_flag("--page", options.page, "Show all parameters in a window, to be changed")
                                  ->excludes(name)
                                  ->excludes(json)
                                  ->excludes(write);
    app.add_option("--profile", options.pageProfile, "Profile that the page shows and is written to")
        ->option_text("FILE")
        ->needs(page);
    app.footer(parametersFooter);
}

void describeDescribe(CLI::App& app, DescribeOptions& options) {
    app.add_option("NAME", options.name, "Explain only this, in full")->option_text(" ");
    app.add_flag("--json", options.json, "Print JSON");
    app.footer(describeFooter);
}

/// The values of --set and --profile in the order in which they were given.
std::vector<ParameterSource> parameterSources(const CLI::App& app) {
    std::vector<ParameterSource> sources;
    std::size_t profiles = 0;
    std::size_t assignments = 0;
    for (const CLI::Option* option : app.parse_order()) {
        const bool isProfile = option->check_name("--profile");
        if (!isProfile && !option->check_name("--set")) continue;
        sources.push_back({isProfile, option->results()[isProfile ? profiles++ : assignments++]});
    }
    return sources;
}

/// What is wrong in values that the parser takes as they are; empty when nothing is.
std::string complaintAbout(const CLI::App& app, const SolveOptions& options) {
    for (const ParameterSource& source : options.parameters) {
        const std::size_t sign = source.text.find('=');
        if (!source.isProfile && (sign == std::string::npos || sign == 0)) {
            return fmt::format("--set {}: expected NAME=VALUE, such as --set xmxmin=5", printable(source.text));
        }
    }
    const bool isNamed = app.count("--solution") == 0 || (!options.solutionFile.empty() && options.solutionFile != "-");
    return isNamed ? "" : "--solution needs the name of a file; use --json to print the result";
}

/// What is wrong in words that belong to no command.
std::string complaintAboutCommand(const std::string& word) {
    std::vector<std::string_view> names;
    for (const CommandRow& row : commands) names.emplace_back(row.name);
    const std::string all = fmt::format("The commands are {}.", fmt::join(names, ", "));
    if (word.empty()) return "no command was given. " + all;
    return fmt::format("there is no command '{}'. {}", printable(word), suggestion(names, word, all));
}

CommandLine refused(std::string_view complaint, std::string_view command) {
    showMessage(fmt::format("{}\nTry 'tarq {}--help'.", complaint, command));
    CommandLine line;
    line.exitCode = ExitCode::WrongUsage;
    return line;
}

/// The command that was given, with a blank behind it; empty for none.
std::string givenCommand(CLI::App& app) {
    const std::vector<CLI::App*> given = app.get_subcommands();
    return given.empty() ? "" : given.front()->get_name() + " ";
}

/// Puts the program's options and commands into `app`, which will fill `line`.
void describeProgram(CLI::App& app, CommandLine& line, bool& version) {
    app.add_flag("--version", version, "Show the version of the program and of the engine");
    addEngineOption(app, line.engine);
    app.footer(programFooter);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app.require_subcommand(0, 1);
    const auto add = [&](Action action, const char* help) -> CLI::App& {
        return *app.add_subcommand(nameOf(action), help)->group("Commands");
    };
    describeSolve(add(Action::Solve, "Solve a model file"), line.solve);
    describeConvert(add(Action::Convert, "Write a model file in another format"), line.convert);
    describeShow(add(Action::Show, "Show a model file as a readable listing"), line.show);
    describeParameters(add(Action::Parameters, "List or explain the solver parameters"), line.parameters);
    describeDescribe(add(Action::Describe, "List or explain classes, interfaces and enumerations"), line.describe);
}

/// What the parsed arguments ask for.
CommandLine understood(CLI::App& app, CommandLine line, bool version) {
    if (version) {
        line.action = Action::Version;
        return line;
    }
    for (const CommandRow& row : commands) {
        if (app.got_subcommand(row.name)) line.action = row.action;
    }
    if (line.action == Action::None) return refused(complaintAboutCommand(""), "");
    if (line.action != Action::Solve) return line;
    const CLI::App& solve = *app.get_subcommand(nameOf(Action::Solve));
    line.solve.parameters = parameterSources(solve);
    if (line.solve.engine.empty()) line.solve.engine = line.engine;
    const std::string complaint = complaintAbout(solve, line.solve);
    return complaint.empty() ? line : refused(complaint, givenCommand(app));
}

}  // namespace

CommandLine parseCommandLine(int argc, const char* const* argv) {
    CommandLine line;
    bool version = false;
    CLI::App app("Solves linear and mixed-integer optimization models.", "tarq");
    describeProgram(app, line, version);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        line.exitCode = writeResult(app.help());
        return line;
    } catch (const CLI::ParseError& error) {
        const std::vector<std::string> rest = app.remaining();
        const std::string command = givenCommand(app);
        const bool isCommand = command.empty() && !rest.empty() && !rest.front().starts_with('-');
        return refused(isCommand ? complaintAboutCommand(rest.front()) : error.what(), command);
    }
    return understood(app, std::move(line), version);
}

}  // namespace tarq::command
