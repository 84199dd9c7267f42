#include "showcommand.h"

#include <fmt/format.h>

#include <charconv>
#include <string>
#include <string_view>

#include "fileformat.h"
#include "lasterror.h"
#include "modelinput.h"
#include "modelobject.h"
#include "modeloutput.h"
#include "readingnotes.h"

namespace tarq::command {

namespace {

struct Range {
    Variant first = Variant::missing();
    Variant last = Variant::missing();
};

/// A number, or else a name; the missing value for an empty text.
Variant index(std::string_view text) {
    if (text.empty()) return Variant::missing();
    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc{} && stop == end ? Variant(number) : Variant(text);
}

Range range(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) return {index(text), index(text)};
    return {index(text.substr(0, colon)), index(text.substr(colon + 1))};
}

}  // namespace

ExitCode showModel(const ShowOptions& options) {
    InputFormat format;
    if (const auto failure = chooseFormat(options.file, options.format, "--format", format)) return show(*failure);
    const Ref<ITARQModel> model = makeModel();
    if (!model) return ExitCode::EngineFailed;
    if (const auto failure = readModel(*model, options.file, format, options.language)) return show(*failure);
    showReadingNotes(*model);
    const Range rows = range(options.rows);
    const Range columns = range(options.columns);
    Status listed;
    std::string complaint;
    const auto list = [&](const std::string& path) {
        listed = model->WriteDebugModel(path, rows.first, rows.last, columns.first, columns.last);
        if (listed.failed()) complaint = lastErrorText(listed);
        return listed;
    };
    const auto failure = writeOutput("-", list, [](Status) { return std::string(); });
    if (!failure) return ExitCode::Success;
    if (listed.failed() && listed != status::fileAccess) {
        // A range that the model doesn't have is the user's mistake, not the output's.
        return show(
            Failure{ExitCode::WrongUsage, fmt::format("{}: {}\nA range is FIRST:LAST, by number from 1 or by name.",
                                                      shownName(options.file, "standard input"), complaint)});
    }
    return show(*failure);
}

}  // namespace tarq::command
