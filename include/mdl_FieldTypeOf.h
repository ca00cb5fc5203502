#pragma once

#include "cls_xo1DArrayList.h"
#include "cls_xp.h"
#include "cow_Direct.h"
#include "mdl_1DArrayList.h"
#include "mdl_Description.h"
#include "omu_PrimEnum.h"

// The operations of each type of field that a class can be described with. Bodies that need no type
// stand in mdl_FieldType.cpp; the templates only restore the type.

/// Fields that are read and written by one call of the agent.
template <mdl_FieldKind kind>
class mdl_PlainField final : public mdl_FieldType {
public:
    constexpr mdl_PlainField(cls_AttributeType code)
        : mdl_FieldType(kind, code, cls_CollectionNone) {}
    void Write(void const* field, cls_WriteVisitor const& visitor,
               cls_FieldHandle const& handle) const override;
    void Read(void* field, cls_ReadVisitor const& visitor,
              cls_FieldHandle const& handle) const override;
    bool Same(void const* a, void const* b) const override;
};
extern template class mdl_PlainField<mdl_FieldKind::Int>;
extern template class mdl_PlainField<mdl_FieldKind::Double>;
extern template class mdl_PlainField<mdl_FieldKind::Bool>;
extern template class mdl_PlainField<mdl_FieldKind::String>;

/// Any enumeration: the number in memory, its literal in records.
class mdl_EnumField final : public mdl_FieldType {
public:
    constexpr explicit mdl_EnumField(omu_EnumRow const* rows)
        : mdl_FieldType(mdl_FieldKind::Enum, cls_AttributeEnum, cls_CollectionNone), m_rows(rows) {}
    void Write(void const* field, cls_WriteVisitor const& visitor,
               cls_FieldHandle const& handle) const override;
    void Read(void* field, cls_ReadVisitor const& visitor,
              cls_FieldHandle const& handle) const override;
    bool Same(void const* a, void const* b) const override;
    omu_EnumRow const* Rows() const override { return m_rows; }

private:
    omu_EnumRow const* m_rows;
};

/// Collections of plain values: lists, maps and arrays that are records of their own.
template <class Proxy>
class mdl_ProxyField final : public mdl_FieldType {
public:
    constexpr mdl_ProxyField(mdl_FieldKind kind, cls_CollectionType collection)
        : mdl_FieldType(kind, cls_AttributeObject, collection) {}
    unsigned Arg() const override {
        return Collection() == cls_CollectionMapString2Float ? cls_MapTypeId : cls_ListTypeId;
    }
    void Write(void const* field, cls_WriteVisitor const& visitor,
               cls_FieldHandle const& handle) const override;
    void Read(void* field, cls_ReadVisitor const& visitor,
              cls_FieldHandle const& handle) const override;
    bool Same(void const* a, void const* b) const override;
    cls_Uid const* Uid(void const* field) const override {
        return &static_cast<Proxy const*>(field)->uid;
    }
};
extern template class mdl_ProxyField<cls_xp1DArrayListDouble>;
extern template class mdl_ProxyField<cls_xp1DArrayListInt>;
extern template class mdl_ProxyField<cls_xpMapString2Float>;
extern template class mdl_ProxyField<cls_xp2DArrayDouble>;

/// What all fields that hold objects have in common.
class mdl_ObjectFieldBase : public mdl_FieldType {
public:
    constexpr mdl_ObjectFieldBase(mdl_FieldKind kind, cls_CollectionType collection)
        : mdl_FieldType(kind, cls_AttributeObject, collection) {}
    bool Same(void const* a, void const* b) const override;

protected:
    ~mdl_ObjectFieldBase() = default;
    /// Writes one object behind a handle, or the null of an absent one.
    template <class T>
    static void WriteOption(T const* object, cow_HandleBase const& member,
                            cls_WriteVisitor const& visitor, cls_FieldHandle const& handle) {
        if (!object) {
            visitor.Agent().WriteNull(handle);
            return;
        }
        cls_WriteVisitor sub(visitor, handle, &member, nullptr);
        object->DBWrite(sub);
    }
};

