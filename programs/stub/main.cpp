// tarq-stub: works for the component on AMPL's stub files; see languages/stubprotocol.h for what it is asked and
// answers. Started by hand it does nothing of use.
#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>

#include "limits.h"
#include "stub.h"

namespace {

bool work(std::string_view task, const std::string& stub) {
    using namespace tarq::stub;
    if (!limitCosts(stub)) return false;
    Answer answer;
    if (task == "read") return readStub(stub, answer);
    if (task == "write") return writeSolution(stub, answer);
    return false;
}

}  // namespace

int main(int count, char** arguments) {
    bool done = false;
    try {
        done = count == 3 && work(arguments[1], arguments[2]);
    } catch (const std::exception&) {
        // No memory within the limit.
    }
    // Nothing is left to be put in order, and the library's own handlers may trip over what a stub has broken.
    _exit(done ? EXIT_SUCCESS : EXIT_FAILURE);
}
