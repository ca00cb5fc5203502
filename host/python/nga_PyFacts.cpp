#include "nga_PyFacts.h"

#include "cls_ClassMetadata.h"
#include "nga_FieldLiterals.h"
#include "nga_Fields.h"
#include "nga_Names.h"
#include "nga_PyField.h"
#include "nga_Rules.h"
#include "nga_Schema.h"
#include "nga_Script.h"
#include "nga_Tree.h"

namespace nga::python {

namespace py = pybind11;

mdl_Description const& DescriptionAt(unsigned typeId) {
    mdl_Description const* const description = mdl_Description::Find(typeId);
    if (!description) Fail(PyExc_ValueError, "there is no class of this number");
    return *description;
}

namespace {

py::object Text(std::string_view text) {
    return py::reinterpret_steal<py::object>(ToText(text).Release());
}

char const* KindName(mdl_FieldKind kind) {
    constexpr char const* names[] = {"int",    "float",  "str",     "bool", "literal",
                                     "object", "option", "options", "list", "ints",
                                     "floats", "map",    "array"};
    return names[static_cast<int>(kind)];
}

py::dict FieldFacts(mdl_Description const& owner, mdl_Field const& field, void const* object) {
    mdl_FieldType const& type = field.Type();
    py::dict facts;
    facts["name"] = field.Name();
    facts["script"] = field.Script();
    facts["kind"] = KindName(type.Kind());
    facts["held"] = type.Held() ? type.Held()->TypeId() : 0u;
    facts["is_table"] = type.Kind() == mdl_FieldKind::Array ||
                        (type.Kind() == mdl_FieldKind::Object && IsTable(*type.Held()));
    py::list literals, words;
    for (omu_EnumRow const* row = type.Rows(); row && row->literal; ++row)
        literals.append(row->literal);
    for (FieldLiteral const* word : LiteralsOf(owner, field))
        words.append(py::make_tuple(word->literal, word->value));
    facts["literals"] = literals;
    facts["words"] = words;
    facts["default"] = object ? Text(ScriptValue(owner, field, field.At(object))) : py::none();
    return facts;
}

py::dict ClassFacts(mdl_Description const& description) {
    DescribedObject const object(description.IsAbstract() ? nullptr : description.Create(),
                                 DescribedDeleter{&description});
    py::dict facts;
    facts["type_id"] = description.TypeId();
    facts["name"] = description.Name();
    facts["constructor"] = description.Constructor();
    facts["base"] = description.Base() ? description.Base()->TypeId() : 0u;
    facts["abstract"] = description.IsAbstract();
    facts["is_table"] = IsTable(description);
    facts["module"] = description.Module() ? description.Module()->prefix : "";
    facts["version"] = description.Version();
    py::list fields, keyed;
    for (mdl_Field const& field : description.Fields())
        fields.append(FieldFacts(description, field, object.get()));
    py::dict constructors, appended;
    for (mdl_Field const* field : description.AllFields()) {
        std::string const constructor = ConstructorOf(description, *field);
        if (!constructor.empty()) constructors[field->Script()] = constructor;
        for (mdl_Description const* made : ClassesToAppend(description, *field))
            appended[py::int_(made->TypeId())] = field->Script();
        if (FieldStep(description, *field)[1] == 'o' &&
            FieldStep(description, *field).rfind(".options[", 0) == 0)
            keyed.append(field->Script());
    }
    facts["fields"] = fields;
    facts["constructors"] = constructors;
    facts["appended"] = appended;
    facts["keyed"] = keyed;
    return facts;
}

py::list Classes() {
    py::list classes;
    for (cls_ClassMetadata const* metadata : SchemaClasses())
        if (mdl_Description const* description = mdl_Description::Find(metadata->TypeId()))
            classes.append(ClassFacts(*description));
    return classes;
}

py::list Collections() {
    py::list collections;
    for (Collection const* collection : Collection::All()) {
        py::list held;
        for (NamedClass const& named : ClassesBelow(collection->Held()))
            held.append(named.description->TypeId());
        collections.append(py::make_tuple(collection->Name(), collection->Held().TypeId(), held));
    }
    return collections;
}

py::list Rules(unsigned typeId) {
    py::list rules;
    for (ListedRule const& rule : RulesOf(DescriptionAt(typeId)))
        rules.append(py::make_tuple(rule.module, rule.code, Text(rule.message)));
    return rules;
}

}  // namespace

void DefineFacts(py::module_& module) {
    module.def("classes", Classes);
    module.def("collections", Collections);
    module.def("rules", Rules);
}

}  // namespace nga::python
