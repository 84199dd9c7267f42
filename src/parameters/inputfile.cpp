#include "parameters/inputfile.h"

#include <fmt/format.h>

#include "platform/filecheck.h"
#include "tarq/interfaces/failuretexts.h"
#include "tarq/interfaces/limits.h"

namespace tarq {
Outcome checkInputFile(const std::string& path, std::string_view label) {
    if (path.size() > longestPath) {
        return {status::fileNameRejected, fmt::format("Filename of {} is too long.", label)};
    }
    switch (checkReadable(path)) {
        case FileCheck::Readable:
            return {};
        case FileCheck::NoDirectory:
            return {status::fileNotReachable, fmt::format("Could not find {}. Bad path.", label)};
        case FileCheck::NoPermission:
            return {status::fileNotReachable, fmt::format("Could not open {}. Access denied.", label)};
        case FileCheck::NoFile:
            return {status::fileNotReachable, fmt::format("Could not find {}. Bad filename.", label)};
        case FileCheck::OtherFailure:
            break;
    }
    return {status::fileNotReachable, fmt::format("Could not open {}. I/O error.", label)};
}

}  // namespace tarq
