// What the user should know of a model file that was read.
#pragma once

#include <tarq/tarq.h>

namespace tarq::command {

/// Tells on standard error what other programs read differently in the file that the model was read from, and how the
/// file can say it so that all agree. Nothing where there is nothing to tell.
void showReadingNotes(ITARQModel& model);

}  // namespace tarq::command
