#include "omu_ChangeHistory.h"

#include <algorithm>

void omu_ChangeHistory::addChange(omu_PrimTuple change) {
    // A copy of the list, so that a listener may change it.
    std::vector<Entry> const listeners = m_listeners;
    for (Entry const& entry : listeners) entry.listener(change);
    if (m_keeping > 0) m_kept.push_back(std::move(change));
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
