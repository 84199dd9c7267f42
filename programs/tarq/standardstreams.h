// The three standard streams, whatever the caller left of them.
#pragma once

namespace tarq::command {

/// Takes the places of standard streams that are closed, so that no file that is opened later becomes one of them.
/// Reading or writing such a stream fails. To be called before anything is opened.
void fillStandardStreams();

}  // namespace tarq::command
