#include "nga_Stubs.h"

#include <cstring>
#include <set>
#include <vector>

#include "cls_ClassMetadata.h"
#include "nga_Collection.h"
#include "nga_FieldLiterals.h"
#include "nga_Fields.h"
#include "nga_Schema.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

constexpr char const* head = R"(# Written by "nga schema --stubs" from the registered metadata.
from collections.abc import Iterable as _Iterable, Mapping as _Mapping
from typing import Any as _Any, Literal as _Choice, Union as _Union

import numpy as _numpy
from numpy.typing import NDArray as _NDArray

from . import _model
from ._literal import Literal as _Literal
from ._model import FloatMap as _FloatMap, ObjectList as _ObjectList, Repository as _Repository
from ._nga import Field as _Field

_Array = _NDArray[_numpy.float64]
_Rows = _Union[_NDArray[_Any], _Iterable[_Iterable[float]], _Mapping[str, _Any]]
)";

std::string StubName(mdl_Description const& description) {
    return description.Constructor() ? description.Constructor() : description.Name();
}

/// Within a class its methods hide the classes of their names, so types go by another name.
std::string TypeName(mdl_Description const& description) { return "_" + StubName(description); }

bool HoldsTable(mdl_FieldType const& type) {
    return type.Kind() == mdl_FieldKind::Array ||
           (type.Kind() == mdl_FieldKind::Object && IsTable(*type.Held()));
}

std::string Choices(std::vector<std::string> const& literals) {
    std::string text = "_Choice[";
    for (std::size_t i = 0; i < literals.size(); ++i)
        text += (i ? ", " : "") + ("\"" + literals[i] + "\"");
    return text + "]";
}

/// What reading a field gives, and what it takes.
struct Types {
    std::string given;
    std::string taken;
};

Types NumberTypes(mdl_Description const& owner, mdl_Field const& field, std::string const& number) {
    std::vector<std::string> words;
    for (FieldLiteral const* word : LiteralsOf(owner, field)) words.emplace_back(word->literal);
    if (words.empty()) return {number + " | None", number + " | None"};
    return {number + " | _Literal | None", number + " | _Literal | " + Choices(words) + " | None"};
}

Types StubTypes(mdl_Description const& owner, mdl_Field const& field) {
    mdl_FieldType const& type = field.Type();
    if (HoldsTable(type)) return {"_Array", "_Rows"};
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
            return NumberTypes(owner, field, "int");
        case mdl_FieldKind::Double:
            return NumberTypes(owner, field, "float");
        case mdl_FieldKind::Bool:
            return {"bool", "bool"};
        case mdl_FieldKind::String:
            return {"str", "str"};
        case mdl_FieldKind::Enum: {
            std::vector<std::string> literals;
            for (omu_EnumRow const* row = type.Rows(); row->literal; ++row)
                literals.emplace_back(row->literal);
            return {"_Literal", "_Literal | " + Choices(literals)};
        }
        case mdl_FieldKind::Object:
            return {TypeName(*type.Held()), TypeName(*type.Held())};
        case mdl_FieldKind::Option:
            // Most scripts know that the option they ask for is there.
            return {"_Any", TypeName(*type.Held()) + " | None"};
        case mdl_FieldKind::OptionList:
            return {"_ObjectList", "_Iterable[" + TypeName(*type.Held()) + " | None]"};
        case mdl_FieldKind::ObjectList:
            return {"_ObjectList", "_Iterable[" + TypeName(*type.Held()) + "]"};
        case mdl_FieldKind::IntList:
            return {"tuple[int, ...]", "_Iterable[int]"};
        case mdl_FieldKind::DoubleList:
            return {"tuple[float, ...]", "_Iterable[float]"};
        case mdl_FieldKind::FloatMap:
            return {"_FloatMap", "_Mapping[str, float]"};
        case mdl_FieldKind::Array:
            break;
    }
    return {"_Any", "_Any"};
}

