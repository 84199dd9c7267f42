// Interpreter: carries out the commands in AMPL text and hands everything else to the session.
#pragma once

#include <deque>
#include <string>
#include <string_view>

#include "options.h"
#include "session.h"
#include "statementreader.h"

namespace tarq::translator {

class Interpreter {
public:
    /// `folder` takes temporary files.
    explicit Interpreter(const std::string& folder) : session_(folder) {}

    /// Carries out a file to its end and writes the stub of the model that is there then, unless `stub` is empty.
    /// Throws a Failure at the first thing that is wrong; what was solved before that has been shown then.
    void run(const std::string& fileName, const std::string& stub);

private:
    enum class Mode { Model, Data };
    using Command = void (Interpreter::*)(const Statement&);
    struct CommandEntry {
        std::string_view word;
        Command carryOut;
    };
    static const CommandEntry commands[];

    void read(const std::string& fileName, const Statement* from);
    void carryOut(const Statement& statement);
    [[nodiscard]] std::string findFile(const std::string& fileName, const Statement* from) const;

    void reset(const Statement& command);
    void enterModel(const Statement& command) { enter(Mode::Model, command); }
    void enterData(const Statement& command) { enter(Mode::Data, command); }
    /// For the rest of the text, or for the file that is named.
    void enter(Mode mode, const Statement& command);
    void include(const Statement& command);
    void setOption(const Statement& command) { options_.carryOut(command); }
    void solve(const Statement& command);
    void display(const Statement& command);
    void endFile(const Statement& command);

    Options options_;
    std::deque<TextFile> files_;  ///< all that were read; the session's statements point into them
    Session session_;
    int depth_ = 0;  ///< of files within files
    Mode mode_ = Mode::Model;
    bool isEnded_ = false;  ///< an `end` was met in the file that is read
};

}  // namespace tarq::translator
