#pragma once

#include "cls_Codes.h"
#include "cls_FieldHandle.h"
#include "cls_Uid.h"
#include "cow_2DArray.h"
#include "cow_HandleBase.h"
#include "cow_List.h"
#include "cow_Map.h"

class cls_WriteListObj;
class cls_WriteMapInt2Obj;
class cls_WriteMapString2Obj;

/// The side of a write visitor that a record store implements: one agent stands for one record
/// under construction, or for a field of it whose object has not started yet. Agents belong to
/// their store; visitors borrow them and give them back with End().
class cls_WriteAgent {
public:
    virtual void WriteNull(cls_FieldHandle const& field) = 0;
    virtual void WriteString(cls_FieldHandle const& field, cow_String const& value) = 0;
    /// Text that lives as long as the process: an enumeration's literal. A store that can do better
    /// than with any other text overrides this.
    virtual void WriteLiteral(cls_FieldHandle const& field, char const* literal) {
        WriteString(field, cow_String(literal));
    }
    virtual void WriteDouble(cls_FieldHandle const& field, double const& value) = 0;
    virtual void WriteInt(cls_FieldHandle const& field, int const& value) = 0;
    virtual void WriteBool(cls_FieldHandle const& field, bool const& value) = 0;

    /// The collection writers. The caller deletes one only if its MustDelete() says so.
    virtual cls_WriteListObj* OpenList(int one) = 0;
    virtual cls_WriteMapInt2Obj* OpenMapInt() = 0;
    virtual cls_WriteMapString2Obj* OpenMapString() = 0;

    /// Whole collections of plain values, in one call each.
    virtual void WriteList(cow_List<double> const& values) = 0;
    virtual void WriteList(cow_List<int> const& values) = 0;
    virtual void WriteMap(cow_Map<cow_String, float> const& values) = 0;
    virtual void WriteArray(cow_2DArray<double> const& values) = 0;

    /// Starts the record of an object at one class level. Returns 0 if this identity was already
    /// written at this level: the reference is made all the same, and the fields are to be left.
    virtual int StartWrite(unsigned typeId, cls_Uid const& uid) = 0;
    /// Raises unless the declared field holds this kind of collection.
    virtual void CheckCollectionType(cls_CollectionType collection) = 0;

    /// The agent for the base class's part of this record, and the agent for a field.
    virtual cls_WriteAgent* BaseAgent(unsigned typeId) = 0;
    virtual cls_WriteAgent* FieldAgent(cls_FieldHandle const& field,
                                       cow_HandleBase const* handle) = 0;
    /// Gives the agent back; the record is complete. A store that fails here remembers the failure
    /// and raises it at its next operation, since a destructor must not throw.
    virtual void End() noexcept = 0;

protected:
    ~cls_WriteAgent() = default;
};

/// One element of an open collection: what an element's visitor is made from.
class cls_AgentRequest {
public:
    virtual ~cls_AgentRequest();
    /// The agent for the element; the visitor gives it back.
    virtual cls_WriteAgent* Agent() const = 0;
};

/// Writes a list of objects, element by element.
class cls_WriteListObj {
public:
    virtual ~cls_WriteListObj();
    virtual bool MustDelete() const = 0;
    virtual void WriteNull(unsigned typeId) = 0;
    virtual cls_WriteAgent* ElementAgent() = 0;
};

/// Writes a map from text to objects, element by element.
class cls_WriteMapString2Obj {
public:
    virtual ~cls_WriteMapString2Obj();
    virtual bool MustDelete() const = 0;
    virtual void WriteNull(unsigned typeId, cow_String const& key) = 0;
    virtual cls_WriteAgent* ElementAgent(cow_String const& key) = 0;
};

/// Writes a map from integers to objects, element by element.
class cls_WriteMapInt2Obj {
public:
    virtual ~cls_WriteMapInt2Obj();
    virtual bool MustDelete() const = 0;
    virtual void WriteNull(unsigned typeId, int key) = 0;
    virtual cls_WriteAgent* ElementAgent(int key) = 0;
};

/// Lets go of a collection's writer when its scope ends, after the last element: only then does the
/// writer know whether the caller is to delete it. Also on the way out of a failure.
template <class Writer>
class cls_WriterScope {
public:
    explicit cls_WriterScope(Writer* writer) : m_writer(writer) {}
    ~cls_WriterScope() {
        if (m_writer->MustDelete()) delete m_writer;
    }
    cls_WriterScope(cls_WriterScope const&) = delete;
    cls_WriterScope& operator=(cls_WriterScope const&) = delete;

private:
    Writer* m_writer;
};

class cls_WriteRequestListObj : public cls_AgentRequest {
public:
    explicit cls_WriteRequestListObj(cls_WriteListObj* list) : m_list(list) {}
    cls_WriteAgent* Agent() const override { return m_list->ElementAgent(); }

private:
    cls_WriteListObj* m_list;
};

class cls_WriteRequestMapString2Obj : public cls_AgentRequest {
public:
    cls_WriteRequestMapString2Obj(cls_WriteMapString2Obj* map, cow_String const& key)
        : m_map(map), m_key(key) {}
    cls_WriteAgent* Agent() const override { return m_map->ElementAgent(m_key); }

private:
    cls_WriteMapString2Obj* m_map;
    cow_String m_key;
};

class cls_WriteRequestMapInt2Obj : public cls_AgentRequest {
public:
    cls_WriteRequestMapInt2Obj(cls_WriteMapInt2Obj* map, int key) : m_map(map), m_key(key) {}
    cls_WriteAgent* Agent() const override { return m_map->ElementAgent(m_key); }

private:
    cls_WriteMapInt2Obj* m_map;
    int m_key;
};
