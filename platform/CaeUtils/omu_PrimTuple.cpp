#include "omu_PrimTuple.h"

#include <memory>
#include <string>

#include "cls_WriteVisitor.h"
#include "omu_PrimValues.h"
#include "omu_TypeIds.h"

omu_PrimTuple::omu_PrimTuple(int capacity, char open)
    : m_members(cow_ListConstruct(), capacity), m_open(open) {}

void omu_PrimTuple::Adopt(omu_Primitive* member) { m_members.Append(Member(member)); }

void omu_PrimTuple::Put(char const* value) { Put(cow_String(value)); }
void omu_PrimTuple::Put(cow_String const& value) { Adopt(new omu_PrimString(value)); }
void omu_PrimTuple::Put(int value) { Adopt(new omu_PrimInt(value)); }
void omu_PrimTuple::Put(double value) { Adopt(new omu_PrimDouble(value)); }

omu_Primitive const& omu_PrimTuple::Get(int index) const {
    return m_members.ConstGet(index).ConstGet();
}

cow_String omu_PrimTuple::TypeString() const { return cow_String("tuple"); }

cow_String omu_PrimTuple::AsString(int) const {
    std::string text(1, m_open);
    int const size = m_members.Size();
    for (int i = 0; i < size; ++i) {
        if (i) text += ", ";
        text += Get(i).AsRepr().Text();
    }
    // A script reads one member in round brackets as that member, so the comma makes it a tuple.
    if (size == 1 && m_open == '(') text += ',';
    text += m_open == '[' ? ']' : ')';
    return cow_String(text.c_str());
}
cow_String omu_PrimTuple::AsRepr() const { return AsString(0); }

bool omu_PrimTuple::operator==(omu_Primitive const& other) const {
    if (other.DynTypeId() != TypeId()) return false;
    omu_PrimTuple const& tuple = static_cast<omu_PrimTuple const&>(other);
    if (tuple.Size() != Size()) return false;
    for (int i = 0; i < Size(); ++i)
        if (!(Get(i) == tuple.Get(i))) return false;
    return true;
}

void omu_PrimTuple::Accept(omu_PrimVisitor* visitor) const { visitor->Visit(*this); }
omu_Primitive* omu_PrimTuple::Copy() const { return new omu_PrimTuple(*this); }
unsigned omu_PrimTuple::DynTypeId() const { return TypeId(); }
unsigned omu_PrimTuple::TypeId() { return omu_PrimTupleTypeId; }

void omu_PrimTuple::DBWrite(cls_WriteVisitor const& visitor) const {
    if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
    {
        cls_WriteVisitor base(visitor, omu_PrimSequence::TypeId());
        omu_PrimSequence::DBWrite(base);
    }
    static cls_FieldHandle const text(0, cow_String("value"));
    visitor.Agent().WriteString(text, AsRepr());
}

int omu_PrimTuple::Size() const { return m_members.Size(); }
omu_Primitive* omu_PrimTuple::Index(int index) const { return Get(index).Copy(); }

omu_PrimSequence* omu_PrimTuple::Slice(int from, int to) const {
    auto part = std::make_unique<omu_PrimTuple>(0, m_open);
    part->m_members = m_members.Slice(from, to);
    return part.release();
}

omu_PrimSequence* omu_PrimTuple::Repeat(int times) const {
    auto result = std::make_unique<omu_PrimTuple>(0, m_open);
    for (int i = 0; i < times; ++i) result->m_members.Concatenate(m_members);
    return result.release();
}

omu_PrimSequence* omu_PrimTuple::Concat(omu_PrimSequence* other) const {
    auto result = std::make_unique<omu_PrimTuple>(*this);
    int const added = other->Size();
    for (int i = 0; i < added; ++i) result->Adopt(other->Index(i));
    return result.release();
}
