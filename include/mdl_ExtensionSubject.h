#pragma once

#include "mdl_OdbExtensionTable.h"
#include "nex_TextException.h"

/// Gives a class S extensions: prototypes are registered once for the class, and each object of it
/// has instances of its own, copied from the prototype when somebody first asks for them.
template <class S, class Table>
class mdl_ExtensionSubject {
public:
    mdl_ExtensionSubject() = default;
    mdl_ExtensionSubject(mdl_ExtensionSubject const&) = delete;
    mdl_ExtensionSubject& operator=(mdl_ExtensionSubject const&) = delete;

    /// Keeps a copy of \p prototype; a present name's prototype is replaced.
    template <class E>
    static void RegisterExtension(cow_String const& name, E const& prototype) {
        Prototypes().Put(name, prototype.Copy());
    }
    /// Takes the prototype away. Objects keep the instances that they have.
    static void UnRegisterExtension(cow_String const& name) { Prototypes().Remove(name); }
    static Table const& RegisteredExtensions() { return Prototypes(); }

    /// This object's extension, for writing and for reading. A name that is not registered fails.
    auto& GetExtension(cow_String const& name) { return Instance(name); }
    auto const& ConstGetExtension(cow_String const& name) const { return Instance(name); }
    /// Whether this object has made its instance of an extension.
    bool HasInstance(cow_String const& name) const { return m_instances.Find(name) != nullptr; }
    /// Takes ownership: how a reader puts in what it read.
    template <class E>
    void SetExtension(cow_String const& name, E* extension) {
        m_instances.Put(name, extension);
    }

private:
    static Table& Prototypes() {
        static Table prototypes;
        return prototypes;
    }
    auto& Instance(cow_String const& name) const {
        auto* instance = m_instances.Find(name);
        if (!instance) {
            auto const* prototype = Prototypes().Find(name);
            if (!prototype)
                nex_TextException(atr_raw("No extension is registered under this name."))
                    .Throw("generated/include/mdl_ExtensionSubject", 52);
            instance = prototype->Copy();
            m_instances.Put(name, instance);
            // An instance is a record of its own.
            instance->NewUid();
        }
        return *instance;
    }

    mutable Table m_instances;
};
