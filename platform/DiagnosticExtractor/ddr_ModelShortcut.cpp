#include "ddr_ModelShortcut.h"

#include "omu_AccessErrorException.h"
#include "omu_PrimValues.h"

namespace {

constexpr char const* ddrSource = "platform/DiagnosticExtractor/ddr_ModelShortcut";

cow_String ReadName(cls_ReadVisitor const& visitor) {
    cow_String name;
    visitor.Memento().ReadString(name, ddr_ShortcutBaseImpl::NameField(), cow_String());
    return name;
}

}  // namespace

ddr_ModelInSessionShortcut::ddr_ModelInSessionShortcut(cow_String const& name)
    : m_name(name), m_uid(cls_Uid::AllocateUid()) {}

ddr_ModelInSessionShortcut::ddr_ModelInSessionShortcut(cls_ReadVisitor const& visitor)
    : m_name(ReadName(visitor)), m_uid(visitor.GetUid()) {}

ddr_ModelInSessionShortcut* ddr_ModelInSessionShortcut::Copy() const {
    return new ddr_ModelInSessionShortcut(*this);
}

cow_String ddr_ModelInSessionShortcut::Name() const { return m_name; }
cow_String ddr_ModelInSessionShortcut::DdbName() const { return m_name; }

cow_String ddr_ModelInSessionShortcut::Path() const {
    return cow_String("documents[") + omu_PrimString(m_name).AsRepr() + "]";
}

ddr_Model const& ddr_ModelInSessionShortcut::ConstGet(ddr_Container const& container) const {
    ddr_Ddb const* const found = container.ConstFind(m_name);
    if (!found) omu_AccessErrorException(m_name).Throw(ddrSource, __LINE__);
    return *static_cast<ddr_Model const*>(found);
}

ddr_Model& ddr_ModelInSessionShortcut::Get(ddr_Container& container) const {
    ddr_Ddb* const found = container.Find(m_name);
    if (!found) omu_AccessErrorException(m_name).Throw(ddrSource, __LINE__);
    return *static_cast<ddr_Model*>(found);
}

void ddr_ModelInSessionShortcut::DBWrite(cls_WriteVisitor const& visitor) const {
    if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
    visitor.Agent().WriteString(NameField(), m_name);
}

unsigned ddr_ModelInSessionShortcut::DynTypeId() const { return TypeId(); }

void ddr_ModelInSessionShortcut::InitializeMetadata(cls_ClassRegistrar& registrar) {
    WithSmallTable(DescribeStep<ddr_ModelInSessionShortcut>(registrar))
        .AddAttribute(NameField(), cls_AttributeString, 1, cls_CollectionNone);
}

ddr_ModelShortcut ddr_ShortcutToModel(cow_String const& name) {
    return ddr_ModelShortcut(new ddr_ModelInSessionShortcut(name));
}
