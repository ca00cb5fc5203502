#include "omu_PrimValues.h"

#include <charconv>
#include <cmath>
#include <string>

#include "cls_WriteVisitor.h"
#include "omu_TypeIds.h"

namespace {

// Each primitive is one record with its base's part and one value.
template <class Write>
void WriteValue(cls_WriteVisitor const& visitor, unsigned typeId, cls_Uid const& uid,
                omu_Primitive const& self, Write write) {
    if (visitor.StartWrite(typeId, uid) == 0) return;
    {
        cls_WriteVisitor base(visitor, omu_PrimitiveTypeId);
        self.omu_Primitive::DBWrite(base);
    }
    static cls_FieldHandle const value(0, cow_String("value"));
    write(visitor.Agent(), value);
}

}  // namespace

cow_String omu_PrimString::TypeString() const { return cow_String("str"); }
cow_String omu_PrimString::AsString(int) const { return m_value; }

cow_String omu_PrimString::AsRepr() const {
    static char const hex[] = "0123456789abcdef";
    std::string text = "'";
    for (char const letter : m_value.View()) {
        unsigned char const c = static_cast<unsigned char>(letter);
        if (c == '\\' || c == '\'') {
            text += '\\';
            text += letter;
        } else if (c == '\n') {
            text += "\\n";
        } else if (c == '\r') {
            text += "\\r";
        } else if (c == '\t') {
            text += "\\t";
        } else if (c < 0x20 || c == 0x7f) {
            text += "\\x";
            text += hex[c >> 4];
            text += hex[c & 15];
        } else {
            text += letter;
        }
    }
    text += '\'';
    return cow_String(text.c_str());
}

bool omu_PrimString::operator==(omu_Primitive const& other) const {
    return other.DynTypeId() == TypeId() &&
           static_cast<omu_PrimString const&>(other).m_value == m_value;
}
void omu_PrimString::Accept(omu_PrimVisitor* visitor) const { visitor->Visit(*this); }
omu_Primitive* omu_PrimString::Copy() const { return new omu_PrimString(*this); }
unsigned omu_PrimString::DynTypeId() const { return TypeId(); }
unsigned omu_PrimString::TypeId() { return omu_PrimStringTypeId; }
void omu_PrimString::DBWrite(cls_WriteVisitor const& visitor) const {
    WriteValue(visitor, TypeId(), m_uid, *this,
               [&](cls_WriteAgent& agent, cls_FieldHandle const& field) {
                   agent.WriteString(field, m_value);
               });
}

cow_String omu_PrimInt::TypeString() const { return cow_String("int"); }
cow_String omu_PrimInt::AsString(int) const { return cow_String(m_value); }
bool omu_PrimInt::operator==(omu_Primitive const& other) const {
    return other.DynTypeId() == TypeId() &&
           static_cast<omu_PrimInt const&>(other).m_value == m_value;
}
void omu_PrimInt::Accept(omu_PrimVisitor* visitor) const { visitor->Visit(*this); }
omu_Primitive* omu_PrimInt::Copy() const { return new omu_PrimInt(*this); }
unsigned omu_PrimInt::DynTypeId() const { return TypeId(); }
unsigned omu_PrimInt::TypeId() { return omu_PrimIntTypeId; }
void omu_PrimInt::DBWrite(cls_WriteVisitor const& visitor) const {
    WriteValue(visitor, TypeId(), m_uid, *this,
               [&](cls_WriteAgent& agent, cls_FieldHandle const& field) {
                   agent.WriteInt(field, m_value);
               });
}

cow_String omu_PrimDouble::TypeString() const { return cow_String("float"); }
cow_String omu_PrimDouble::AsString(int) const {
    if (std::isnan(m_value)) return cow_String("float('nan')");
    if (std::isinf(m_value)) return cow_String(m_value < 0 ? "float('-inf')" : "float('inf')");
    char text[40];
    char* end = std::to_chars(text, text + 32, m_value).ptr;
    bool whole = true;
    for (char* p = text; p != end; ++p)
        if (*p == '.' || *p == 'e') whole = false;
    if (whole) {
        *end++ = '.';
        *end++ = '0';
    }
    *end = '\0';
    return cow_String(text);
}
bool omu_PrimDouble::operator==(omu_Primitive const& other) const {
    return other.DynTypeId() == TypeId() &&
           static_cast<omu_PrimDouble const&>(other).m_value == m_value;
}
void omu_PrimDouble::Accept(omu_PrimVisitor* visitor) const { visitor->Visit(*this); }
omu_Primitive* omu_PrimDouble::Copy() const { return new omu_PrimDouble(*this); }
unsigned omu_PrimDouble::DynTypeId() const { return TypeId(); }
unsigned omu_PrimDouble::TypeId() { return omu_PrimDoubleTypeId; }
void omu_PrimDouble::DBWrite(cls_WriteVisitor const& visitor) const {
    WriteValue(visitor, TypeId(), m_uid, *this,
               [&](cls_WriteAgent& agent, cls_FieldHandle const& field) {
                   agent.WriteDouble(field, m_value);
               });
}
