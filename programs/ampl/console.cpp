#include "console.h"

#include <cstdio>

namespace tarq::translator {

void show(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stdout); }

void showLine(std::string_view text) {
    show(text);
    show("\n");
}

bool flushOutput() { return std::fflush(stdout) == 0 && std::ferror(stdout) == 0; }

}  // namespace tarq::translator
