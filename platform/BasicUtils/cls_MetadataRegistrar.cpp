#include "cls_MetadataRegistrar.h"

#include <algorithm>
#include <cstdlib>

cls_MetadataRegistrar::cls_MetadataRegistrar() = default;
cls_MetadataRegistrar::~cls_MetadataRegistrar() = default;

void cls_MetadataRegistrar::initClassMetadata(Callback callback, unsigned mask) {
    auto same = std::find_if(m_registrations.begin(), m_registrations.end(),
                             [&](Registration const& r) { return r.callback == callback; });
    if (same == m_registrations.end()) {
        m_registrations.push_back({callback, mask});
        return;
    }
    if (same->mask == mask) return;
    same->mask = mask;
    for (auto& domain : m_domains) domain.reset();
}

cls_ClassRegistrar const& cls_MetadataRegistrar::Domain(cls_MetadataDomain domain) {
    // A mask of several domains is none.
    if (domain != cls_DomainLibrary && domain != cls_DomainMemory && domain != cls_DomainDatabase)
        std::abort();
    std::unique_ptr<OpenDomain>& open = m_domains[domain == cls_DomainDatabase ? 2 : domain - 1];
    if (!open) open = std::make_unique<OpenDomain>();
    for (; open->seen < m_registrations.size(); ++open->seen) {
        Registration const& registration = m_registrations[open->seen];
        if (registration.mask & domain) registration.callback(open->registrar);
    }
    return open->registrar;
}

int cls_MetadataRegistrar::RegisteredWith(unsigned mask) const {
    return static_cast<int>(std::count_if(m_registrations.begin(), m_registrations.end(),
                                          [&](Registration const& r) { return r.mask == mask; }));
}
