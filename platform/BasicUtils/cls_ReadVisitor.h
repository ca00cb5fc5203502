#pragma once

#include <memory>

#include "cls_Codes.h"
#include "cls_FieldHandle.h"
#include "cls_Uid.h"
#include "cow_2DArray.h"
#include "cow_HandleBase.h"
#include "cow_List.h"
#include "cow_Map.h"

class cls_MementoRead;

/// Reads a stored list of objects from its first element. The caller deletes it.
class cls_ReadListObj {
public:
    virtual ~cls_ReadListObj();
    virtual int Size() = 0;
    virtual bool HasMore() = 0;
    /// The next element as a type-erased handle that the reader keeps; the caller shares it.
    virtual cow_HandleBase const& NextObject(unsigned typeId) = 0;
    /// Says which class the elements by value are of; before the first of them.
    virtual void ExpectByValue(unsigned typeId) = 0;
    /// The next element by value, for a cls_ReadVisitor, which releases it.
    virtual cls_MementoRead* NextMemento() = 0;
};

/// Reads a stored map from text to objects. Key() first, then Value(). The caller deletes it.
class cls_ReadMapString2Obj {
public:
    virtual ~cls_ReadMapString2Obj();
    virtual bool HasMore() = 0;
    virtual void Key(cow_String& result) = 0;
    virtual cow_HandleBase const& Value(unsigned typeId) = 0;
};

/// Reads a stored map from integers to objects. Key() first, then Value(). The caller deletes it.
class cls_ReadMapInt2Obj {
public:
    virtual ~cls_ReadMapInt2Obj();
    virtual bool HasMore() = 0;
    virtual int Key() = 0;
    virtual cow_HandleBase const& Value(unsigned typeId) = 0;
};

/// One stored object, as a record store shows it to a read constructor. A value that the record
/// lacks comes back as the default that was passed in.
class cls_MementoRead {
public:
    virtual void ReadString(cow_String& result, cls_FieldHandle const& field,
                            cow_String const& absent) = 0;
    virtual double ReadDouble(cls_FieldHandle const& field, double const& absent) = 0;
    virtual int ReadInt(cls_FieldHandle const& field, int const& absent) = 0;
    virtual bool ReadBool(cls_FieldHandle const& field, bool const& absent) = 0;
    /// The object of a field as a type-erased handle that the reader keeps; a null object comes
    /// back as a handle with a null pointer.
    virtual cow_HandleBase const& ReadObject(cls_FieldHandle const& field, unsigned typeId) = 0;

    virtual cls_ReadListObj* OpenList() = 0;
    virtual cls_ReadMapInt2Obj* OpenMapInt() = 0;
    virtual cls_ReadMapString2Obj* OpenMapString() = 0;

    /// Whole collections of plain values, in one call each.
    virtual void ReadList(cow_List<double>& result) = 0;
    virtual void ReadList(cow_List<int>& result) = 0;
    virtual void ReadMap(cow_Map<cow_String, float>& result) = 0;
    virtual void ReadArray(cow_2DArray<double>& result) = 0;

    /// Text without a copy, for literals: null if the record holds none. Good until the next call.
    virtual char const* ReadLiteral(cls_FieldHandle const& field) = 0;
    virtual cls_Uid GetUid() = 0;
    /// The record behind a field held by value, and the end of this one's use.
    virtual cls_MementoRead* FieldMemento(cls_FieldHandle const& field) = 0;
    virtual void Release() noexcept = 0;

protected:
    ~cls_MementoRead() = default;
};

/// What an object rebuilds itself from: a value on the stack over one stored object.
class cls_ReadVisitor {
public:
    /// Over one stored object, which the visitor releases.
    explicit cls_ReadVisitor(cls_MementoRead* memento) : m_memento(memento), m_owner(true) {}
    /// A copy reads the same record: what a derived class hands to its base.
    cls_ReadVisitor(cls_ReadVisitor const& other) : m_memento(other.m_memento), m_owner(false) {}
    cls_ReadVisitor(cls_ReadVisitor const& parent, cls_FieldHandle const& field)
        : m_memento(parent.m_memento->FieldMemento(field)), m_owner(true) {}
    ~cls_ReadVisitor() {
        if (m_owner) m_memento->Release();
    }
    cls_ReadVisitor& operator=(cls_ReadVisitor const&) = delete;

    cls_Uid GetUid() const { return m_memento->GetUid(); }
    cls_MementoRead& Memento() const { return *m_memento; }

private:
    cls_MementoRead* m_memento;
    bool m_owner;
};
