#include "omu_ChangeHistory.h"

#include <algorithm>

void omu_ChangeHistory::addChange(omu_PrimTuple change) {
    if (m_keeping > 0) m_kept.push_back(change);
    if (m_listeners.empty()) return;
    // A copy of the list, so that a listener may change it. One that was taken away meanwhile is
    // not told: what it would write to may be gone.
    std::vector<Entry> const listeners = m_listeners;
    for (Entry const& entry : listeners)
        if (Listens(entry.number)) entry.listener(change);
}

bool omu_ChangeHistory::Listens(int number) const {
    return std::any_of(m_listeners.begin(), m_listeners.end(),
                       [&](Entry const& e) { return e.number == number; });
}

int omu_ChangeHistory::Listen(Listener listener) {
    m_listeners.push_back({m_nextNumber, std::move(listener)});
    return m_nextNumber++;
}

void omu_ChangeHistory::StopListening(int number) {
    m_listeners.erase(std::remove_if(m_listeners.begin(), m_listeners.end(),
                                     [&](Entry const& e) { return e.number == number; }),
                      m_listeners.end());
}

void omu_ChangeHistory::StartKeeping() { ++m_keeping; }

void omu_ChangeHistory::StopKeeping() {
    if (m_keeping > 0 && --m_keeping == 0) m_kept.clear();
}

std::vector<omu_PrimTuple> omu_ChangeHistory::Drain() {
    std::vector<omu_PrimTuple> result;
    result.swap(m_kept);
    return result;
}
