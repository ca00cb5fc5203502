#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "omu_PrimEnumBase.h"

class mdl_Description;

/// What a described field holds: decides how its address is to be read.
enum class mdl_FieldKind {
    Int,         ///< int
    Double,      ///< double
    String,      ///< cow_String
    Bool,        ///< bool
    Enum,        ///< a DD_ENUM; Number() and SetNumber()
    Object,      ///< an object held by value
    Option,      ///< an optional object behind a handle
    OptionList,  ///< a list of handles, whose objects may be of any derived class
    ObjectList,  ///< a list of objects by value
    IntList,     ///< cls_xp1DArrayListInt
    DoubleList,  ///< cls_xp1DArrayListDouble
    FloatMap,    ///< cls_xpMapString2Float
    Array        ///< cls_xp2DArrayDouble
};

/// The operations of one type of field: one immortal instance a C++ type, not one a field. The
/// engine, JSON, scripts and reference pages reach every field of every class through these.
///
/// Objects pass as void pointers to their whole object. All described classes derive singly from
/// one root, so that address is the same at every level.
class mdl_FieldType {
public:
    constexpr mdl_FieldType(mdl_FieldKind kind, cls_AttributeType code,
                            cls_CollectionType collection)
        : m_kind(kind), m_code(code), m_collection(collection) {}

    mdl_FieldKind Kind() const { return m_kind; }
    cls_AttributeType Code() const { return m_code; }
    cls_CollectionType Collection() const { return m_collection; }
    /// The third argument of the registration.
    virtual unsigned Arg() const { return 1; }

    virtual void Write(void const* field, cls_WriteVisitor const& visitor,
                       cls_FieldHandle const& handle) const = 0;
    virtual void Read(void* field, cls_ReadVisitor const& visitor,
                      cls_FieldHandle const& handle) const = 0;
    /// Whether two fields hold the same content. Identities take no part; a NaN equals a NaN of the
    /// same bits and zeros differ by their sign, since this asks whether anything was lost.
    virtual bool Same(void const* a, void const* b) const = 0;

    /// The identity of the record that the field itself is, as lists, maps and arrays are; null
    /// where the field is none. Objects in the field have their own.
    virtual cls_Uid const* Uid(void const*) const { return nullptr; }

    // ---- enumerations ----
    virtual omu_EnumRow const* Rows() const { return nullptr; }
    unsigned Number(void const* field) const;
    void SetNumber(void* field, unsigned number) const;

    // ---- objects, options and lists of them ----
    /// The declared class; null where the field holds no objects.
    virtual mdl_Description const* Held() const { return nullptr; }
    /// How many places there are: 1 for an object or option, the length for a list.
    virtual int Count(void const* field) const;
    /// The object in a place, null where there is none.
    virtual void const* ConstObject(void const* field, int index) const;
    /// The same for writing: detaches.
    virtual void* MutableObject(void* field, int index) const;
    virtual unsigned DynTypeIdOf(void const* object) const;
    /// Takes ownership of \p object (null for none): sets an option, or appends to a list.
    virtual void Adopt(void* field, void* object) const;
    /// Back to absent, or to an empty list.
    virtual void Clear(void* field) const;

protected:
    ~mdl_FieldType() = default;

private:
    mdl_FieldKind m_kind;
    cls_AttributeType m_code;
    cls_CollectionType m_collection;
};
