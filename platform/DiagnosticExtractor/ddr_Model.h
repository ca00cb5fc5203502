#pragma once

#include "cow_String.h"
#include "ddr_Ddb.h"
#include "ddr_TypeIds.h"
#include "mdl_Extension.h"
#include "mdl_ExtensionSubject.h"
#include "omn_FixedString.h"

/// An analysis model: a name, and extensions that it holds without knowing their classes. There may
/// be several at once; each owns the instances of its extensions.
class ddr_Model : public mdl_ExtensionSubject<ddr_Model, mdl_OdbExtensionTable<mdl_Extension>>,
                  public ddr_Ddb {
public:
    explicit ddr_Model(cow_String const& name) : m_name(name) {}

    cow_String const& Name() const { return m_name; }
    void Rename(cow_String const& name) { m_name = name; }

    /// The names under which the model knows the four repositories of attributes.
    static constexpr omn_FixedString materialCmd() { return omn_FixedString("materials"); }
    static constexpr omn_FixedString amplitudeCmd() { return omn_FixedString("amplitudes"); }
    static constexpr omn_FixedString profileCmd() { return omn_FixedString("profiles"); }
    static constexpr omn_FixedString filterCmd() { return omn_FixedString("filters"); }

    static constexpr unsigned TypeId() { return ddr_ModelTypeId; }

private:
    cow_String m_name;
};
