// The number marks of the user's locale, read without touching the locale of the process.
#pragma once

#include <string>

namespace tarq {

/// How a locale writes numbers, in UTF-8.
struct NumberMarks {
    std::string decimal = ".";
    std::string group;  ///< between groups of digits; empty where the locale has none

    friend bool operator==(const NumberMarks&, const NumberMarks&) = default;
};

/// Marks of the named locale. A locale that the system doesn't know has those of "C", as has one whose marks are not
/// UTF-8.
NumberMarks numberMarksOf(const std::string& localeName);

/// Name of the user's locale: the first of LC_ALL, LC_NUMERIC and LANG that is set and not empty, else "C".
std::string userLocaleName();

/// Marks of the user's locale. The only copy: read at the first call and kept, as a process has one user. Callable from
/// any thread.
const NumberMarks& userNumberMarks();

}  // namespace tarq
