#include "dbc_OldClassRegistrar.h"

#include <algorithm>
#include <typeinfo>

#include "cls_MetadataRegistrar.h"
#include "nex_TextException.h"

dbc_OldClassVersion::~dbc_OldClassVersion() = default;
void dbc_OldClassVersion::SchemaChanges(dbc_DatabaseConverter&) const {}
void dbc_OldClassVersion::ClassesToDelete(dbc_DatabaseConverter&) const {}
void dbc_OldClassVersion::ClassesToRename(dbc_DatabaseConverter&) const {}
void dbc_OldClassVersion::TablesToRename(dbc_DatabaseConverter&) const {}
void const* dbc_OldClassVersion::Identity() const { return nullptr; }

namespace {

void Release(cow_CountedHld<dbc_OldClassVersion>* holder) {
    holder->~cow_CountedHld<dbc_OldClassVersion>();
    mem_Free(holder);
}

}  // namespace

dbc_OldClassRegistrar::dbc_OldClassRegistrar() = default;

dbc_OldClassRegistrar::~dbc_OldClassRegistrar() {
    for (Entry const& entry : m_entries) Release(entry.holder);
}

void dbc_OldClassRegistrar::Register(cow_CountedHld<dbc_OldClassVersion>* holder, unsigned mask) {
    if (mask & cls_DomainMemory) {
        Release(holder);
        nex_TextException(atr_raw("An old class version was registered for copies in memory."))
            .Throw("platform/ROM/dbc_OldClassRegistrar", 34);
    }
    // The library may come up again: its classes are then registered anew.
    dbc_OldClassVersion const& given = holder->GetRef();
    auto same = std::find_if(m_entries.begin(), m_entries.end(), [&](Entry const& entry) {
        dbc_OldClassVersion const& known = entry.holder->GetRef();
        return typeid(known) == typeid(given) && known.Identity() == given.Identity();
    });
    if (same == m_entries.end()) {
        try {
            m_entries.push_back({holder, mask});
        } catch (...) {
            Release(holder);
            throw;
        }
        return;
    }
    Release(same->holder);
    *same = {holder, mask};
}

int dbc_OldClassRegistrar::RegisteredWith(unsigned mask) const {
    return static_cast<int>(std::count_if(m_entries.begin(), m_entries.end(),
                                          [&](Entry const& entry) { return entry.mask == mask; }));
}
