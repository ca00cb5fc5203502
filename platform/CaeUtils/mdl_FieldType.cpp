#include "mdl_FieldType.h"

#include <cstring>

#include "mdl_Description.h"
#include "mdl_FieldTypeOf.h"

unsigned mdl_FieldType::Number(void const* field) const {
    unsigned number;
    std::memcpy(&number, field, sizeof number);
    return number;
}

void mdl_FieldType::SetNumber(void* field, unsigned number) const {
    std::memcpy(field, &number, sizeof number);
}

int mdl_FieldType::Count(void const*) const { return 0; }
void const* mdl_FieldType::ConstObject(void const*, int) const { return nullptr; }
void* mdl_FieldType::MutableObject(void*, int) const { return nullptr; }
unsigned mdl_FieldType::DynTypeIdOf(void const*) const { return 0; }
void mdl_FieldType::Adopt(void*, void*) const {}
void mdl_FieldType::Clear(void*) const {}

// ---- plain values ----------------------------------------------------------------------------

namespace {

template <class T>
T const& At(void const* field) {
    return *static_cast<T const*>(field);
}
template <class T>
T& At(void* field) {
    return *static_cast<T*>(field);
}

bool SameBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

}  // namespace

template <mdl_FieldKind kind>
void mdl_PlainField<kind>::Write(void const* field, cls_WriteVisitor const& visitor,
                                 cls_FieldHandle const& handle) const {
    if constexpr (kind == mdl_FieldKind::Int)
        visitor.Agent().WriteInt(handle, At<int>(field));
    else if constexpr (kind == mdl_FieldKind::Double)
        visitor.Agent().WriteDouble(handle, At<double>(field));
    else if constexpr (kind == mdl_FieldKind::Bool)
        visitor.Agent().WriteBool(handle, At<bool>(field));
    else
        visitor.Agent().WriteString(handle, At<cow_String>(field));
}

template <mdl_FieldKind kind>
void mdl_PlainField<kind>::Read(void* field, cls_ReadVisitor const& visitor,
                                cls_FieldHandle const& handle) const {
    // The defaults are those of a missing value, not those of the class.
    if constexpr (kind == mdl_FieldKind::Int)
        At<int>(field) = visitor.Memento().ReadInt(handle, 0);
    else if constexpr (kind == mdl_FieldKind::Double)
        At<double>(field) = visitor.Memento().ReadDouble(handle, 0.0);
    else if constexpr (kind == mdl_FieldKind::Bool)
        At<bool>(field) = visitor.Memento().ReadBool(handle, false);
    else
        visitor.Memento().ReadString(At<cow_String>(field), handle, cow_String());
}

template <mdl_FieldKind kind>
bool mdl_PlainField<kind>::Same(void const* a, void const* b) const {
    if constexpr (kind == mdl_FieldKind::Int)
        return At<int>(a) == At<int>(b);
    else if constexpr (kind == mdl_FieldKind::Double)
        return SameBits(At<double>(a), At<double>(b));
    else if constexpr (kind == mdl_FieldKind::Bool)
        return At<bool>(a) == At<bool>(b);
    else
        return At<cow_String>(a) == At<cow_String>(b);
}

template class mdl_PlainField<mdl_FieldKind::Int>;
template class mdl_PlainField<mdl_FieldKind::Double>;
template class mdl_PlainField<mdl_FieldKind::Bool>;
template class mdl_PlainField<mdl_FieldKind::String>;

// ---- enumerations ----------------------------------------------------------------------------

void mdl_EnumField::Write(void const* field, cls_WriteVisitor const& visitor,
                          cls_FieldHandle const& handle) const {
    omu_EnumRow const* row = omu_PrimEnumBase::FindRow(m_rows, Number(field));
    if (!row) omu_PrimEnumBase::RaiseNumber(m_rows, static_cast<int>(Number(field)));
    visitor.Agent().WriteLiteral(handle, row->literal);
}

