#include "platform/temporaryfile.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>

namespace tarq {
namespace {

std::string temporaryFolder() {
    const char* const folder = std::getenv("TMPDIR");
    return folder != nullptr && *folder != '\0' ? folder : "/tmp";
}

}  // namespace

TemporaryFile::TemporaryFile() {
    std::string name = temporaryFolder() + "/TFRXXXXXX";
    toRemove_.push_back(name);
    const int descriptor = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) {
        toRemove_.clear();
        return;
    }
    ::close(descriptor);
    toRemove_.front() = name;  // no longer than before, so this can't fail and leave the file behind
    name_.swap(name);
}

TemporaryFile::~TemporaryFile() {
    for (const std::string& name : toRemove_) ::unlink(name.c_str());
}

std::string TemporaryFile::companion(std::string_view suffix) {
    std::string name = name_;
    name += suffix;
    if (isMade()) toRemove_.push_back(name);
    return name;
}

void TemporaryFile::removeFile() {
    if (std::erase(toRemove_, name_) > 0) ::unlink(name_.c_str());
}

void TemporaryFile::keep() { toRemove_.clear(); }

}  // namespace tarq
