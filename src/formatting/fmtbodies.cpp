// The bodies of fmt, compiled once: read in every file that formats, as its header-only form has it, they take most of
// the time of a build.
#include <fmt/format-inl.h>

// The templates that fmt's headers leave to its library.
template auto fmt::detail::thousands_sep_impl<char>(locale_ref) -> thousands_sep_result<char>;
template auto fmt::detail::decimal_point_impl(locale_ref) -> char;
