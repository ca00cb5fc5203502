#pragma once

#include "cow_Map.h"
#include "omu_Primitive.h"

class cls_ReadVisitor;

/// One row of an enumeration's table: the literal of databases and scripts, and its number. Tables
/// end with a row whose literal is null. Literals are persistent and are never changed.
struct omu_EnumRow {
    char const* literal;
    unsigned value;
};

/// What all enumerated primitives share: the current literal, and every body that needs only the
/// table and not the enumeration's type.
class omu_PrimEnumBase : public omu_Primitive {
public:
    cow_String TypeString() const override;
    /// The literal; \p form is 0.
    cow_String AsString(int form) const override;
    bool operator==(omu_Primitive const& other) const override;
    void Accept(omu_PrimVisitor* visitor) const override;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;

    /// Takes the value of a literal; false, with nothing changed, if the table lacks it.
    virtual bool SetValue(char const* literal) = 0;
    virtual cow_Map<cow_String, unsigned> PermissibleValues() const = 0;

    /// The current literal as constant text.
    char const* GetString() const { return m_literal.Text(); }
    /// All literals, for messages: in table order, separated by a comma and a blank.
    cow_String PermissibleValuesAsString() const;

    static unsigned TypeId();

    /// The row of a literal or number, null if the table has none: the scan behind SetValue, for
    /// code that holds a table and no primitive.
    static omu_EnumRow const* FindRow(omu_EnumRow const* rows, char const* literal);
    static omu_EnumRow const* FindRow(omu_EnumRow const* rows, unsigned value);
    /// All literals of a table, as PermissibleValuesAsString gives them.
    static cow_String LiteralsOf(omu_EnumRow const* rows);

    /// The failures of the constructors.
    [[noreturn]] static void RaiseNumber(omu_EnumRow const* rows, int value);
    [[noreturn]] static void RaiseOther(char const* literal);
    [[noreturn]] static void RaiseLiteral(omu_EnumRow const* rows, char const* literal);
    [[noreturn]] static void RaiseStored(omu_EnumRow const* rows, char const* literal);

protected:
    omu_PrimEnumBase() = default;
    omu_PrimEnumBase(omu_PrimEnumBase const&) = default;
    omu_PrimEnumBase& operator=(omu_PrimEnumBase const&) = default;
    /// Reads the literal.
    explicit omu_PrimEnumBase(cls_ReadVisitor const& visitor);

    void TakeLiteral(char const* literal) { m_literal = cow_String(literal); }

private:
    virtual omu_EnumRow const* Rows() const = 0;

    cow_String m_literal;
    cls_Uid m_uid = cls_Uid::AllocateUid();
};
