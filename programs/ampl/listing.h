// Listing: what GLPK says while it translates, sorted into what is shown at once, what is wrong, and noise.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "assembledtext.h"

namespace tarq::translator {

/// Takes GLPK's terminal output while it lives; one at a time. Output of `display` and `printf` and warnings go to
/// standard output as they come, with places in the user's files.
class Listing {
public:
    /// Both texts outlive the listing. `displayLines` are the lines of the model's text with a `display`; the line by
    /// which GLPK announces each is not shown.
    Listing(const AssembledText& model, const AssembledText& data, std::set<int> displayLines);
    Listing(const Listing&) = delete;
    Listing& operator=(const Listing&) = delete;
    ~Listing();

    /// What went wrong in the step that just failed, in words for the user.
    [[nodiscard]] std::string failureText() const;
    /// Forgets what was said so far, before a step begins.
    void beginStep();
    /// Shows a last line of output that has no line feed.
    void endOutput();

private:
    static int takeText(void* listing, const char* text);
    static void giveUp(void* listing);

    void takeOutput(char character);
    void takeMessage(std::string_view line);
    void showOutputLine();
    /// A message that begins with a place in one of the texts, with the place in the user's file; else empty.
    [[nodiscard]] std::string placed(std::string_view message) const;

    const AssembledText& model_;
    const AssembledText& data_;
    std::set<int> displayLines_;
    std::string outputLine_;
    std::string wrong_;  ///< messages with a place, and what belongs to them
    std::string noise_;  ///< all other messages of the step
};

}  // namespace tarq::translator
