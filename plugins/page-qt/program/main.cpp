// tarq-page: shows a page for a host at the other end of its standard streams. Exits with 0 when the person has closed
// the window.
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QTimer>
#include <array>
#include <cerrno>
#include <condition_variable>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "../pagestream.h"
#include "../window/pagewindow.h"

namespace {

using namespace tarq::page;

[[noreturn]] void leave(int code) { ::_exit(code); }

/// What the host says. It is listened to on a thread of its own: a host that is gone takes the window with it, whatever
/// that is busy with, be it a display that doesn't answer.
class Host {
public:
    Host() : output_(takeOutputOver()) { std::thread(&Host::listen, this).detach(); }

    /// Waits for the next thing, which must be of this kind.
    std::string expect(FrameKind kind) {
        std::unique_lock lock(mutex_);
        isHeard_.wait(lock, [this] { return !heard_.empty(); });
        Frame frame = std::move(heard_.front());
        heard_.pop_front();
        if (frame.kind != kind) leave(EXIT_FAILURE);
        return std::move(frame.body);
    }

    void tell(FrameKind kind, const std::string& body = {}) const {
        const std::string bytes = framed(kind, body);
        for (std::size_t done = 0; done < bytes.size();) {
            const ssize_t written = ::write(output_, bytes.data() + done, bytes.size() - done);
            if (written < 0 && errno == EINTR) continue;
            if (written <= 0) leave(EXIT_FAILURE);
            done += static_cast<std::size_t>(written);
        }
    }

private:
    /// Standard output under another number, and nothing behind its own, to which libraries may print.
    static int takeOutputOver() {
        const int taken = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
        const int nothing = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (taken < 0 || nothing < 0 || ::dup2(nothing, STDOUT_FILENO) < 0) leave(EXIT_FAILURE);
        return taken;
    }

    void listen() {
        FrameAssembler assembler;
        std::array<char, 65536> bytes{};
        for (;;) {
            const ssize_t got = ::read(STDIN_FILENO, bytes.data(), bytes.size());
            if (got < 0 && errno == EINTR) continue;
            if (got <= 0) leave(EXIT_FAILURE);
            assembler.add({bytes.data(), static_cast<std::size_t>(got)});
            while (auto frame = assembler.next()) {
                const std::lock_guard lock(mutex_);
                heard_.push_back(std::move(*frame));
                isHeard_.notify_one();
            }
            if (assembler.isBroken()) leave(EXIT_FAILURE);
        }
    }

    int output_;
    std::mutex mutex_;
    std::condition_variable isHeard_;
    std::deque<Frame> heard_;
};

template <class Value>
Value orLeave(std::optional<Value> value) {
    if (!value) leave(EXIT_FAILURE);
    return *std::move(value);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    // Qt aborts where it finds no platform; that leaves no image on disk.
    const rlimit none{0, 0};
    (void)::setrlimit(RLIMIT_CORE, &none);
    Host host;
    const Page page = orLeave(pageFrom(host.expect(FrameKind::Description)));
    host.tell(FrameKind::Begun);
    // A host with a Qt of another version may have set this for itself.
    (void)::unsetenv("QT_QPA_PLATFORM_PLUGIN_PATH");
    const QApplication application(argumentCount, arguments);
    PageWindow window(page, [&host](const std::vector<Edit>& edits) {
        host.tell(FrameKind::Edits, toBytes(edits));
        return orLeave(messagesFrom(host.expect(FrameKind::Messages)));
    });
    QTimer::singleShot(0, &window, [&] {
        window.raise();  // the host's windows are those of another program
        window.activateWindow();
        // Qt paints with threads of its own, and waits for good where there is no memory to make them. As long as the
        // window isn't told to be shown, the host doesn't wait for that.
        (void)window.grab();
        host.tell(FrameKind::Shown);
    });
    window.exec();
    if (window.isVisible()) leave(EXIT_FAILURE);
    host.tell(FrameKind::Closed);
    // Without taking apart what Qt has built up: the system does that at once.
    leave(EXIT_SUCCESS);
}
