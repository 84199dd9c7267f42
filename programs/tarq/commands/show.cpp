#include <fmt/format.h>

#include <charconv>
#include <string>
#include <string_view>

#include "commands/commands.h"
#include "files/format.h"
#include "files/modelinput.h"
#include "files/output.h"
#include "model/modelobject.h"
#include "printing/text.h"

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
    const InputFormat format = chooseInputFormat(options.file, options.format, "--format");
    const Ref<ITARQModel> model = makeModel();
    readModel(*model, options.file, format, options.language);
    showReadingNotes(*model);
    const Range rows = range(options.rows);
    const Range columns = range(options.columns);
    writeOutput("-", [&](const std::string& path) {
        const Status listed = model->WriteDebugModel(path, rows.first, rows.last, columns.first, columns.last);
        if (!listed.failed() || listed == status::fileAccess) return listed;
        // A range that the model doesn't have is the user's mistake, not the output's.
        throw Failure(ExitCode::WrongUsage, fmt::format("{}: {}\nA range is FIRST:LAST, by number from 1 or by name.",
                                                        shownName(options.file, standardInput), lastErrorText(listed)));
    });
    return ExitCode::Success;
}

}  // namespace tarq::command
