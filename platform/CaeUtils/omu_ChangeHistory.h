#pragma once

#include <functional>
#include <vector>

#include "omu_PrimTuple.h"

/// Where repositories send their changes, one tuple a change, in the order in which they happen.
/// One per thread, through thr_ThreadSingleton. It tells its listeners, and it keeps what is sent
/// only while somebody has asked it to: a history that nobody drains would grow for ever.
class omu_ChangeHistory {
public:
    using Listener = std::function<void(omu_PrimTuple const&)>;

    void addChange(omu_PrimTuple change);
    /// Whether anybody would see a change. Senders may skip building one that nobody sees.
    bool IsHeard() const { return m_keeping > 0 || !m_listeners.empty(); }

    /// Adds a listener; the number returned takes it away again. A listener may add or remove
    /// listeners; what it throws goes to the sender of the change, after the change was made.
    int Listen(Listener listener);
    void StopListening(int number);

    /// Starts keeping what is sent; each StartKeeping needs a StopKeeping. The last one drops what
    /// is kept.
    void StartKeeping();
    void StopKeeping();
    /// What was kept since the last call, oldest first.
    std::vector<omu_PrimTuple> Drain();

private:
    struct Entry {
        int number;
        Listener listener;
    };
    bool Listens(int number) const;

    std::vector<Entry> m_listeners;
    std::vector<omu_PrimTuple> m_kept;
    int m_nextNumber = 1;
    int m_keeping = 0;
};
