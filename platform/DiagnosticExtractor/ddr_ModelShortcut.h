#pragma once

#include "ddr_Model.h"
#include "ddr_Shortcut.h"

template <>
struct ddr_ShortcutTraits<ddr_Model> {
    static constexpr unsigned typeId = ddr_ModelShortcutTypeId;
    static constexpr unsigned implTypeId = ddr_ModelImplTypeId;
};

/// The start of every chain.
using ddr_ModelShortcut = ddr_Shortcut<ddr_Model>;
using ddr_ModelImplShortcut = ddr_ShortcutImpl<ddr_Model>;

/// The first step: a model by its name in the session. It alone asks the container, and fails with
/// the name where no model bears it.
class ddr_ModelInSessionShortcut : public ddr_ModelImplShortcut {
public:
    explicit ddr_ModelInSessionShortcut(cow_String const& name);
    explicit ddr_ModelInSessionShortcut(cls_ReadVisitor const& visitor);
    ddr_ModelInSessionShortcut* Copy() const override;

    cow_String Name() const override;
    /// The model's name as a string literal of the script language, so that any name can be typed
    /// back.
    cow_String Path() const override;
    cow_String DdbName() const override;
    ddr_Model const& ConstGet(ddr_Container const& container) const override;
    ddr_Model& Get(ddr_Container& container) const override;

    void DBWrite(cls_WriteVisitor const& visitor) const override;
    unsigned DynTypeId() const override;
    static constexpr unsigned TypeId() { return ddr_ModelInSessionShortcutTypeId; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    cow_String m_name;
    cls_Uid m_uid;
};

/// A shortcut to the model of this name, whether there is one or not.
ddr_ModelShortcut ddr_ShortcutToModel(cow_String const& name);
