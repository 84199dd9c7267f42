#include "platform/userlocale.h"

#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <type_traits>

namespace tarq {
namespace {

struct FreeLocale {
    void operator()(locale_t locale) const { freelocale(locale); }
};
using OwnedLocale = std::unique_ptr<std::remove_pointer_t<locale_t>, FreeLocale>;

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

}  // namespace

NumberMarks numberMarksOf(const std::string& localeName) {
    if (localeName.empty()) return {};  // the system would take it for the environment's
    const OwnedLocale locale(newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, localeName.c_str(), nullptr));
    if (locale == nullptr) return {};
    NumberMarks marks{nl_langinfo_l(RADIXCHAR, locale.get()), nl_langinfo_l(THOUSEP, locale.get())};
    const bool isUtf8 = std::string_view(nl_langinfo_l(CODESET, locale.get())) == "UTF-8";
    if (marks.decimal.empty() || (!isUtf8 && !isAscii(marks.decimal))) return {};
    if (!isUtf8 && !isAscii(marks.group)) marks.group.clear();
    return marks;
}

std::string userLocaleName() {
    for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const char* const name = std::getenv(variable);
        if (name != nullptr && *name != '\0') return name;
    }
    return "C";
}

const NumberMarks& userNumberMarks() {
    static const NumberMarks marks = numberMarksOf(userLocaleName());
    return marks;
}

}  // namespace tarq
