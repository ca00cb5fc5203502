#include "nga_HostExtension.h"

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"

namespace nga {

HostExtension::HostExtension() : m_uid(cls_Uid::AllocateUid()) {}

HostExtension::HostExtension(cls_ReadVisitor const& visitor)
    : mdl_Extension(visitor),
      loadCases(cls_ReadVisitor(visitor, LoadCasesField()), true),
      sections(cls_ReadVisitor(visitor, SectionsField()), true),
      m_uid(visitor.GetUid()) {}

void HostExtension::DBWrite(cls_WriteVisitor const& visitor) const {
    if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
    {
        cls_WriteVisitor base(visitor, mdl_Extension::TypeId());
        mdl_Extension::DBWrite(base);
    }
    {
        cls_WriteVisitor field(visitor, LoadCasesField(), nullptr, nullptr);
        loadCases.DBWrite(field, true);
    }
    cls_WriteVisitor field(visitor, SectionsField(), nullptr, nullptr);
    sections.DBWrite(field, true);
}

void HostExtension::NewUid() {
    m_uid.NewUid();
    mdl_Extension::NewUid();
}

void HostExtension::InitializeMetadata(cls_ClassRegistrar& registrar) {
    registrar.AddClassMD(new cls_TypeAdapter<HostExtension>(name, version, mdl_Extension::TypeId()))
        .AddAttribute(LoadCasesField(), cls_AttributeObject, cls_MapTypeId, cls_CollectionMapString)
        .AddAttribute(SectionsField(), cls_AttributeObject, cls_MapTypeId, cls_CollectionMapString);
}

cls_FieldHandle HostExtension::LoadCasesField() {
    return cls_FieldHandle(0, cow_String(klcC_LoadCase::loadCaseCmd()));
}

cls_FieldHandle HostExtension::SectionsField() {
    return cls_FieldHandle(1, cow_String(sectionCmd()));
}

}  // namespace nga
