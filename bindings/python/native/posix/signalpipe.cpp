#include "signalpipe.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <exception>
#include <new>
#include <thread>
#include <utility>

namespace tarq::python {
namespace {

class PosixSignalPipe final : public SignalPipe {
public:
    explicit PosixSignalPipe(const std::array<int, 2>& ends) : ends_(ends) {}
    PosixSignalPipe(const PosixSignalPipe&) = delete;
    PosixSignalPipe& operator=(const PosixSignalPipe&) = delete;
    ~PosixSignalPipe() override {
        for (const int end : ends_) ::close(end);
    }

    int writeEnd() const override { return ends_[1]; }

    void wait(std::optional<std::chrono::milliseconds> limit) const override {
        pollfd readable{ends_[0], POLLIN, 0};
        ::poll(&readable, 1, limit ? static_cast<int>(limit->count()) : -1);
    }

    std::string_view take(std::span<char> block) const override {
        const ssize_t count = ::read(ends_[0], block.data(), block.size());
        return {block.data(), count > 0 ? static_cast<std::size_t>(count) : 0};
    }

    void pass(int descriptor, std::string_view numbers) const override {
        // Whoever has that descriptor reads it when there is time; what doesn't fit is lost to it.
        if (::write(descriptor, numbers.data(), numbers.size()) < 0) return;
    }

    bool isOfAnotherProcess() const override { return ::getpid() != process_; }

private:
    std::array<int, 2> ends_;
    pid_t process_ = ::getpid();
};

}  // namespace

std::unique_ptr<SignalPipe> SignalPipe::open() noexcept {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return nullptr;
    return std::unique_ptr<SignalPipe>(new (std::nothrow) PosixSignalPipe(ends));
}

bool startQuietThread(std::function<void()> body) noexcept {
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    bool started = true;
    try {
        std::thread(std::move(body)).detach();
    } catch (const std::exception&) {
        started = false;
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return started;
}

}  // namespace tarq::python
