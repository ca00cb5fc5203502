#include "nga_Fields.h"

#include "cls_xp.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

template <class T>
void Assign(void const* from, void* to) {
    *static_cast<T*>(to) = *static_cast<T const*>(from);
}
/// The plain container alone, so that the field stays the record that it is.
template <class Proxy, class Plain>
void AssignPlain(void const* from, void* to) {
    *static_cast<Proxy*>(to) = static_cast<Plain const&>(*static_cast<Proxy const*>(from));
}

void CopyObjects(mdl_FieldType const& type, void const* from, void* to) {
    type.Clear(to);
    for (int i = 0; i < type.Count(from); ++i) {
        void const* const object = type.ConstObject(from, i);
        mdl_Description const* const description =
            object ? mdl_Description::Find(type.DynTypeIdOf(object)) : nullptr;
        if (description)
            type.Adopt(to, description->Copy(object));
        else if (type.Kind() == mdl_FieldKind::OptionList)
            type.Adopt(to, nullptr);
    }
}

}  // namespace

void CopyField(mdl_Field const& field, void const* from, void* to) {
    mdl_FieldType const& type = field.Type();
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
            return Assign<int>(from, to);
        case mdl_FieldKind::Double:
            return Assign<double>(from, to);
        case mdl_FieldKind::Bool:
            return Assign<bool>(from, to);
        case mdl_FieldKind::String:
            return Assign<cow_String>(from, to);
        case mdl_FieldKind::Enum:
            return type.SetNumber(to, type.Number(from));
        case mdl_FieldKind::IntList:
            return AssignPlain<cls_xp1DArrayListInt, cow_List<int>>(from, to);
        case mdl_FieldKind::DoubleList:
            return AssignPlain<cls_xp1DArrayListDouble, cow_List<double>>(from, to);
        case mdl_FieldKind::FloatMap:
            return AssignPlain<cls_xpMapString2Float, cow_Map<cow_String, float>>(from, to);
        case mdl_FieldKind::Array:
            return AssignPlain<cls_xp2DArrayDouble, cow_2DArray<double>>(from, to);
        case mdl_FieldKind::Object:
            for (mdl_Field const* inner : type.Held()->AllFields())
                CopyField(*inner, inner->At(type.ConstObject(from, 0)),
                          inner->At(type.MutableObject(to, 0)));
            return;
        case mdl_FieldKind::Option:
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            return CopyObjects(type, from, to);
    }
}

std::string ConstructorOf(mdl_Description const& owner, mdl_Field const& field) {
    mdl_FieldKind const kind = field.Type().Kind();
    if (kind != mdl_FieldKind::Option && kind != mdl_FieldKind::OptionList &&
        kind != mdl_FieldKind::ObjectList)
        return std::string();
    mdl_Description const& held = *field.Type().Held();
    if (held.IsAbstract() || !held.Constructor()) return std::string();
    int holders = 0;
    for (mdl_Field const* other : owner.AllFields())
        if (other->Type().Held() == &held) ++holders;
    if (holders == 1) return held.Constructor();
    std::string name = field.Script();
    if (name[0] >= 'a' && name[0] <= 'z') name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return name;
}

std::vector<mdl_Description const*> ClassesToAppend(mdl_Description const& owner,
                                                    mdl_Field const& field) {
    std::vector<mdl_Description const*> classes;
    if (field.Type().Kind() != mdl_FieldKind::OptionList || !field.Type().Held()->IsAbstract())
        return classes;
    for (mdl_Field const* other : owner.AllFields())
        if (other != &field && other->Type().Held() == field.Type().Held()) return classes;
    for (NamedClass const& named : ClassesBelow(*field.Type().Held()))
        if (named.description->Constructor()) classes.push_back(named.description);
    return classes;
}

}  // namespace nga
