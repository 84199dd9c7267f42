// Any bytes as a profile: a message or assignments, and a table within its limits that can be written and read back.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "frame/text.h"
#include "parameters/parameterrows.h"
#include "parameters/profile.h"
#include "target.h"

namespace {

using tarq::fuzzing::check;
using tarq::fuzzing::withReturns;

/// Of a model that no file has changed.
constexpr double infinity = 1e25;

/// A nameless file that has a path while the process runs, so that nothing is left when it ends at a broken rule.
class ScratchFile {
public:
    ScratchFile() : file_(std::tmpfile(), &std::fclose) {
        check(file_ != nullptr, "a temporary file can be made");
        path_ = "/dev/fd/" + std::to_string(fileno(file_.get()));
    }
    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
    std::string path_;
};

void checkOutcome(const tarq::Outcome& outcome) {
    using namespace tarq::status;
    check(outcome.isOk() == outcome.description().empty(), "a failure has a message, a success none");
    for (const tarq::Status expected :
         {ok, profileFailure, unknownParameter, wrongKind, valueOutOfRange, textTooLong}) {
        if (outcome.status() == expected) return;
    }
    check(false, "the status is one of a profile");
}

void checkLimits(const tarq::ParameterTable& table) {
    int row = 0;
    for (const tarq::ParameterRow& about : tarq::parameterRows()) {
        const std::int32_t number = table.longValue(row);
        const double real = table.doubleValue(row);
        check(number >= about.longMinimum && number <= about.longMaximum, "a long is within its limits");
        check(real >= about.doubleMinimum && real <= about.doubleMaximum, "a double is within its limits");
        const std::size_t length = tarq::utf16Length(table.stringValue(row));
        check(length <= static_cast<std::size_t>(about.stringMaxLength), "a text is within its length");
        ++row;
    }
}

void checkSame(const tarq::ParameterTable& left, const tarq::ParameterTable& right, const char* rule) {
    for (int row = 0; row < tarq::parameterCount; ++row) check(left.valueText(row) == right.valueText(row), rule);
}

void checkWriting(const tarq::ParameterTable& table) {
    static const ScratchFile scratch;
    check(tarq::writeProfile(scratch.path(), table).isOk(), "each table can be written");
    tarq::ParameterTable read;
    check(tarq::readProfile(scratch.path(), read, infinity).isOk(), "what was written can be read");
    checkSame(table, read, "what was written is read back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    tarq::ParameterTable table;
    const tarq::Outcome outcome = tarq::readProfileText(text, table, infinity);
    checkOutcome(outcome);
    checkLimits(table);
    // Costs far more than reading, and few texts of a run get so far.
    if (outcome.isOk()) checkWriting(table);

    // A lone carriage return is a character like others, so only texts without any can change their line ends.
    if (text.find('\r') != std::string::npos) return 0;
    tarq::ParameterTable other;
    const tarq::Outcome otherOutcome = tarq::readProfileText(withReturns(text), other, infinity);
    check(outcome.status() == otherOutcome.status() && outcome.description() == otherOutcome.description(),
          "line ends change no message");
    checkSame(table, other, "line ends change no assignment");
    return 0;
}
