#pragma once

#include <cstring>
#include <limits>
#include <vector>

#include "cls_MetadataRegistrar.h"
#include "cls_xp.h"
#include "mdl_Description.h"
#include "omi_Singleton.h"

namespace nga_test {

/// Every described class that can be made, by rising TypeId.
inline std::vector<mdl_Description const*> ConcreteClasses() {
    std::vector<mdl_Description const*> result;
    cls_ClassRegistrar const& registrar =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainMemory);
    for (cls_ClassMetadata const* metadata : registrar.Classes()) {
        mdl_Description const* description = mdl_Description::Find(metadata->TypeId());
        if (description && !description->IsAbstract()) result.push_back(description);
    }
    return result;
}

/// A concrete class that may stand where \p held is declared: itself, or the first derived one.
inline mdl_Description const* ConcreteFor(mdl_Description const& held) {
    if (!held.IsAbstract()) return &held;
    for (mdl_Description const* candidate : ConcreteClasses())
        for (mdl_Description const* base = candidate->Base(); base; base = base->Base())
            if (base == &held) return candidate;
    return nullptr;
}

inline bool MutateObject(mdl_Description const& description, void* object);

/// Changes the content of one field of an object, whatever its type, so that it is different from
/// what it was. False for a field that has nothing to change: a place whose class holds no data, an
/// enumeration with one literal.
inline bool MutateField(mdl_Field const& field, void* object) {
    void* const at = field.At(object);
    mdl_FieldType const& type = field.Type();
    switch (type.Kind()) {
        case mdl_FieldKind::Int: {
            int& value = *static_cast<int*>(at);
            value = value == std::numeric_limits<int>::max() ? 17 : value + 1;
            return true;
        }
        case mdl_FieldKind::Double: {
            double& value = *static_cast<double*>(at);
            value = value == std::numeric_limits<double>::max() ? 0.1 : value + 0.1;
            return true;
        }
        case mdl_FieldKind::String:
            *static_cast<cow_String*>(at) =
                *static_cast<cow_String*>(at) + cow_String(" \xc3\xa9'");
            return true;
        case mdl_FieldKind::Bool:
            *static_cast<bool*>(at) = !*static_cast<bool*>(at);
            return true;
        case mdl_FieldKind::Enum: {
            for (omu_EnumRow const* row = type.Rows(); row->literal; ++row) {
                if (row->value == type.Number(at)) continue;
                type.SetNumber(at, row->value);
                return true;
            }
            return false;
        }
        case mdl_FieldKind::Option:
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList: {
            mdl_Description const* held = ConcreteFor(*type.Held());
            if (!held) return false;
            type.Adopt(at, held->Create());
            return true;
        }
        case mdl_FieldKind::Object:
            return MutateObject(*type.Held(), type.MutableObject(at, 0));
        case mdl_FieldKind::IntList:
            static_cast<cls_xp1DArrayListInt*>(at)->Append(-3);
            return true;
        case mdl_FieldKind::DoubleList:
            static_cast<cls_xp1DArrayListDouble*>(at)->Append(1e-300);
            return true;
        case mdl_FieldKind::FloatMap: {
            auto& map = *static_cast<cls_xpMapString2Float*>(at);
            return map.Insert(cow_String("key ") + cow_String(map.Size()), 0.5f);
        }
        case mdl_FieldKind::Array: {
            auto& array = *static_cast<cls_xp2DArrayDouble*>(at);
            cow_2DArray<double> longer(array.Rows() + 1, array.Columns() ? array.Columns() : 2);
            for (int row = 0; row < array.Rows(); ++row)
                for (int column = 0; column < array.Columns(); ++column)
                    longer.Get().Cell(row, column) = array.Cell(row, column);
            for (int column = 0; column < longer.Columns(); ++column)
                longer.Get().Cell(array.Rows(), column) = column ? -0.0 : 210e3;
            array = longer;
            return true;
        }
    }
    return false;
}

/// Changes the first field of an object that can be changed.
inline bool MutateObject(mdl_Description const& description, void* object) {
    for (mdl_Field const* field : description.AllFields())
        if (MutateField(*field, object)) return true;
    return false;
}

/// Changes every field that can be changed; gives how many that were.
inline int MutateAll(mdl_Description const& description, void* object) {
    int changed = 0;
    for (mdl_Field const* field : description.AllFields()) changed += MutateField(*field, object);
    return changed;
}

/// The identity of a collection of plain values; null for any other field.
inline cls_Uid const* UidOfProxy(mdl_Field const& field, void const* object) {
    void const* const at = field.At(object);
    switch (field.Type().Kind()) {
        case mdl_FieldKind::IntList:
            return &static_cast<cls_xp1DArrayListInt const*>(at)->uid;
        case mdl_FieldKind::DoubleList:
            return &static_cast<cls_xp1DArrayListDouble const*>(at)->uid;
        case mdl_FieldKind::FloatMap:
            return &static_cast<cls_xpMapString2Float const*>(at)->uid;
        case mdl_FieldKind::Array:
            return &static_cast<cls_xp2DArrayDouble const*>(at)->uid;
        default:
            return nullptr;
    }
}

/// All identities of an object: of each class level, of what its fields hold, and of its
/// collections of plain values, depth first.
inline void CollectUids(mdl_Description const& description, void const* object,
                        std::vector<cls_Uid>& uids) {
    for (mdl_Description const* level = &description; level; level = level->Base())
        uids.push_back(level->Uid(const_cast<void*>(object)));
    for (mdl_Field const* field : description.AllFields()) {
        if (cls_Uid const* uid = UidOfProxy(*field, object)) uids.push_back(*uid);
        if (!field->Type().Held()) continue;
        for (int i = 0; i < field->Type().Count(field->At(object)); ++i) {
            void const* held = field->Type().ConstObject(field->At(object), i);
            if (!held) continue;
            CollectUids(*mdl_Description::Find(field->Type().DynTypeIdOf(held)), held, uids);
        }
    }
}

}  // namespace nga_test
