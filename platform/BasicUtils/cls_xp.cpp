#include "cls_xp.h"

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"

namespace {

template <class Write>
void WriteCollection(cls_WriteVisitor const& visitor, unsigned kind, cls_CollectionType collection,
                     cls_Uid const& uid, Write write) {
    if (visitor.StartWrite(kind, uid) == 0) return;
    visitor.CheckCollectionType(collection);
    write(visitor.Agent());
}

}  // namespace

cls_xp1DArrayListDouble::cls_xp1DArrayListDouble(cls_ReadVisitor const& visitor)
    : uid(visitor.GetUid()) {
    visitor.Memento().ReadList(*this);
}
cls_xp1DArrayListDouble& cls_xp1DArrayListDouble::operator=(cow_List<double> const& list) {
    cow_List<double>::operator=(list);
    return *this;
}
void cls_xp1DArrayListDouble::DBWrite(cls_WriteVisitor const& visitor) const {
    WriteCollection(visitor, cls_ListTypeId, cls_CollectionListDouble, uid,
                    [&](cls_WriteAgent& agent) { agent.WriteList(*this); });
}

cls_xp1DArrayListInt::cls_xp1DArrayListInt(cls_ReadVisitor const& visitor) : uid(visitor.GetUid()) {
    visitor.Memento().ReadList(*this);
}
cls_xp1DArrayListInt& cls_xp1DArrayListInt::operator=(cow_List<int> const& list) {
    cow_List<int>::operator=(list);
    return *this;
}
void cls_xp1DArrayListInt::DBWrite(cls_WriteVisitor const& visitor) const {
    WriteCollection(visitor, cls_ListTypeId, cls_CollectionListInt, uid,
                    [&](cls_WriteAgent& agent) { agent.WriteList(*this); });
}

cls_xpMapString2Float::cls_xpMapString2Float(cls_ReadVisitor const& visitor)
    : uid(visitor.GetUid()) {
    visitor.Memento().ReadMap(*this);
}
cls_xpMapString2Float& cls_xpMapString2Float::operator=(cow_Map<cow_String, float> const& map) {
    cow_Map<cow_String, float>::operator=(map);
    return *this;
}
void cls_xpMapString2Float::DBWrite(cls_WriteVisitor const& visitor) const {
    WriteCollection(visitor, cls_MapTypeId, cls_CollectionMapString2Float, uid,
                    [&](cls_WriteAgent& agent) { agent.WriteMap(*this); });
}

cls_xp2DArrayDouble::cls_xp2DArrayDouble(cls_ReadVisitor const& visitor)
    : cow_2DArray<double>(0, 0), uid(visitor.GetUid()) {
    visitor.Memento().ReadArray(*this);
}
cls_xp2DArrayDouble& cls_xp2DArrayDouble::operator=(cow_2DArray<double> const& array) {
    cow_2DArray<double>::operator=(array);
    return *this;
}
void cls_xp2DArrayDouble::DBWrite(cls_WriteVisitor const& visitor) const {
    WriteCollection(visitor, cls_ListTypeId, cls_CollectionArray2DDouble, uid,
                    [&](cls_WriteAgent& agent) { agent.WriteArray(*this); });
}

cls_xp2DArrayDouble cls_xp2DArrayDoubleFromCow(cow_2DArray<double> const& array) {
    return cls_xp2DArrayDouble(array);
}
