#pragma once

#include "cow_ArrayCOW.h"
#include "cow_List.h"
#include "cow_Virtual.h"
#include "omu_Primitive.h"

/// A sequence of primitives: the form of a change record. A copy shares its members.
class omu_PrimTuple : public omu_PrimSequence {
public:
    using Member = cow_ArrayCOW<omu_Primitive, cow_Virtual<omu_Primitive>>;

    /// \p capacity is a hint; \p open is the code of the bracket that the text begins with.
    omu_PrimTuple(int capacity, char open);

    void Put(char const* value);
    void Put(cow_String const& value);
    void Put(int value);
    void Put(double value);

    /// The member in place; ends the process on an index outside, as every checked access does.
    omu_Primitive const& Get(int index) const;

    cow_String TypeString() const override;
    cow_String AsString(int form) const override;
    cow_String AsRepr() const override;
    bool operator==(omu_Primitive const& other) const override;
    void Accept(omu_PrimVisitor* visitor) const override;
    omu_Primitive* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;

    int Size() const override;
    omu_Primitive* Index(int index) const override;
    omu_PrimSequence* Slice(int from, int to) const override;
    omu_PrimSequence* Repeat(int times) const override;
    omu_PrimSequence* Concat(omu_PrimSequence* other) const override;

    static unsigned TypeId();

private:
    void Adopt(omu_Primitive* member);

    cow_List<Member> m_members;
    char m_open;
    cls_Uid m_uid = cls_Uid::AllocateUid();
};
