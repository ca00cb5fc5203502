#pragma once

#include <string>

namespace nga {

/// Sees to it that a file which is only of use to this process goes with it: while this stands, a
/// signal that ends the process (hangup, interrupt, termination) removes the file first. A signal
/// for which the process has a handler of its own is left to that.
class SignalCleanup {
public:
    SignalCleanup() = default;
    ~SignalCleanup() { End(); }
    SignalCleanup(SignalCleanup const&) = delete;
    SignalCleanup& operator=(SignalCleanup const&) = delete;

    /// A path that is too long, or one more than there are places for, is not watched.
    void Begin(std::string const& path) noexcept;
    /// The file is somebody's now, or gone.
    void End() noexcept;

private:
    int m_place = -1;
};

}  // namespace nga
