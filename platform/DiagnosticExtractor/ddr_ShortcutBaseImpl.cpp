#include "ddr_ShortcutBaseImpl.h"

#include "cls_ExtQuant.h"
#include "nex_TextException.h"
#include "thr_ThreadSingleton.h"
#include "typ_ArchCompTable.h"

cow_String ddr_ShortcutBaseImpl::PythonPath() const { return Path(); }
cow_String ddr_ShortcutBaseImpl::DdbName() const { return cow_String(); }

cls_FieldHandle const& ddr_ShortcutBaseImpl::ImplField() {
    static cls_FieldHandle const field(-1, "impl");
    return field;
}
cls_FieldHandle const& ddr_ShortcutBaseImpl::NameField() {
    static cls_FieldHandle const field(-1, "name");
    return field;
}
cls_FieldHandle const& ddr_ShortcutBaseImpl::IndexField() {
    static cls_FieldHandle const field(-1, "index");
    return field;
}
cls_FieldHandle const& ddr_ShortcutBaseImpl::ParentField() {
    static cls_FieldHandle const field(-1, "parent");
    return field;
}

char const* ddr_ShortcutBaseImpl::Source() { return "generated/include/ddr_Shortcut"; }

void ddr_ShortcutBaseImpl::RaiseUnset() {
    nex_TextException(atr_raw("The shortcut is not set.")).Throw(Source(), __LINE__);
}

cls_ClassMetadata& ddr_ShortcutBaseImpl::Describe(cls_ClassRegistrar& registrar, unsigned typeId,
                                                  cls_ClassMetadata::Constructor constructor,
                                                  unsigned parentTypeId,
                                                  void (*release)(cow_HandleBase*)) {
    return registrar
        .CreateClassMD(typ_ArchCompTable::GetName(typeId), typeId, 203, constructor, parentTypeId)
        .AddDtor(release);
}

cls_ClassMetadata& ddr_ShortcutBaseImpl::WithSmallTable(cls_ClassMetadata& metadata) {
    return metadata.AddTableExtentQuantum(
        thr_ThreadSingleton<cls_ExtQuant>::Instance().ExtentQuantumConstSmall());
}
cls_ClassMetadata& ddr_ShortcutBaseImpl::WithMediumTable(cls_ClassMetadata& metadata) {
    return metadata.AddTableExtentQuantum(
        thr_ThreadSingleton<cls_ExtQuant>::Instance().ExtentQuantumConstMedium());
}
