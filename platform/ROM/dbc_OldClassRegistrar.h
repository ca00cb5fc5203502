#pragma once

#include <vector>

#include "cow_CountedHld.h"
#include "dbc_OldClassVersion.h"

/// The old class versions of all modules, kept for upgrades. A process singleton, filled while the
/// library starts.
class dbc_OldClassRegistrar {
public:
    struct Entry {
        cow_CountedHld<dbc_OldClassVersion>* holder;
        unsigned mask;
    };

    dbc_OldClassRegistrar();
    ~dbc_OldClassRegistrar();
    dbc_OldClassRegistrar(dbc_OldClassRegistrar const&) = delete;
    dbc_OldClassRegistrar& operator=(dbc_OldClassRegistrar const&) = delete;

    /// Takes ownership of \p holder, made with the tiny allocator. \p mask is a set of metadata
    /// domains; old class versions belong to databases, so the domain of copies in memory (2) is
    /// never in it, and a mask that holds it raises. A class registered before is replaced.
    void Register(cow_CountedHld<dbc_OldClassVersion>* holder, unsigned mask);

    std::vector<Entry> const& Entries() const { return m_entries; }
    int RegisteredWith(unsigned mask) const;

private:
    std::vector<Entry> m_entries;
};
