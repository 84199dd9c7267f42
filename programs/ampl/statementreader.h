// Text in AMPL's language, cut into statements. What a statement means is not looked at here.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "failure.h"

namespace tarq::translator {

struct TextFile {
    std::string name;
    std::string text;
};

/// One statement of a file that lives longer: from its first character to its semicolon, both included, with the
/// comments in between.
struct Statement {
    const TextFile* file = nullptr;
    int line = 0;  ///< of its first character
    std::string_view text;

    [[nodiscard]] Place place() const { return {file->name, line}; }
    /// The name that it begins with, "s.t." also; empty when it begins otherwise.
    [[nodiscard]] std::string_view firstWord() const;
    /// The name behind the first word, empty when there is none.
    [[nodiscard]] std::string_view nameBehindFirstWord() const;
};

class StatementReader {
public:
    explicit StatementReader(const TextFile& file) : file_(&file), text_(file.text) {}

    /// The next statement, nothing at the end. Throws a Failure for text without a semicolon at its end, a comment or a
    /// string that isn't closed.
    [[nodiscard]] std::optional<Statement> next();

private:
    void skipBlanks();
    /// Steps over a comment that begins here. False when none does.
    bool skipComment();
    void skipString();
    void step();
    [[nodiscard]] bool atEnd() const { return position_ == text_.size(); }
    [[nodiscard]] Failure failure(int line, std::string_view words) const { return {Place{file_->name, line}, words}; }

    const TextFile* file_;
    std::string_view text_;
    std::size_t position_ = 0;
    int line_ = 1;
};

/// The words of a command, one by one: names, numbers, file names and strings.
class WordReader {
public:
    /// Begins behind the first word of the command.
    explicit WordReader(const Statement& command);

    struct Word {
        std::string text;     ///< of a string what it stands for
        bool quoted = false;  ///< it was a string
    };

    /// The next word, nothing at a comma or at the command's end.
    [[nodiscard]] std::optional<Word> next();
    /// Steps over a comma. False when there is none.
    bool skipComma();
    /// Throws unless the command ends here.
    void expectEnd();

private:
    Statement command_;
    std::string_view rest_;
};

}  // namespace tarq::translator
