#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "cls_TypeAdapter.h"
#include "cow_Virtual.h"
#include "mdl_FieldTypeOf.h"
#include "mem_AllocationOperators.h"
#include "omn_FixedString.h"

// A persistent class is described once, in its own header:
//
//     class kmaC_Elastic : public kmaC_MaterialOption {
//         DD_CLASS(kmaC_Elastic, kmaC_MaterialOption, 0x238001E, 203, "Elastic")
//     public:
//         DD_ENUM(TypeEnm, ISOTROPIC, ORTHOTROPIC)
//         DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPIC)
//         DD_FIELD(int, dependencies, 0)
//         DD_FIELD(kmaC_MaterialTable, table)
//         DD_OPTION(kmaC_FailStress, failStress)
//         DD_END
//     };
//
// and defined in its source with DD_DEFINE, or DD_DEFINE_ROOT for a class without a parent, beside
// its rules. A field's line declares the member, gives its script name as nameCmd(), and is one row
// of the table from which writing, reading, registration, comparison and text forms follow.

/// Numbers the rows of a class: each field's line is an overload of ddRow for one number.
template <int index>
struct mdl_RowIndex {};

template <class T>
constexpr mdl_FieldRow mdl_MakeRow(char const* name, char const* script, std::size_t offset) {
    // The field's own line has said what is wrong with another type.
    if constexpr (mdl_DescribableField<T>)
        return {name, script, offset, &mdl_FieldTypeOf<T>::type};
    else
        return {};
}

// A mistake in a field's line is reported once, at that line. These stand between the assertions
// and the concepts, whose failed requirements would be listed under the message.
template <class T>
inline constexpr bool mdl_CanBeField = mdl_DescribableField<T>;
template <class T>
inline constexpr bool mdl_CanBeOption = mdl_DescribedObject<T>;

/// The rows of class C, one for each line.
template <class C>
constexpr auto mdl_RowsOf() {
    return []<int... index>(std::integer_sequence<int, index...>) {
        return std::array<mdl_FieldRow, sizeof...(index)>{C::ddRow(mdl_RowIndex<index>())...};
    }
    (std::make_integer_sequence<int, C::ddCount>());
}

/// Releases a heap-allocated handle on a T: what a class gives to AddDtor.
template <class T>
void mdl_ReleaseHandle(cow_HandleBase* handle) {
    if (!handle) return;
    auto* const typed = static_cast<cow_CountedHld<T>*>(handle);
    typed->~cow_CountedHld<T>();
    mem_Free(typed);
}

// ---- inside the class ------------------------------------------------------------------------

#define DD_COMMON(Class, id, schemaVersion)                        \
public:                                                            \
    using ddSelf = Class;                                          \
    static constexpr int ddVersion = schemaVersion;                \
    static constexpr unsigned TypeId() { return id; }              \
    static mdl_Description const& Description();                   \
    static void InitializeMetadata(cls_ClassRegistrar& registrar); \
    static void ddRow(); /* so that the name stands in a class without fields too */

#define DD_SCRIPT(script)                                                                 \
    static constexpr omn_FixedString constructorCmd() { return omn_FixedString(script); } \
    static constexpr omn_FixedString setValuesCmd() { return omn_FixedString("setValues"); }

#define DD_CONCRETE(Class)                          \
    explicit Class(cls_ReadVisitor const& visitor); \
    DD_WRITTEN(Class)

#define DD_WRITTEN(Class)                                                        \
    Class();                                                                     \
    Class(Class const&);                                                         \
    Class& operator=(Class const&);                                              \
    /* The rules, in order; AssertValid() and the host's check both run this. */ \
    void Rules(mdl_RuleVisitor& visitor) const;                                  \
    enum { ddFirst = __COUNTER__ };

/// A concrete class with a parent in the system. Its virtual operations are its root's.
#define DD_CLASS(Class, Base, id, schemaVersion, script)        \
    DD_CLASS_OWN_ASSERT(Class, Base, id, schemaVersion, script) \
    void AssertValid() const override;

/// The same where the root does not declare AssertValid(): the class says whether its own is
/// virtual.
#define DD_CLASS_OWN_ASSERT(Class, Base, id, schemaVersion, script) \
    DD_DERIVED(Class, Base, id, schemaVersion)                      \
    DD_SCRIPT(script)

