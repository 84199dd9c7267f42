#include "interpreter.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <utility>

#include "platform/filecheck.h"
#include "platform/wholefile.h"

namespace tarq::translator {

namespace {

constexpr int deepestFile = 64;
constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";

/// Statements of AMPL that there is nothing for in GLPK's language, or that would mean something else there.
constexpr std::array refused{
    "arc",    "break",   "call",      "cd",      "close",   "commands", "continue",  "csvdisplay", "delete",
    "drop",   "environ", "exit",      "expand",  "fix",     "for",      "function",  "if",         "let",
    "load",   "node",    "objective", "print",   "problem", "purge",    "quit",      "read",       "redeclare",
    "reload", "remove",  "repeat",    "restore", "shell",   "show",     "solexpand", "solution",   "suffix",
    "table",  "unfix",   "unload",    "update",  "while",   "write",    "xref",
};

constexpr std::array declarations{"set", "param", "check"};

template <typename Words>
bool contains(const Words& words, std::string_view word) {
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

std::string_view reasonUnreadable(FileCheck check) {
    switch (check) {
        case FileCheck::NoFile:
        case FileCheck::NoDirectory:
            return "there is no such file";
        case FileCheck::NoPermission:
            return "it may not be read";
        default:
            return "it can't be read";
    }
}

}  // namespace

const Interpreter::CommandEntry Interpreter::commands[] = {
    {"reset", &Interpreter::reset},     {"model", &Interpreter::enterModel}, {"data", &Interpreter::enterData},
    {"include", &Interpreter::include}, {"option", &Interpreter::setOption}, {"solve", &Interpreter::solve},
    {"display", &Interpreter::display}, {"printf", &Interpreter::display},   {"end", &Interpreter::endFile},
};

void Interpreter::run(const std::string& fileName, const std::string& stub) {
    try {
        read(fileName, nullptr);
    } catch (const Failure&) {
        session_.finishSolving();
        throw;
    }
    session_.finish(stub, options_);
}

std::string Interpreter::findFile(const std::string& fileName, const Statement* from) const {
    if (from == nullptr || checkReadable(fileName) != FileCheck::NoFile) return fileName;
    const std::string beside = (std::filesystem::path(from->file->name).parent_path() / fileName).string();
    return checkReadable(beside) == FileCheck::Readable ? beside : fileName;
}

void Interpreter::read(const std::string& fileName, const Statement* from) {
    const std::string found = findFile(fileName, from);
    const auto fail = [&](std::string_view words) {
        const std::string text = fmt::format("'{}': {}", fileName, words);
        return from != nullptr ? Failure(from->place(), text) : Failure(text);
    };
    if (depth_ == deepestFile) throw fail("files name files too deeply; does one name itself?");
    if (const FileCheck check = checkReadable(found); check != FileCheck::Readable) throw fail(reasonUnreadable(check));
    auto text = readWholeFile(found);
    if (!text) throw fail("it can't be read");
    if (text->compare(0, byteOrderMark.size(), byteOrderMark) == 0) text->erase(0, byteOrderMark.size());
    const TextFile& file = files_.emplace_back(TextFile{found, std::move(*text)});

    ++depth_;
    StatementReader statements(file);
    while (!isEnded_) {
        const auto statement = statements.next();
        if (!statement) break;
        carryOut(*statement);
    }
    isEnded_ = false;
    --depth_;
}

void Interpreter::carryOut(const Statement& statement) {
    const std::string_view word = statement.firstWord();
    const auto command = std::find_if(std::begin(commands), std::end(commands),
                                      [word](const CommandEntry& entry) { return entry.word == word; });
    if (command != std::end(commands)) return (this->*command->carryOut)(statement);
    if (contains(refused, word)) {
        throw Failure(statement.place(), fmt::format("'{}' is not among the statements that this translator takes; "
                                                     "'ampl --help' lists them",
                                                     word));
    }
    if (mode_ == Mode::Data) return session_.add(StatementKind::Data, statement);
    session_.add(contains(declarations, word) ? StatementKind::Declaration : StatementKind::ModelPart, statement);
}

void Interpreter::reset(const Statement& command) {
    WordReader words(command);
    const auto what = words.next();
    words.expectEnd();
    if (!what) {
        session_.reset();
        mode_ = Mode::Model;
    } else if (!what->quoted && what->text == "options") {
        options_.reset();
    } else {
        throw Failure(command.place(), "only 'reset;' and 'reset options;' are taken");
    }
}

void Interpreter::enter(Mode mode, const Statement& command) {
    WordReader words(command);
    const auto fileName = words.next();
    words.expectEnd();
    const Mode before = std::exchange(mode_, mode);
    if (!fileName) return;
    read(fileName->text, &command);
    mode_ = before;
}

void Interpreter::include(const Statement& command) {
    WordReader words(command);
    const auto fileName = words.next();
    if (!fileName) throw Failure(command.place(), "the name of a file is missing behind 'include'");
    words.expectEnd();
    read(fileName->text, &command);
}

void Interpreter::solve(const Statement& command) {
    WordReader(command).expectEnd();
    mode_ = Mode::Model;
    session_.addSolve(command, options_);
}

void Interpreter::display(const Statement& command) {
    mode_ = Mode::Model;
    session_.add(StatementKind::Display, command);
}

void Interpreter::endFile(const Statement& command) {
    WordReader(command).expectEnd();
    isEnded_ = true;
}

}  // namespace tarq::translator