void mdl_EnumField::Read(void* field, cls_ReadVisitor const& visitor,
                         cls_FieldHandle const& handle) const {
    char const* literal = visitor.Memento().ReadLiteral(handle);
    if (!literal) literal = "";
    omu_EnumRow const* row = omu_PrimEnumBase::FindRow(m_rows, literal);
    if (!row) omu_PrimEnumBase::RaiseLiteral(m_rows, literal);
    SetNumber(field, row->value);
}

bool mdl_EnumField::Same(void const* a, void const* b) const { return Number(a) == Number(b); }

// ---- collections of plain values -------------------------------------------------------------

namespace {

bool SameValues(cls_xp1DArrayListDouble const& a, cls_xp1DArrayListDouble const& b) {
    if (a.Size() != b.Size()) return false;
    for (int i = 0; i < a.Size(); ++i)
        if (!SameBits(a.UncheckedConstGet(i), b.UncheckedConstGet(i))) return false;
    return true;
}

bool SameValues(cls_xp1DArrayListInt const& a, cls_xp1DArrayListInt const& b) {
    return a.IsEqual(b);
}

bool SameValues(cls_xpMapString2Float const& a, cls_xpMapString2Float const& b) {
    if (a.Size() != b.Size()) return false;
    cow_ConstMapIterator<cow_String, float> i(a);
    cow_ConstMapIterator<cow_String, float> j(b);
    for (i.First(), j.First(); !i.IsDone(); i.Next(), j.Next()) {
        float const x = i.CurrentValue();
        float const y = j.CurrentValue();
        if (i.CurrentKey() != j.CurrentKey() || std::memcmp(&x, &y, sizeof x) != 0) return false;
    }
    return true;
}

bool SameValues(cls_xp2DArrayDouble const& a, cls_xp2DArrayDouble const& b) {
    if (a.Rows() != b.Rows() || a.Columns() != b.Columns()) return false;
    std::size_t const cells =
        static_cast<std::size_t>(a.Rows()) * static_cast<std::size_t>(a.Columns());
    return cells == 0 || std::memcmp(a.Data(), b.Data(), cells * sizeof(double)) == 0;
}

}  // namespace

template <class Proxy>
void mdl_ProxyField<Proxy>::Write(void const* field, cls_WriteVisitor const& visitor,
                                  cls_FieldHandle const& handle) const {
    cls_WriteVisitor sub(visitor, handle, nullptr, nullptr);
    At<Proxy>(field).DBWrite(sub);
}

template <class Proxy>
void mdl_ProxyField<Proxy>::Read(void* field, cls_ReadVisitor const& visitor,
                                 cls_FieldHandle const& handle) const {
    cls_ReadVisitor const sub(visitor, handle);
    At<Proxy>(field) = Proxy(sub);
}

template <class Proxy>
bool mdl_ProxyField<Proxy>::Same(void const* a, void const* b) const {
    return SameValues(At<Proxy>(a), At<Proxy>(b));
}

template class mdl_ProxyField<cls_xp1DArrayListDouble>;
template class mdl_ProxyField<cls_xp1DArrayListInt>;
template class mdl_ProxyField<cls_xpMapString2Float>;
template class mdl_ProxyField<cls_xp2DArrayDouble>;

// ---- objects ---------------------------------------------------------------------------------

bool mdl_ObjectFieldBase::Same(void const* a, void const* b) const {
    int const count = Count(a);
    if (count != Count(b)) return false;
    for (int i = 0; i < count; ++i) {
        void const* x = ConstObject(a, i);
        void const* y = ConstObject(b, i);
        if (x == y) continue;
        if (!x || !y) return false;
        unsigned const typeId = DynTypeIdOf(x);
        if (typeId != DynTypeIdOf(y)) return false;
        // The declared class is known without having been registered.
        mdl_Description const* description =
            typeId == Held()->TypeId() ? Held() : mdl_Description::Find(typeId);
        if (!description || !description->Same(x, y)) return false;
    }
    return true;
}
