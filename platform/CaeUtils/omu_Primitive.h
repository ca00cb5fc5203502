#pragma once

#include "cls_Uid.h"
#include "cow_String.h"
#include "mem_AllocationOperators.h"

class cls_WriteVisitor;
class omu_PrimEnumBase;
class omu_PrimInt;
class omu_PrimDouble;
class omu_PrimString;
class omu_PrimTuple;

/// Told what kind of primitive it visits.
class omu_PrimVisitor {
public:
    virtual ~omu_PrimVisitor();
    virtual void Visit(omu_PrimEnumBase const&) = 0;
    virtual void Visit(omu_PrimInt const&) = 0;
    virtual void Visit(omu_PrimDouble const&) = 0;
    virtual void Visit(omu_PrimString const&) = 0;
    virtual void Visit(omu_PrimTuple const&) = 0;
};

/// The base of all script-side values: what goes into a change record and comes out of a script.
class omu_Primitive : public mem_AllocationOperators {
public:
    omu_Primitive();
    omu_Primitive(omu_Primitive const&) = default;
    omu_Primitive& operator=(omu_Primitive const&) = default;

    virtual ~omu_Primitive();
    /// The script-side name of the value's type.
    virtual cow_String TypeString() const;
    /// The value as text; \p form is 0 for the plain text, which is the only form there is.
    virtual cow_String AsString(int form) const = 0;
    /// The value as a script expression that evaluates to it.
    virtual cow_String AsRepr() const;
    virtual bool operator==(omu_Primitive const& other) const = 0;
    virtual void Accept(omu_PrimVisitor* visitor) const = 0;
    virtual omu_Primitive* Copy() const = 0;
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;

    /// A word that the scripting layer may mark a value with; copies take it along.
    unsigned State() const { return m_state; }
    void SetState(unsigned state) { m_state = state; }

    static unsigned TypeId();

private:
    unsigned m_state = 0;
    cls_Uid m_uid;
};

/// A primitive with members.
class omu_PrimSequence : public omu_Primitive {
public:
    omu_PrimSequence();
    omu_PrimSequence(omu_PrimSequence const&) = default;
    omu_PrimSequence& operator=(omu_PrimSequence const&) = default;

    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;

    virtual int Size() const = 0;
    /// A copy of the member, which the caller owns; an index outside ends the process, as every
    /// checked access does.
    virtual omu_Primitive* Index(int index) const = 0;
    /// New sequences, which the caller owns. Slice brings both ends into range; a negative one
    /// counts as the start.
    virtual omu_PrimSequence* Slice(int from, int to) const = 0;
    virtual omu_PrimSequence* Repeat(int times) const = 0;
    virtual omu_PrimSequence* Concat(omu_PrimSequence* other) const = 0;

    static unsigned TypeId();

private:
    cls_Uid m_uid;
};