/// A described object held by value.
template <class T>
class mdl_ObjectField final : public mdl_ObjectFieldBase {
public:
    constexpr mdl_ObjectField() : mdl_ObjectFieldBase(mdl_FieldKind::Object, cls_CollectionNone) {}
    unsigned Arg() const override { return T::TypeId(); }
    void Write(void const* field, cls_WriteVisitor const& visitor,
               cls_FieldHandle const& handle) const override {
        cls_WriteVisitor sub(visitor, handle, nullptr, nullptr);
        static_cast<T const*>(field)->DBWrite(sub);
    }
    void Read(void* field, cls_ReadVisitor const& visitor,
              cls_FieldHandle const& handle) const override {
        cls_ReadVisitor const sub(visitor, handle);
        *static_cast<T*>(field) = T(sub);
    }
    mdl_Description const* Held() const override { return &T::Description(); }
    int Count(void const*) const override { return 1; }
    void const* ConstObject(void const* field, int) const override { return field; }
    void* MutableObject(void* field, int) const override { return field; }
    unsigned DynTypeIdOf(void const*) const override { return T::TypeId(); }
};

/// An optional object behind a handle.
template <class Handle, class T>
class mdl_OptionField final : public mdl_ObjectFieldBase {
public:
    constexpr mdl_OptionField() : mdl_ObjectFieldBase(mdl_FieldKind::Option, cls_CollectionNone) {}
    unsigned Arg() const override { return T::TypeId(); }
    void Write(void const* field, cls_WriteVisitor const& visitor,
               cls_FieldHandle const& handle) const override {
        WriteOption(As(field).GetPtr(), As(field), visitor, handle);
    }
    void Read(void* field, cls_ReadVisitor const& visitor,
              cls_FieldHandle const& handle) const override {
        As(field) = Handle(cow_ShareErased(), visitor.Memento().ReadObject(handle, T::TypeId()));
    }
    mdl_Description const* Held() const override { return &T::Description(); }
    int Count(void const*) const override { return 1; }
    void const* ConstObject(void const* field, int) const override { return As(field).GetPtr(); }
    void* MutableObject(void* field, int) const override {
        return As(field).GetPtr() ? &As(field).Get() : nullptr;
    }
    unsigned DynTypeIdOf(void const* object) const override {
        return static_cast<T const*>(object)->DynTypeId();
    }
    void Adopt(void* field, void* object) const override {
        As(field) = Handle(static_cast<T*>(object));
    }
    void Clear(void* field) const override { As(field) = Handle(); }

private:
    static Handle& As(void* field) { return *static_cast<Handle*>(field); }
    static Handle const& As(void const* field) { return *static_cast<Handle const*>(field); }
};

/// A list of handles, whose objects may be null and of any class derived from T.
template <class List, class Handle, class T>
class mdl_OptionListField final : public mdl_ObjectFieldBase {
public:
    constexpr mdl_OptionListField()
        : mdl_ObjectFieldBase(mdl_FieldKind::OptionList, cls_CollectionList) {}
    unsigned Arg() const override { return cls_ListTypeId; }
    void Write(void const* field, cls_WriteVisitor const& visitor,
               cls_FieldHandle const& handle) const override {
        cls_WriteVisitor sub(visitor, handle, nullptr, nullptr);
        As(field).DBWrite(sub);
    }
    void Read(void* field, cls_ReadVisitor const& visitor,
              cls_FieldHandle const& handle) const override {
        cls_ReadVisitor const sub(visitor, handle);
        As(field) = List(sub);
    }
    mdl_Description const* Held() const override { return &T::Description(); }
    cls_Uid const* Uid(void const* field) const override { return &As(field).list.uid; }
    int Count(void const* field) const override { return As(field).Size(); }
    void const* ConstObject(void const* field, int index) const override {
        return As(field).ConstGet(index).GetPtr();
    }
    void* MutableObject(void* field, int index) const override {
        return As(field).ConstGet(index).GetPtr() ? &As(field).Get(index).Get() : nullptr;
    }
    unsigned DynTypeIdOf(void const* object) const override {
        return static_cast<T const*>(object)->DynTypeId();
    }
    void Adopt(void* field, void* object) const override {
        As(field).Append(Handle(static_cast<T*>(object)));
    }
    void Clear(void* field) const override { As(field) = List(); }

private:
    static List& As(void* field) { return *static_cast<List*>(field); }
    static List const& As(void const* field) { return *static_cast<List const*>(field); }
};

