#pragma once

#include <memory>
#include <vector>

#include "cls_ClassRegistrar.h"

/// The metadata domains, each a bit of a registration's mask.
enum cls_MetadataDomain : unsigned {
    cls_DomainLibrary = 1,   ///< a stand-alone library of one repository
    cls_DomainMemory = 2,    ///< copies in memory
    cls_DomainDatabase = 4,  ///< a model's database, with its extensions
    cls_DomainsAll = 7
};

/// What classes there are: each module hands in the metadata functions of its classes, and a domain
/// runs those of its mask when somebody first asks for it. A process singleton, used on one thread
/// while the library starts.
class cls_MetadataRegistrar {
public:
    using Callback = void (*)(cls_ClassRegistrar&);

    cls_MetadataRegistrar();
    ~cls_MetadataRegistrar();
    cls_MetadataRegistrar(cls_MetadataRegistrar const&) = delete;
    cls_MetadataRegistrar& operator=(cls_MetadataRegistrar const&) = delete;

    /// Records one class's metadata function for the domains of \p mask. The same function again
    /// replaces its former registration.
    void initClassMetadata(Callback callback, unsigned mask);
    /// The schemas of a domain; functions handed in since the last call run now.
    cls_ClassRegistrar const& Domain(cls_MetadataDomain domain);
    /// How many functions are registered under exactly this mask.
    int RegisteredWith(unsigned mask) const;

private:
    struct Registration {
        Callback callback;
        unsigned mask;
    };
    struct OpenDomain {
        cls_ClassRegistrar registrar;
        std::size_t seen = 0;  ///< registrations whose functions have run
    };
    std::vector<Registration> m_registrations;
    std::unique_ptr<OpenDomain> m_domains[3];
};
