#pragma once

#include "omu_Primitive.h"

/// A text as a script value.
class omu_PrimString : public omu_Primitive {
public:
    explicit omu_PrimString(cow_String const& value) : m_value(value) {}
    cow_String const& Value() const { return m_value; }

    cow_String TypeString() const override;
    cow_String AsString(int form) const override;
    /// A string literal in single quotes, with backslash, quote and control characters escaped.
    cow_String AsRepr() const override;
    bool operator==(omu_Primitive const& other) const override;
    void Accept(omu_PrimVisitor* visitor) const override;
    omu_Primitive* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;
    static unsigned TypeId();

private:
    cow_String m_value;
    cls_Uid m_uid = cls_Uid::AllocateUid();
};

/// An integer as a script value.
class omu_PrimInt : public omu_Primitive {
public:
    explicit omu_PrimInt(int value) : m_value(value) {}
    int Value() const { return m_value; }

    cow_String TypeString() const override;
    cow_String AsString(int form) const override;
    bool operator==(omu_Primitive const& other) const override;
    void Accept(omu_PrimVisitor* visitor) const override;
    omu_Primitive* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;
    static unsigned TypeId();

private:
    int m_value;
    cls_Uid m_uid = cls_Uid::AllocateUid();
};

/// A real as a script value; its text is the shortest that reads back as the same number.
class omu_PrimDouble : public omu_Primitive {
public:
    explicit omu_PrimDouble(double value) : m_value(value) {}
    double Value() const { return m_value; }

    cow_String TypeString() const override;
    cow_String AsString(int form) const override;
    bool operator==(omu_Primitive const& other) const override;
    void Accept(omu_PrimVisitor* visitor) const override;
    omu_Primitive* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;
    static unsigned TypeId();

private:
    double m_value;
    cls_Uid m_uid = cls_Uid::AllocateUid();
};