/// A list of objects by value.
template <class T>
class mdl_ObjectListField final : public mdl_ObjectFieldBase {
public:
    constexpr mdl_ObjectListField()
        : mdl_ObjectFieldBase(mdl_FieldKind::ObjectList, cls_CollectionList) {}
    unsigned Arg() const override { return cls_ListTypeId; }
    void Write(void const* field, cls_WriteVisitor const& visitor,
               cls_FieldHandle const& handle) const override {
        cls_WriteVisitor sub(visitor, handle, nullptr, nullptr);
        As(field).DBWrite(sub);
    }
    void Read(void* field, cls_ReadVisitor const& visitor,
              cls_FieldHandle const& handle) const override {
        cls_ReadVisitor const sub(visitor, handle);
        As(field) = cls_xo1DArrayList<T>(sub, As(field).context);
    }
    mdl_Description const* Held() const override { return &T::Description(); }
    cls_Uid const* Uid(void const* field) const override { return &As(field).uid; }
    int Count(void const* field) const override { return As(field).Size(); }
    void const* ConstObject(void const* field, int index) const override {
        return &As(field).ConstGet(index);
    }
    void* MutableObject(void* field, int index) const override { return &As(field).Get(index); }
    unsigned DynTypeIdOf(void const*) const override { return T::TypeId(); }
    void Adopt(void* field, void* object) const override {
        cow_Owned<T> const element(static_cast<T*>(object));
        As(field).Append(*element.Get());
    }
    void Clear(void* field) const override { As(field).Resize(0); }

private:
    static cls_xo1DArrayList<T>& As(void* field) {
        return *static_cast<cls_xo1DArrayList<T>*>(field);
    }
    static cls_xo1DArrayList<T> const& As(void const* field) {
        return *static_cast<cls_xo1DArrayList<T> const*>(field);
    }
};

// ---- the operations of a C++ type ------------------------------------------------------------

template <class T>
concept mdl_DescribedObject = requires {
    { T::Description() } -> std::same_as<mdl_Description const&>;
};

/// The operations of fields of type T; a type without a specialisation is not a type of field.
template <class T>
struct mdl_FieldTypeOf;

template <>
struct mdl_FieldTypeOf<int> {
    static constexpr mdl_PlainField<mdl_FieldKind::Int> type{cls_AttributeInt};
};
template <>
struct mdl_FieldTypeOf<double> {
    static constexpr mdl_PlainField<mdl_FieldKind::Double> type{cls_AttributeDouble};
};
template <>
struct mdl_FieldTypeOf<bool> {
    static constexpr mdl_PlainField<mdl_FieldKind::Bool> type{cls_AttributeBool};
};
template <>
struct mdl_FieldTypeOf<cow_String> {
    static constexpr mdl_PlainField<mdl_FieldKind::String> type{cls_AttributeString};
};
template <omu_TabledEnum E>
struct mdl_FieldTypeOf<E> {
    static_assert(sizeof(E) == sizeof(unsigned));
    static constexpr mdl_EnumField type{omu_Rows(E())};
};
template <>
struct mdl_FieldTypeOf<cls_xp1DArrayListDouble> {
    static constexpr mdl_ProxyField<cls_xp1DArrayListDouble> type{mdl_FieldKind::DoubleList,
                                                                  cls_CollectionListDouble};
};
template <>
struct mdl_FieldTypeOf<cls_xp1DArrayListInt> {
    static constexpr mdl_ProxyField<cls_xp1DArrayListInt> type{mdl_FieldKind::IntList,
                                                               cls_CollectionListInt};
};
template <>
struct mdl_FieldTypeOf<cls_xpMapString2Float> {
    static constexpr mdl_ProxyField<cls_xpMapString2Float> type{mdl_FieldKind::FloatMap,
                                                                cls_CollectionMapString2Float};
};
template <>
struct mdl_FieldTypeOf<cls_xp2DArrayDouble> {
    static constexpr mdl_ProxyField<cls_xp2DArrayDouble> type{mdl_FieldKind::Array,
                                                              cls_CollectionArray2DDouble};
};
template <mdl_DescribedObject T>
struct mdl_FieldTypeOf<T> {
    static constexpr mdl_ObjectField<T> type{};
};
template <mdl_DescribedObject T, class P>
struct mdl_FieldTypeOf<cow_ArrayCOW<T, P>> {
    static constexpr mdl_OptionField<cow_ArrayCOW<T, P>, T> type{};
};
template <class V, mdl_DescribedObject T>
struct mdl_FieldTypeOf<mdl_1DArrayList<V, T>> {
    static constexpr mdl_OptionListField<mdl_1DArrayList<V, T>, V, T> type{};
};
template <mdl_DescribedObject T>
struct mdl_FieldTypeOf<cls_xo1DArrayList<T>> {
    static constexpr mdl_ObjectListField<T> type{};
};

/// Asks for the specialisation alone, not for its instance: within a class, where a field's line
/// asks, the literals of the class's own enumerations are not yet to be had.
template <class T>
concept mdl_DescribableField = requires {
    sizeof(mdl_FieldTypeOf<T>);
};
