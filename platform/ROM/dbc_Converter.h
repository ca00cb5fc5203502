#pragma once

#include <map>

#include "cow_String.h"
#include "dbc_ClassConverter.h"

/// One step of an upgrade: the classes that change from their layout before a version to that of
/// the version.
class dbc_Converter {
public:
    struct Class {
        cow_String name;
        int oldVersion = 0;
        dbc_ClassConverter converter;
    };

    /// Declares that this step changes the class if it is stored in the old version.
    dbc_ClassConverter& Upgrade(cow_String const& name, unsigned const& typeId, int oldVersion) {
        Class& declared = m_classes[typeId];
        declared = {name, oldVersion, dbc_ClassConverter()};
        return declared.converter;
    }

    std::map<unsigned, Class> const& Classes() const { return m_classes; }

private:
    std::map<unsigned, Class> m_classes;
};
