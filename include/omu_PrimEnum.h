#pragma once

#include <type_traits>

#include "omu_PrimEnumBase.h"

/// An enumeration with a table of literals: one declared with DD_ENUM, or one that offers
/// `omu_EnumRow const* omu_Rows(E)` where argument-dependent look-up finds it.
template <class E>
concept omu_TabledEnum = std::is_enum_v<E> && requires(E e) {
    { omu_Rows(e) } -> std::convertible_to<omu_EnumRow const*>;
};

/// The crossing between an enumeration's number, its literal and the list of what is permitted; the
/// one place where a bad value is refused on the spot. Lives on the stack for one conversion. The
/// tables are small, so a linear scan is all there is.
template <class E, int N>
class omu_PrimEnum : public omu_PrimEnumBase {
    static_assert(omu_TabledEnum<E>, "omu_PrimEnum: the enumeration has no table of literals");

public:
    explicit omu_PrimEnum(E value) : m_value() {
        if (!SetValue(value)) RaiseNumber(Rows(), static_cast<int>(value));
    }
    explicit omu_PrimEnum(omu_PrimEnumBase const& other) : m_value() {
        if (!SetValue(other.GetString())) RaiseOther(other.GetString());
    }
    explicit omu_PrimEnum(cow_String const& literal) : m_value() {
        if (!SetValue(literal.Text())) RaiseLiteral(Rows(), literal.Text());
    }
    explicit omu_PrimEnum(cls_ReadVisitor const& visitor) : omu_PrimEnumBase(visitor), m_value() {
        cow_String const literal(GetString());
        if (!SetValue(literal.Text())) RaiseStored(Rows(), literal.Text());
    }
    omu_PrimEnum(omu_PrimEnum const&) = default;
    omu_PrimEnum& operator=(omu_PrimEnum const&) = default;

    bool SetValue(char const* literal) override { return Take(FindRow(Rows(), literal)); }
    bool SetValue(E value) { return Take(FindRow(Rows(), static_cast<unsigned>(value))); }
    operator E() const { return m_value; }
    /// The value in row \p position, with no bounds check.
    static E Value(int position) { return static_cast<E>(omu_Rows(E())[position].value); }

    bool operator==(omu_Primitive const& other) const override {
        return omu_PrimEnumBase::operator==(other);
    }
    omu_Primitive* Copy() const override { return new omu_PrimEnum(*this); }
    cow_Map<cow_String, unsigned> PermissibleValues() const override {
        cow_Map<cow_String, unsigned> result;
        for (omu_EnumRow const* row = Rows(); row->literal; ++row)
            result.Insert(cow_String(row->literal), row->value);
        return result;
    }

private:
    omu_EnumRow const* Rows() const override { return omu_Rows(E()); }
    bool Take(omu_EnumRow const* row) {
        if (!row) return false;
        // The literal first: it may fail for want of memory, and the two must stay in step.
        TakeLiteral(row->literal);
        m_value = static_cast<E>(row->value);
        return true;
    }

    E m_value;
};
