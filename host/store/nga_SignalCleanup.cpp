#include "nga_SignalCleanup.h"

#include <signal.h>
#include <unistd.h>

#include <climits>
#include <cstring>
#include <mutex>

namespace nga {

namespace {

constexpr int endings[] = {SIGHUP, SIGINT, SIGTERM};
constexpr int places = 8;

/// For the handler, which may use nothing that the process holds elsewhere.
struct WatchedFile {
    volatile sig_atomic_t isWatched = 0;
    char path[PATH_MAX];
};
WatchedFile watchedFiles[places];

/// Of all that changes who is watched; the handler asks for no lock.
std::mutex watchers;
int watchedCount = 0;

extern "C" void EndWithoutWatched(int signal) {
    for (WatchedFile const& each : watchedFiles)
        if (each.isWatched) unlink(each.path);
    // This handler is gone by now, so that the signal ends the process as it would have.
    raise(signal);
}

void WatchEndings() {
    for (int signal : endings) {
        struct sigaction former;
        if (sigaction(signal, nullptr, &former) != 0 || former.sa_handler != SIG_DFL) continue;
        struct sigaction own = {};
        own.sa_handler = EndWithoutWatched;
        own.sa_flags = static_cast<int>(SA_RESETHAND);
        sigemptyset(&own.sa_mask);
        sigaction(signal, &own, nullptr);
    }
}

void UnwatchEndings() {
    for (int signal : endings) {
        struct sigaction former;
        if (sigaction(signal, nullptr, &former) != 0 || former.sa_handler != EndWithoutWatched)
            continue;
        struct sigaction byDefault = {};
        byDefault.sa_handler = SIG_DFL;
        sigaction(signal, &byDefault, nullptr);
    }
}

}  // namespace

void SignalCleanup::Begin(std::string const& path) noexcept {
    if (path.size() >= PATH_MAX) return;
    std::lock_guard<std::mutex> const lock(watchers);
    for (int place = 0; place < places && m_place < 0; ++place) {
        WatchedFile& file = watchedFiles[place];
        if (file.isWatched) continue;
        std::memcpy(file.path, path.c_str(), path.size() + 1);
        file.isWatched = 1;
        m_place = place;
    }
    if (m_place >= 0 && watchedCount++ == 0) WatchEndings();
}

void SignalCleanup::End() noexcept {
    if (m_place < 0) return;
    std::lock_guard<std::mutex> const lock(watchers);
    watchedFiles[m_place].isWatched = 0;
    m_place = -1;
    if (--watchedCount == 0) UnwatchEndings();
}

}  // namespace nga
