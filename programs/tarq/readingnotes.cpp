#include "readingnotes.h"

#include <fmt/format.h>

#include <string_view>

#include "console.h"

namespace tarq::command {

namespace {

struct NoteRow {
    std::int32_t ReadingNotes::*count;
    std::string_view noun;
    std::string_view text;
};

constexpr NoteRow noteRows[] = {
    {&ReadingNotes::upperBoundsSetByMi, "MI bound",
     "also set the upper bound to 0; other programs leave it infinite.\n"
     "FR in place of MI means no bounds everywhere, and UP 0 behind MI an upper bound of 0."},
    {&ReadingNotes::lowerBoundsAboveUpper, "upper bound",
     "below 0 left the lower bound at 0, and no value between; other programs lower it to minus infinity.\n"
     "MI before UP means that everywhere."},
    {&ReadingNotes::integersUpToOne, "integer column",
     "without an upper bound got 1; some other programs set none.\n"
     "UP 1 means 1 everywhere, and UP 1e30 no upper bound."},
};

}  // namespace

void showReadingNotes(ITARQModel& model) {
    const auto source = Ref<ITARQModel>(&model).query<IReadingNotes>();
    if (!source) return;
    const ReadingNotes notes = source->readingNotes();
    for (const NoteRow& row : noteRows) {
        if (notes.*row.count > 0)
            showMessage(fmt::format("note: {} {}", counted(notes.*row.count, row.noun), row.text));
    }
}

}  // namespace tarq::command
