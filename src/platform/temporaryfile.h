// TemporaryFile: a file of its own among the user's temporary files, for exchange with programs and libraries.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarq {

/// An empty file with a fresh name that begins with "TFR", in the folder TMPDIR if that is set and not empty, else in
/// /tmp, readable and writable by the user alone. It is closed, so that anyone may open it by name. At the object's end
/// it is removed, and with it the companions, unless they are kept.
class TemporaryFile {
public:
    /// Makes the file; the environment is asked anew each time. A folder that can't be used is a failure: see isMade.
    TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] bool isMade() const { return !name_.empty(); }
    /// Path of the file, also after its removal; empty when it couldn't be made.
    [[nodiscard]] const std::string& name() const { return name_; }

    /// The name of another file, the file's own with `suffix` behind it. Makes nothing, but whatever file then bears
    /// the name is removed at the end like the file itself.
    std::string companion(std::string_view suffix);
    /// Removes the file itself at once. The companions stay for the end.
    void removeFile();
    /// Leaves on disk what is there of the file and its companions so far.
    void keep();

private:
    std::string name_;
    std::vector<std::string> toRemove_;
};

}  // namespace tarq
