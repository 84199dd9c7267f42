// Matchers that let a test of the model read as a sentence.
#pragma once

#include <gmock/gmock.h>

#include <cstdint>
#include <ostream>
#include <string>

#include "frame/status.h"

namespace tarq {

inline void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << std::hex << outcome.status().value() << std::dec << " \"" << outcome.description() << '"';
}

inline testing::Matcher<const Outcome&> IsOk() {
    return testing::AllOf(testing::Property("status", &Outcome::status, Status()),
                          testing::Property("description", &Outcome::description, ""));
}

inline testing::Matcher<const Outcome&> FailsWith(std::uint32_t status, const std::string& description) {
    return testing::AllOf(testing::Property("status", &Outcome::status, Status(status)),
                          testing::Property("description", &Outcome::description, description));
}

}  // namespace tarq
