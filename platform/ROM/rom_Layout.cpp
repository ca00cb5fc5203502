#include "cls_Codes.h"
#include "nex_TextException.h"
#include "rom_Transporter.h"

namespace rom_Layout {

rfm_TableMetadata OfClass(cls_ClassMetadata const& metadata) {
    rfm_TableMetadata layout(metadata.TypeId(), metadata.Name(), metadata.Version(),
                             metadata.ParentTypeId());
    for (cls_Attribute const& attribute : metadata.Attributes()) {
        cow_String const& name = attribute.field.Name();
        switch (attribute.type) {
            case cls_AttributeInt:
            case cls_AttributeBool:
                layout.Add(name, rfm_ColumnKind::Int);
                break;
            case cls_AttributeDouble:
                layout.Add(name, rfm_ColumnKind::Double);
                break;
            case cls_AttributeString:
            case cls_AttributeEnum:
                layout.Add(name, rfm_ColumnKind::Text);
                break;
            case cls_AttributeObject:
                layout.Add(name + cow_String("#ClassID"), rfm_ColumnKind::Int);
                layout.Add(name + cow_String("#OID"), rfm_ColumnKind::Int);
                break;
        }
    }
    layout.Add("##BaseClassOID", rfm_ColumnKind::Int);
    layout.Add("##Uid", rfm_ColumnKind::Bytes);
    return layout;
}

rfm_TableMetadata OfList() {
    rfm_TableMetadata layout(cls_ListTypeId, "cls_List", 203, cls_RootTypeId);
    layout.Add("Target#Handle", rfm_ColumnKind::Bytes);
    layout.Add("Target#Columns", rfm_ColumnKind::Int);
    layout.Add("Target#Kind", rfm_ColumnKind::Int);
    layout.Add("#First", rfm_ColumnKind::Int);
    layout.Add("#Count", rfm_ColumnKind::Int);
    layout.Add("##Uid", rfm_ColumnKind::Bytes);
    return layout;
}

rfm_TableMetadata OfMap() {
    rfm_TableMetadata layout(cls_MapTypeId, "cls_Map", 203, cls_RootTypeId);
    layout.Add("Target#Kind", rfm_ColumnKind::Int);
    layout.Add("#First", rfm_ColumnKind::Int);
    layout.Add("#Count", rfm_ColumnKind::Int);
    layout.Add("##Uid", rfm_ColumnKind::Bytes);
    return layout;
}

rfm_TableMetadata OfListEntry() {
    rfm_TableMetadata layout(listEntryTypeId, "cls_ListEntry", 203, cls_RootTypeId);
    layout.Add("owner", rfm_ColumnKind::Int);
    layout.Add("value#ClassID", rfm_ColumnKind::Int);
    layout.Add("value#OID", rfm_ColumnKind::Int);
    return layout;
}

rfm_TableMetadata OfMapEntry() {
    rfm_TableMetadata layout(mapEntryTypeId, "cls_MapEntry", 203, cls_RootTypeId);
    layout.Add("owner", rfm_ColumnKind::Int);
    layout.Add("key", rfm_ColumnKind::Key);
    layout.Add("value#ClassID", rfm_ColumnKind::Int);
    layout.Add("value#OID", rfm_ColumnKind::Int);
    layout.Add("value", rfm_ColumnKind::Double);
    return layout;
}

rfm_TableMetadata OfType(unsigned typeId, cls_ClassRegistrar const& registrar) {
    switch (typeId) {
        case cls_ListTypeId:
            return OfList();
        case cls_MapTypeId:
            return OfMap();
        case listEntryTypeId:
            return OfListEntry();
        case mapEntryTypeId:
            return OfMapEntry();
        default:
            break;
    }
    cls_ClassMetadata const* metadata = registrar.Find(typeId);
    if (!metadata) {
        atr_String message = atr_raw("Class %s is not registered in this domain.");
        message.ReplaceNonTranslated(0, cow_String(static_cast<int>(typeId)));
        nex_TextException(message).Throw("platform/ROM/rom_Layout", 1);
    }
    return OfClass(*metadata);
}

}  // namespace rom_Layout