/// The parameters of a constructor, behind self.
std::string Parameters(mdl_Description const& description, std::string const& first) {
    std::string text = ", *" + first + ", validate: bool = ...";
    for (mdl_Field const* field : description.AllFields())
        text += std::string(", ") + field->Script() + ": " + StubTypes(description, *field).taken +
                " = ...";
    return text;
}

std::string ClassStub(mdl_Description const& description) {
    std::string const base = description.Base() ? StubName(*description.Base()) : "_model.Object";
    std::string text = "\nclass " + StubName(description) + "(" + base + "):\n";
    for (mdl_Field const& field : description.Fields()) {
        Types const types = StubTypes(description, field);
        text += std::string("    ") + field.Script() + ": _Field[" + types.given + ", " +
                types.taken + "]";
        // Every object has a view of its options under this name, but for those with such a field.
        text +=
            std::strcmp(field.Script(), "options") == 0 ? "  # type: ignore[assignment]\n" : "\n";
    }
    text += "    def __init__(self" + Parameters(description, "") + ") -> None: ...\n";
    // Each class takes its own fields alone, which its base takes not.
    text += "    def setValues(self" + Parameters(description, "") +
            ") -> None: ...  # type: ignore[override]\n";
    for (mdl_Field const* field : description.AllFields()) {
        std::string const name = ConstructorOf(description, *field);
        if (name.empty()) continue;
        mdl_Description const& held = *field->Type().Held();
        text += "    def " + name + "(self" + Parameters(held, "") + ") -> " + TypeName(held) +
                ": ...\n";
    }
    for (mdl_Field const* field : description.AllFields())
        for (mdl_Description const* made : ClassesToAppend(description, *field))
            text += "    def " + StubName(*made) + "(self" + Parameters(*made, "") + ") -> " +
                    TypeName(*made) + ": ...\n";
    return text + "\n_" + StubName(description) + " = " + StubName(description) + "\n";
}

std::string DocumentStub() {
    std::string text = "\nclass Document(_model.DocumentBase):\n";
    for (Collection const* collection : Collection::All())
        text += "    @property\n    def " + std::string(collection->Name()) +
                "(self) -> _Repository[" + TypeName(collection->Held()) + "]: ...\n";
    for (Collection const* collection : Collection::All())
        for (NamedClass const& named : ClassesBelow(collection->Held()))
            text += "    def " + StubName(*named.description) + "(self" +
                    Parameters(*named.description, ", name: str") + ") -> " +
                    TypeName(*named.description) + ": ...\n";
    return text;
}

void AddWithBases(std::vector<mdl_Description const*>& ordered, std::set<unsigned>& known,
                  mdl_Description const& description) {
    if (!known.insert(description.TypeId()).second) return;
    if (description.Base()) AddWithBases(ordered, known, *description.Base());
    ordered.push_back(&description);
}

}  // namespace

std::string StubText() {
    std::vector<mdl_Description const*> ordered;
    std::set<unsigned> known;
    for (cls_ClassMetadata const* metadata : SchemaClasses())
        if (mdl_Description const* description = mdl_Description::Find(metadata->TypeId()))
            AddWithBases(ordered, known, *description);
    std::string classes, all;
    std::set<std::string> literals;
    for (mdl_Description const* description : ordered) {
        for (mdl_Field const& field : description->Fields()) {
            for (omu_EnumRow const* row = field.Type().Rows(); row && row->literal; ++row)
                literals.insert(row->literal);
            for (FieldLiteral const* word : LiteralsOf(*description, field))
                literals.insert(word->literal);
        }
        if (IsTable(*description)) continue;
        classes += ClassStub(*description);
        all += "    \"" + StubName(*description) + "\",\n";
    }
    std::string constants;
    for (std::string const& literal : literals) {
        constants += literal + ": _Literal\n";
        all += "    \"" + literal + "\",\n";
    }
    return std::string(head) + "\n__all__ = [\n    \"Document\",\n" + all + "]\n\n" + constants +
           classes + DocumentStub();
}

}  // namespace nga