/// The same for a class that scripts do not know.
#define DD_CLASS_UNSCRIPTED(Class, Base, id, schemaVersion) \
    DD_DERIVED(Class, Base, id, schemaVersion)              \
    void AssertValid() const override;

#define DD_DERIVED(Class, Base, id, schemaVersion)                \
    DD_COMMON(Class, id, schemaVersion)                           \
    using ddBase = Base;                                          \
    Base::ddRoot* Copy() const override;                          \
    unsigned DynTypeId() const override;                          \
    void DBWrite(cls_WriteVisitor const& visitor) const override; \
    DD_CONCRETE(Class)

/// A concrete class without a parent. It declares its own virtual operations, in its own order.
#define DD_ROOT(Class, id, schemaVersion, script) \
    DD_COMMON(Class, id, schemaVersion)           \
    DD_SCRIPT(script)                             \
    using ddRoot = Class;                         \
    DD_CONCRETE(Class)

/// The same for a class whose records are for others to read: there is no read constructor.
#define DD_ROOT_WRITTEN(Class, id, schemaVersion, script) \
    DD_COMMON(Class, id, schemaVersion)                   \
    DD_SCRIPT(script)                                     \
    using ddRoot = Class;                                 \
    DD_WRITTEN(Class)

/// The same for a class that scripts do not make.
#define DD_ROOT_UNSCRIPTED(Class, id, schemaVersion) \
    DD_COMMON(Class, id, schemaVersion)              \
    using ddRoot = Class;                            \
    DD_CONCRETE(Class)

/// An abstract class without a parent. It declares its virtual operations and its constructors.
#define DD_ABSTRACT(Class, id, schemaVersion) \
    DD_COMMON(Class, id, schemaVersion)       \
    using ddRoot = Class;                     \
    enum { ddFirst = __COUNTER__ };

