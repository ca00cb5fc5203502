#pragma once

#include <memory>
#include <vector>

#include "cls_Codes.h"
#include "cls_FieldHandle.h"
#include "cow_HandleBase.h"
#include "cow_String.h"
#include "mem_AllocationOperators.h"

class cls_ReadVisitor;
class cls_WriteVisitor;

/// One registered field of a class.
struct cls_Attribute {
    cls_FieldHandle field;
    cls_AttributeType type;
    unsigned arg;  ///< 1 for plain values; the TypeId of the field's class or container kind
    cls_CollectionType collection;
};

/// One class's schema: built by the class, owned by the registrar.
class cls_ClassMetadata : public mem_AllocationOperators {
public:
    using Constructor = void* (*)(cls_ReadVisitor&);

    cls_ClassMetadata(cow_String const& name, unsigned typeId, int version, Constructor constructor,
                      unsigned parentTypeId);
    virtual ~cls_ClassMetadata();
    cls_ClassMetadata(cls_ClassMetadata const&) = delete;
    cls_ClassMetadata& operator=(cls_ClassMetadata const&) = delete;

    /// Writes an object of this class, where the metadata knows what with.
    virtual void DBWrite(void const* object, cls_WriteVisitor const& visitor) const;
    /// Destroys and frees an object of this class. Null is allowed.
    virtual void DeleteObject(void const* object) const;
    /// Releases a type-erased handle of this class and frees it, through AddDtor's function.
    virtual void DeleteCow(cow_HandleBase* handle) const;
    /// A new object read from a record; null where the class has no read constructor.
    virtual void* Ctor(cls_ReadVisitor const& visitor) const;
    /// Whether Ctor makes objects.
    virtual bool HasCtor() const;
    /// DeleteObject as a function: what a type-erased handle on such an object ends it with.
    virtual void (*Destroyer() const)(void*);

    /// Each returns the metadata for chaining.
    cls_ClassMetadata& AddDtor(void (*release)(cow_HandleBase*));
    cls_ClassMetadata& AddAttribute(cls_FieldHandle const& field, cls_AttributeType type,
                                    unsigned arg, cls_CollectionType collection);
    cls_ClassMetadata& AddTableExtentQuantum(int quantum);
    /// What a plain metadata object writes and ends objects of its class with; an adapter knows
    /// both by the class's type.
    cls_ClassMetadata& AddOperations(void (*write)(void const*, cls_WriteVisitor const&),
                                     void (*destroy)(void*));

    cow_String const& Name() const { return m_name; }
    unsigned TypeId() const { return m_typeId; }
    int Version() const { return m_version; }
    unsigned ParentTypeId() const { return m_parentTypeId; }
    int TableExtentQuantum() const { return m_quantum; }
    std::vector<cls_Attribute> const& Attributes() const { return m_attributes; }

private:
    cow_String m_name;
    unsigned m_typeId;
    int m_version;
    Constructor m_constructor;
    unsigned m_parentTypeId;
    int m_quantum = 0;
    void (*m_release)(cow_HandleBase*) = nullptr;
    void (*m_write)(void const*, cls_WriteVisitor const&) = nullptr;
    void (*m_destroy)(void*) = nullptr;
    std::vector<cls_Attribute> m_attributes;
};

/// Whether two registrations describe the same schema.
bool operator==(cls_ClassMetadata const& a, cls_ClassMetadata const& b);
