#pragma once

#include "klcC_LoadCase.h"
#include "mdl_Extension.h"
#include "nga_ConnectorSection.h"

namespace nga {

/// What the host keeps in a model beside the library's own repositories. It is an extension like
/// theirs, so that one save writes all and one read restores all.
class HostExtension : public mdl_Extension {
public:
    HostExtension();
    explicit HostExtension(cls_ReadVisitor const& visitor);
    HostExtension(HostExtension const&) = default;
    HostExtension& operator=(HostExtension const&) = default;

    mdl_Extension* Copy() const override { return new HostExtension(*this); }
    unsigned DynTypeId() const override { return TypeId(); }
    void DBWrite(cls_WriteVisitor const& visitor) const override;
    void NewUid() override;

    /// Whether there is nothing in it that a file would have to keep.
    bool IsEmpty() const { return loadCases.IsEmpty() && sections.IsEmpty(); }
    cls_Uid const& Uid() const { return m_uid; }

    static constexpr unsigned TypeId() { return 0x3840001; }
    static constexpr char const* name = "nga_HostExtension";
    static constexpr int version = 1111;
    static void InitializeMetadata(cls_ClassRegistrar& registrar);
    /// The name under which models know it.
    static constexpr omn_FixedString extensionCmd() { return omn_FixedString("host"); }

    /// The name of the sections in paths and texts.
    static constexpr omn_FixedString sectionCmd() { return omn_FixedString("sections"); }

    klcC_LoadCaseCont loadCases;
    nga_ConnectorSectionContainer sections;

private:
    static cls_FieldHandle LoadCasesField();
    static cls_FieldHandle SectionsField();

    cls_Uid m_uid;
};

}  // namespace nga