/// An enumeration with its literals: each enumerator's name is its literal, from 0.
#define DD_ENUM(Enum, ...)                                    \
    enum class Enum : unsigned { __VA_ARGS__ };               \
    static constexpr omu_EnumRow Enum##Rows[] = {             \
        DD_EACH(DD_ENUM_ROW, Enum, __VA_ARGS__){nullptr, 0}}; \
    friend constexpr omu_EnumRow const* omu_Rows(Enum) { return Enum##Rows; }

#define DD_ENUM_ROW(Enum, literal) {#literal, static_cast<unsigned>(Enum::literal)},

/// A field, with its default after its name where that is not the type's own.
#define DD_FIELD(Type, name, ...) DD_FIELD_AS(Type, name, #name __VA_OPT__(, ) __VA_ARGS__)

/// A field whose script name differs from its schema name.
#define DD_FIELD_AS(Type, name, script, ...) \
    DD_CHECK_FIELD(Type, name)               \
    DD_COMMAND(name, script)                 \
    DD_ROW(Type, name, script, __VA_ARGS__)

/// A field of a class that scripts do not know: there is no nameCmd().
#define DD_FIELD_UNSCRIPTED(Type, name, ...) \
    DD_CHECK_FIELD(Type, name)               \
    DD_ROW(Type, name, #name, __VA_ARGS__)

/// An optional object, absent by default. Held directly: its static class is its class.
#define DD_OPTION(Held, name) DD_OPTION_AS(Held, name, #name)
#define DD_OPTION_AS(Held, name, script) \
    DD_CHECK_OPTION(Held, name)          \
    DD_COMMAND(name, script)             \
    DD_ROW(name##Handle, name, script)

#define DD_OPTION_UNSCRIPTED(Held, name) \
    DD_CHECK_OPTION(Held, name)          \
    DD_ROW(name##Handle, name, #name)

/// The same, copied by its own Copy().
#define DD_VIRTUAL_OPTION(Held, name)                           \
    DD_CHECK_HELD(Held, name)                                   \
    using name##Handle = cow_ArrayCOW<Held, cow_Virtual<Held>>; \
    DD_COMMAND(name, #name)                                     \
    DD_ROW(name##Handle, name, #name)

#define DD_CHECK_FIELD(Type, name)                                                    \
    static_assert(mdl_CanBeField<Type>, "field " #name ": no field can hold a " #Type \
                                        "; mdl_FieldTypeOf.h has the types that one can");

#define DD_CHECK_OPTION(Held, name) \
    DD_CHECK_HELD(Held, name)       \
    using name##Handle = cow_ArrayCOW<Held, cow_Direct<Held>>;

#define DD_CHECK_HELD(Held, name)        \
    static_assert(mdl_CanBeOption<Held>, \
                  "option " #name ": " #Held " is not a class described with DD_CLASS");

#define DD_COMMAND(name, script) \
    static constexpr omn_FixedString name##Cmd() { return omn_FixedString(script); }

// The default names its type, so that a wrong one is one error and not two.
#define DD_ROW(Type, name, script, ...)                                            \
    Type name __VA_OPT__(= Type){__VA_ARGS__};                                     \
    static constexpr mdl_FieldRow ddRow(mdl_RowIndex<__COUNTER__ - ddFirst - 1>) { \
        return mdl_MakeRow<Type>(#name, script, offsetof(ddSelf, name));           \
    }

/// Ends the fields with the object's own identity.
#define DD_END                                    \
    enum { ddCount = __COUNTER__ - ddFirst - 1 }; \
    cls_Uid uid = cls_Uid::AllocateUid();

// ---- in the class's source -------------------------------------------------------------------

#define DD_DEFINE_COMMON(Class, parentId, constructorName, baseDescription, module) \
    DD_DEFINE_WITH(cls_TypeAdapter, Class, parentId, constructorName, baseDescription, module)

#define DD_DEFINE_WITH(adapter, Class, parentId, constructorName, baseDescription, module) \
    Class::Class() = default;                                                              \
    Class::Class(Class const&) = default;                                                  \
    Class& Class::operator=(Class const&) = default;                                       \
    mdl_Description const& Class::Description() {                                          \
        static constexpr auto rows = mdl_RowsOf<Class>();                                  \
        static mdl_Description const description(                                          \
            {#Class, Class::TypeId(), Class::ddVersion, parentId, constructorName,         \
             offsetof(Class, uid), baseDescription, &module,                               \
             [](void const* object, mdl_RuleVisitor& visitor) {                            \
                 static_cast<Class const*>(object)->Rules(visitor);                        \
             },                                                                            \
             []() -> void* { return new Class; },                                          \
             [](void const* object) -> void* {                                             \
                 return new Class(*static_cast<Class const*>(object));                     \
             },                                                                            \
             [](void* object) { cow_Destroy(static_cast<Class*>(object)); }},              \
            rows.data(), static_cast<int>(rows.size()));                                   \
        return description;                                                                \
    }                                                                                      \
    void Class::InitializeMetadata(cls_ClassRegistrar& registrar) {                        \
        mdl_RegisterDescribed(registrar, new adapter<Class>(#Class, ddVersion, parentId),  \
                              mdl_ReleaseHandle<Class>, Description());                    \
    }                                                                                      \
    void Class::AssertValid() const {                                                      \
        mdl_AssertingVisitor visitor(module);                                              \
        Rules(visitor);                                                                    \
    }                                                                                      \
    unsigned Class::DynTypeId() const { return TypeId(); }

#define DD_DEFINE_FRAME(Class, constructorName, module)                     \
    DD_DEFINE_COMMON(Class, Class::ddBase::TypeId(), constructorName,       \
                     &Class::ddBase::Description(), module)                 \
    Class::Class(cls_ReadVisitor const& visitor) : ddBase(visitor), uid() { \
        Description().ReadFields(this, visitor);                            \
        uid = visitor.GetUid();                                             \
    }                                                                       \
    void Class::DBWrite(cls_WriteVisitor const& visitor) const {            \
        if (visitor.StartWrite(TypeId(), uid) == 0) return;                 \
        {                                                                   \
            cls_WriteVisitor base(visitor, ddBase::TypeId());               \
            ddBase::DBWrite(base);                                          \
        }                                                                   \
        Description().WriteFields(this, visitor);                           \
    }                                                                       \
    Class::ddBase::ddRoot* Class::Copy() const { return new Class(*this); }

/// The bodies of a class declared with DD_CLASS.
#define DD_DEFINE(Class, module) DD_DEFINE_FRAME(Class, Class::constructorCmd().Text(), module)
#define DD_DEFINE_UNSCRIPTED(Class, module) DD_DEFINE_FRAME(Class, nullptr, module)

#define DD_DEFINE_ROOT_FRAME(Class, constructorName, module)                  \
    DD_DEFINE_COMMON(Class, cls_RootTypeId, constructorName, nullptr, module) \
    Class::Class(cls_ReadVisitor const& visitor) : uid() {                    \
        Description().ReadFields(this, visitor);                              \
        uid = visitor.GetUid();                                               \
    }                                                                         \
    DD_DEFINE_ROOT_WRITE(Class)

#define DD_DEFINE_ROOT_WRITE(Class)                              \
    void Class::DBWrite(cls_WriteVisitor const& visitor) const { \
        if (visitor.StartWrite(TypeId(), uid) == 0) return;      \
        Description().WriteFields(this, visitor);                \
    }

/// The bodies of a class declared with DD_ROOT_WRITTEN.
#define DD_DEFINE_ROOT_WRITTEN(Class, module)                                                 \
    DD_DEFINE_WITH(cls_AbsTypeAdapter, Class, cls_RootTypeId, Class::constructorCmd().Text(), \
                   nullptr, module)                                                           \
    DD_DEFINE_ROOT_WRITE(Class)                                                               \
    Class* Class::Copy() const { return new Class(*this); }

/// The bodies of a class declared with DD_ROOT; Copy() too where the class has one.
#define DD_DEFINE_ROOT(Class, module)                                   \
    DD_DEFINE_ROOT_FRAME(Class, Class::constructorCmd().Text(), module) \
    Class* Class::Copy() const { return new Class(*this); }
#define DD_DEFINE_ROOT_UNSCRIPTED(Class, module) DD_DEFINE_ROOT_FRAME(Class, nullptr, module)

/// The bodies of a class declared with DD_ABSTRACT, but for its constructors.
#define DD_DEFINE_ABSTRACT(Class, module)                                                       \
    mdl_Description const& Class::Description() {                                               \
        static constexpr auto rows = mdl_RowsOf<Class>();                                       \
        static mdl_Description const description(                                               \
            {#Class, Class::TypeId(), Class::ddVersion, cls_RootTypeId, nullptr,                \
             offsetof(Class, uid), nullptr, &module, nullptr, nullptr, nullptr, nullptr},       \
            rows.data(), static_cast<int>(rows.size()));                                        \
        return description;                                                                     \
    }                                                                                           \
    void Class::InitializeMetadata(cls_ClassRegistrar& registrar) {                             \
        mdl_RegisterDescribed(registrar,                                                        \
                              new cls_AbsTypeAdapter<Class>(#Class, ddVersion, cls_RootTypeId), \
                              mdl_ReleaseHandle<Class>, Description());                         \
    }                                                                                           \
    unsigned Class::DynTypeId() const { return TypeId(); }                                      \
    void Class::DBWrite(cls_WriteVisitor const& visitor) const {                                \
        if (visitor.StartWrite(TypeId(), uid) == 0) return;                                     \
        Description().WriteFields(this, visitor);                                               \
    }

// ---- one macro call for each of a list of names ------------------------------------------------
// Each further name asks the preprocessor for one more scan; four levels allow 256 names.

#define DD_PARENS ()
#define DD_EXPAND(...) DD_EXPAND3(DD_EXPAND3(DD_EXPAND3(DD_EXPAND3(__VA_ARGS__))))
#define DD_EXPAND3(...) DD_EXPAND2(DD_EXPAND2(DD_EXPAND2(DD_EXPAND2(__VA_ARGS__))))
#define DD_EXPAND2(...) DD_EXPAND1(DD_EXPAND1(__VA_ARGS__))
#define DD_EXPAND1(...) __VA_ARGS__
#define DD_EACH(macro, data, ...) __VA_OPT__(DD_EXPAND(DD_EACH_STEP(macro, data, __VA_ARGS__)))
#define DD_EACH_STEP(macro, data, first, ...) \
    macro(data, first) __VA_OPT__(DD_EACH_AGAIN DD_PARENS(macro, data, __VA_ARGS__))
#define DD_EACH_AGAIN() DD_EACH_STEP
