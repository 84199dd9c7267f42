// tarq-mathprog OUTPUT MODEL [DATA]: reads a model in GNU MathProg, writes what the translator says to the file OUTPUT,
// and the problem to standard output. Without a problem it exits with 1.
#include <fcntl.h>
#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <exception>
#include <fstream>

#include "../problem.h"
#include "memory.h"
#include "translation.h"

namespace {

using namespace tarq::mathprog;

struct Task {
    ModelFiles files;
    int problemStream = -1;
    bool done = false;
};

bool sendTo(int descriptor, const void* bytes, std::size_t length) {
    const auto* at = static_cast<const char*>(bytes);
    while (length > 0) {
        const ssize_t written = ::write(descriptor, at, length);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        at += written;
        length -= static_cast<std::size_t>(written);
    }
    return true;
}

void* runTask(void* argument) {
    auto& task = *static_cast<Task*>(argument);
    try {
        Problem problem;
        const Send send = [&](const void* bytes, std::size_t length) {
            return sendTo(task.problemStream, bytes, length);
        };
        task.done = translate(task.files, problem) ? sendProblem(problem, send) : sendRefusal(send);
    } catch (const std::exception&) {
        task.done = false;
    }
    return nullptr;
}

/// Has whatever is printed go to the file from now on, and returns the stream of the problem.
int redirectOutput(const char* fileName) {
    const int problemStream = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    constexpr mode_t readAndWrite = 0666;
    const int output = ::open(fileName, O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, readAndWrite);
    if (output < 0 || ::dup2(output, STDOUT_FILENO) < 0 || ::dup2(output, STDERR_FILENO) < 0) return -1;
    return problemStream;
}

/// A crash leaves no image on disk, and when memory runs out it is this process that goes.
void standBackForOthers() {
    const rlimit none{0, 0};
    (void)::setrlimit(RLIMIT_CORE, &none);
    std::ofstream("/proc/self/oom_score_adj") << 1000;
}

/// Runs the task on a thread of its own: recursion in a model takes more stack than the first one has.
bool runWithLargeStack(Task& task) {
    constexpr std::size_t stackLength = std::size_t{256} << 20U;
    pthread_attr_t attributes;
    pthread_t thread{};
    if (::pthread_attr_init(&attributes) != 0) return false;
    (void)::pthread_attr_setstacksize(&attributes, stackLength);
    const bool started = ::pthread_create(&thread, &attributes, &runTask, &task) == 0;
    return started && ::pthread_join(thread, nullptr) == 0 && task.done;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    constexpr int shortest = 3;
    constexpr int longest = 4;
    if (argumentCount < shortest || argumentCount > longest) return EXIT_FAILURE;
    standBackForOthers();
    prepareHeap();
    Task task;
    task.problemStream = redirectOutput(arguments[1]);
    if (task.problemStream < 0) return EXIT_FAILURE;
    task.files = {.model = arguments[2], .data = argumentCount == longest ? arguments[3] : nullptr};
    const bool done = runWithLargeStack(task);
    // Without taking apart what the translator has built up: the system does that at once.
    ::_exit(done ? EXIT_SUCCESS : EXIT_FAILURE);
}
