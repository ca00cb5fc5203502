#pragma once

#include <map>
#include <memory>
#include <string>

#include "cow_String.h"

/// Extensions by name. It owns what it holds.
template <class E>
class mdl_OdbExtensionTable {
public:
    /// Takes ownership; a present name's extension goes.
    void Put(cow_String const& name, E* extension) {
        std::unique_ptr<E> owned(extension);
        m_extensions[name.Text()] = std::move(owned);
    }
    bool Remove(cow_String const& name) { return m_extensions.erase(name.Text()) > 0; }
    /// Null where there is none.
    E* Find(cow_String const& name) const {
        auto found = m_extensions.find(name.Text());
        return found == m_extensions.end() ? nullptr : found->second.get();
    }
    int Size() const { return static_cast<int>(m_extensions.size()); }
    /// Calls \p visit with each name and extension, in the order of the names.
    template <class Visit>
    void Each(Visit visit) const {
        for (auto const& [name, extension] : m_extensions)
            visit(cow_String(name.c_str()), *extension);
    }

private:
    std::map<std::string, std::unique_ptr<E>> m_extensions;
};
