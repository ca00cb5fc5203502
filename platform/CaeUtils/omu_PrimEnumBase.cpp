#include "omu_PrimEnumBase.h"

#include <cstring>
#include <string>

#include "atr_translate.h"
#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "omu_TypeIds.h"
#include "omu_ValueErrorException.h"

namespace {

constexpr char const* primEnumSource = "generated/include/omu_PrimEnum";

cls_FieldHandle const& LiteralField() {
    static cls_FieldHandle const field(0, cow_String("literal"));
    return field;
}

char const* OrEmpty(char const* text) { return text ? text : ""; }

[[noreturn]] void Raise(atr_String const& message, int line) {
    omu_ValueErrorException(message).Throw(primEnumSource, line);
}

// Literals are text of a script, not of the interface, so they are put in untranslated.
atr_String WithTexts(char const* format, char const* first, char const* second) {
    atr_translate message(format);
    atr_SubstituteFormat(message, 1, first);
    if (second) atr_SubstituteFormat(message, 2, second);
    return message.Result();
}

}  // namespace

omu_PrimEnumBase::omu_PrimEnumBase(cls_ReadVisitor const& visitor) {
    visitor.Memento().ReadString(m_literal, LiteralField(), cow_String());
    m_uid = visitor.GetUid();
}

cow_String omu_PrimEnumBase::TypeString() const { return cow_String("SymbolicConstant"); }
cow_String omu_PrimEnumBase::AsString(int) const { return m_literal; }

bool omu_PrimEnumBase::operator==(omu_Primitive const& other) const {
    return other.DynTypeId() == TypeId() &&
           static_cast<omu_PrimEnumBase const&>(other).m_literal == m_literal;
}

void omu_PrimEnumBase::Accept(omu_PrimVisitor* visitor) const { visitor->Visit(*this); }
unsigned omu_PrimEnumBase::DynTypeId() const { return TypeId(); }
unsigned omu_PrimEnumBase::TypeId() { return omu_PrimEnumBaseTypeId; }

void omu_PrimEnumBase::DBWrite(cls_WriteVisitor const& visitor) const {
    if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
    {
        cls_WriteVisitor base(visitor, omu_Primitive::TypeId());
        omu_Primitive::DBWrite(base);
    }
    visitor.Agent().WriteString(LiteralField(), m_literal);
}

cow_String omu_PrimEnumBase::PermissibleValuesAsString() const { return LiteralsOf(Rows()); }

cow_String omu_PrimEnumBase::LiteralsOf(omu_EnumRow const* rows) {
    std::string text;
    for (omu_EnumRow const* row = rows; row->literal; ++row) {
        if (row != rows) text += ", ";
        text += row->literal;
    }
    return cow_String(text.c_str());
}

omu_EnumRow const* omu_PrimEnumBase::FindRow(omu_EnumRow const* rows, char const* literal) {
    for (omu_EnumRow const* row = rows; row->literal; ++row)
        if (std::strcmp(OrEmpty(literal), row->literal) == 0) return row;
    return nullptr;
}

omu_EnumRow const* omu_PrimEnumBase::FindRow(omu_EnumRow const* rows, unsigned value) {
    for (omu_EnumRow const* row = rows; row->literal; ++row)
        if (row->value == value) return row;
    return nullptr;
}

void omu_PrimEnumBase::RaiseNumber(omu_EnumRow const* rows, int value) {
    Raise(atr("omu_PrimEnum(Enum) - Enum value not allowed: %d  Permissible: %s", value,
              LiteralsOf(rows).Text()),
          54);
}

void omu_PrimEnumBase::RaiseOther(char const* literal) {
    Raise(
        WithTexts("omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: %s", literal, nullptr),
        67);
}

void omu_PrimEnumBase::RaiseLiteral(omu_EnumRow const* rows, char const* literal) {
    Raise(WithTexts("omu_PrimEnum(const cow_String&) - str not allowed: %s  Permissible: %s",
                    literal, LiteralsOf(rows).Text()),
          81);
}

void omu_PrimEnumBase::RaiseStored(omu_EnumRow const* rows, char const* literal) {
    Raise(WithTexts("omu_PrimEnum(const cls_ReadVisitor&) - str not allowed: %s  Permissible: %s",
                    literal, LiteralsOf(rows).Text()),
          95);
}
