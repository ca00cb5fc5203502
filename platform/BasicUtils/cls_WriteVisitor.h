#pragma once

#include "cls_WriteAgent.h"

/// What an object writes itself to. A value on the stack: it borrows an agent of the record store
/// and gives it back when it goes, so nested visitors end in the reverse order of their making.
class cls_WriteVisitor {
public:
    /// Over an agent of a store: how a store starts a write.
    explicit cls_WriteVisitor(cls_WriteAgent* agent) : m_agent(agent) {}
    /// The part of the same record that belongs to base class \p typeId.
    cls_WriteVisitor(cls_WriteVisitor const& parent, unsigned typeId)
        : m_agent(parent.m_agent->BaseAgent(typeId)) {}
    /// A field. \p handle is the field's own copy-on-write handle where it is held through one, and
    /// null for a field held by value. \p extra is null throughout.
    cls_WriteVisitor(cls_WriteVisitor const& parent, cls_FieldHandle const& field,
                     cow_HandleBase const* handle, void const* /*extra*/)
        : m_agent(parent.m_agent->FieldAgent(field, handle)) {}
    /// One element of a collection.
    cls_WriteVisitor(cls_AgentRequest const& request, void const* /*extra*/)
        : m_agent(request.Agent()) {}
    ~cls_WriteVisitor() { m_agent->End(); }

    cls_WriteVisitor(cls_WriteVisitor const&) = delete;
    cls_WriteVisitor& operator=(cls_WriteVisitor const&) = delete;

    /// Declares the object. Non-zero if its fields must be written, 0 if this identity is already
    /// in this database: sharing on disk rests on this.
    int StartWrite(unsigned typeId, cls_Uid const& uid) const {
        return m_agent->StartWrite(typeId, uid);
    }
    void CheckCollectionType(cls_CollectionType collection) const {
        m_agent->CheckCollectionType(collection);
    }
    cls_WriteAgent& Agent() const { return *m_agent; }

private:
    cls_WriteAgent* m_agent;
};
