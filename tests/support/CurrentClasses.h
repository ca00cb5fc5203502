#pragma once

#include <sstream>
#include <string>

#include "cls_ClassRegistrar.h"

namespace old_test {

/// Classes entered by hand, in the words of OldDatabase's layouts.
class CurrentClasses {
public:
    void Enter(unsigned typeId, char const* name, int version, unsigned parent,
               std::string const& fields) {
        cls_ClassMetadata& metadata =
            m_registrar.CreateClassMD(cow_String(name), typeId, version, nullptr, parent);
        std::istringstream in(fields);
        std::string kind, field;
        for (int index = 0; in >> kind >> field; ++index) {
            if (field.back() == ',') field.pop_back();
            cls_AttributeType const type = kind == "flag"      ? cls_AttributeBool
                                           : kind == "int"     ? cls_AttributeInt
                                           : kind == "real"    ? cls_AttributeDouble
                                           : kind == "text"    ? cls_AttributeString
                                           : kind == "literal" ? cls_AttributeEnum
                                                               : cls_AttributeObject;
            metadata.AddAttribute(cls_FieldHandle(index, cow_String(field.c_str())), type, 1,
                                  cls_CollectionNone);
        }
    }
    cls_ClassRegistrar const& Registrar() const { return m_registrar; }

private:
    cls_ClassRegistrar m_registrar;
};

}  // namespace old_test
