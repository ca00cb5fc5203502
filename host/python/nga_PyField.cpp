#include "nga_PyField.h"

#include <cstring>

#include "cls_xp.h"
#include "mdl_TableRows.h"
#include "nga_FieldLiterals.h"
#include "nga_Fields.h"
#include "nga_Names.h"
#include "nga_PyDepth.h"
#include "nga_PyFieldData.h"

namespace nga::python {

namespace {

PyTypeObject* fieldType = nullptr;
PyObject* listView = nullptr;
PyObject* mapView = nullptr;
PyObject* describeField = nullptr;

Field* As(PyObject* self) { return reinterpret_cast<Field*>(self); }

template <class T>
T const& At(void const* at) {
    return *static_cast<T const*>(at);
}

Ref NumberOf(FieldData const& data, void const* at) {
    bool const isInt = data.field->Type().Kind() == mdl_FieldKind::Int;
    double const number = isInt ? static_cast<double>(At<int>(at)) : At<double>(at);
    for (auto const& [word, value] : data.words)
        if (value == number) return Ref::Share(word);
    if (IsNotSet(*data.field, at)) return Ref::Share(Py_None);
    return Ref(isInt ? PyLong_FromLong(At<int>(at)) : PyFloat_FromDouble(number));
}

Ref LiteralOf(FieldData const& data, void const* at) {
    unsigned const number = data.field->Type().Number(at);
    omu_EnumRow const* const rows = data.field->Type().Rows();
    for (std::size_t i = 0; i < data.literals.size(); ++i)
        if (rows[i].value == number) return Ref::Share(data.literals[i]);
    return Ref(PyLong_FromUnsignedLong(number));
}

template <class List, class Make>
Ref TupleOf(List const& list, Make const& make) {
    Ref tuple(PyTuple_New(list.Size()));
    for (int i = 0; i < list.Size(); ++i) {
        Ref element(make(list.ConstGet(i)));
        PyTuple_SET_ITEM(tuple.Get(), i, element.Release());
    }
    return tuple;
}

/// What does not depend on where the object is; an empty reference for what does.
Ref PlainValue(FieldData const& data, void const* at) {
    switch (data.field->Type().Kind()) {
        case mdl_FieldKind::Int:
        case mdl_FieldKind::Double:
            return NumberOf(data, at);
        case mdl_FieldKind::Bool:
            return Ref::Share(At<bool>(at) ? Py_True : Py_False);
        case mdl_FieldKind::String:
            return ToText(At<cow_String>(at).View());
        case mdl_FieldKind::Enum:
            return LiteralOf(data, at);
        case mdl_FieldKind::IntList:
            return TupleOf(At<cls_xp1DArrayListInt>(at),
                           [](int value) { return PyLong_FromLong(value); });
        case mdl_FieldKind::DoubleList:
            return TupleOf(At<cls_xp1DArrayListDouble>(at),
                           [](double value) { return PyFloat_FromDouble(value); });
        case mdl_FieldKind::Array:
            return Ref(ArrayOf(At<cls_xp2DArrayDouble>(at)));
        case mdl_FieldKind::Object:
            if (data.cells) return Ref(ArrayOf(At<cls_xp2DArrayDouble>(CellsAt(data, at))));
            return Ref();
        default:
            return Ref();
    }
}

Ref Held(Object* owner, mdl_Field const& field, void const* at, int index) {
    void const* const object = field.Type().ConstObject(at, index);
    if (!object) return Ref::Share(Py_None);
    mdl_Description const* const description =
        mdl_Description::Find(field.Type().DynTypeIdOf(object));
    if (!description) Fail(PyExc_TypeError, "the object is of a class without a description");
    return ChildObject(owner, field, index, *description);
}

std::string ClassName(mdl_Description const& description) {
    return description.Constructor() ? description.Constructor() : description.Name();
}

bool IsA(mdl_Description const* description, mdl_Description const* wanted) {
    while (description && description != wanted) description = description->Base();
    return description != nullptr;
}

/// A field can be taken out of its class and called with anything, or put into another class; only
/// the object itself knows what it is.
Object* InstanceOf(FieldData const& data, PyObject* instance) {
    if (!IsObject(instance) ||
        !IsA(reinterpret_cast<Object*>(instance)->state.description, data.owner))
        Fail(PyExc_TypeError, ClassName(*data.owner) + "." + data.field->Script() +
                                  " is no field of a " + TypeNameOf(instance));
    return reinterpret_cast<Object*>(instance);
}

PyObject* Get(PyObject* self, PyObject* instance, PyObject*) {
    if (!instance || instance == Py_None) {
        Py_INCREF(self);
        return self;
    }
    return Guarded<PyObject*>(nullptr, [&] {
        FieldData const& data = As(self)->data;
        Object* const object = InstanceOf(data, instance);
        void const* const at = data.field->At(Resolve(object));
        Ref plain = PlainValue(data, at);
        if (plain) return plain.Release();
        switch (data.field->Type().Kind()) {
            case mdl_FieldKind::OptionList:
            case mdl_FieldKind::ObjectList:
                return Ref(PyObject_CallFunctionObjArgs(listView, instance, data.name, nullptr))
                    .Release();
            case mdl_FieldKind::FloatMap:
                return Ref(PyObject_CallFunctionObjArgs(mapView, instance, data.name, nullptr))
                    .Release();
            default:
                return Held(object, *data.field, at, 0).Release();
        }
    });
}

int Set(PyObject* self, PyObject* instance, PyObject* value) {
    return Guarded(-1, [&] {
        FieldData const& data = As(self)->data;
        Object* const object = InstanceOf(data, instance);
        mdl_FieldKind const kind = data.field->Type().Kind();
        if (!value && kind != mdl_FieldKind::Option && kind != mdl_FieldKind::OptionList &&
            kind != mdl_FieldKind::ObjectList)
            Fail(PyExc_AttributeError,
                 std::string("the field ") + data.field->Script() + " cannot be deleted");
        FieldValue converted =
            value ? FromPython(data, value) : FieldValue(std::vector<DescribedObject>());
        // What changes nothing is no step, and leaves what can be done again.
        if (Holds(*data.field, converted, data.field->At(Resolve(object)))) return 0;
        RequireDepth(*data.owner, *data.field, converted, LevelOf(object));
        WriteTo(object,
                [&](void* at) { Apply(*data.field, std::move(converted), data.field->At(at)); });
        return 0;
    });
}

void Dealloc(PyObject* self) {
    PyTypeObject* const type = Py_TYPE(self);
    FieldData& data = As(self)->data;
    Py_XDECREF(data.name);
    for (PyObject* literal : data.literals) Py_DECREF(literal);
    for (auto const& [word, value] : data.words) Py_DECREF(word);
    data.~FieldData();
    type->tp_free(self);
    Py_DECREF(type);
}

PyObject* Repr(PyObject* self) {
    FieldData const& data = As(self)->data;
    char const* const constructor = data.owner->Constructor();
    return PyUnicode_FromFormat("<field %s.%s>", constructor ? constructor : data.owner->Name(),
                                data.field->Script());
}
PyObject* GetName(PyObject* self, void*) {
    Py_INCREF(As(self)->data.name);
    return As(self)->data.name;
}

PyObject* GetClass(PyObject* self, void*) {
    return Guarded<PyObject*>(nullptr, [&] {
        return Ref::Share(reinterpret_cast<PyObject*>(ClassOf(*As(self)->data.owner))).Release();
    });
}
/// Written when somebody asks: there are thousands of fields.
PyObject* GetDoc(PyObject* self, void*) {
    return Guarded<PyObject*>(nullptr, [&] {
        Ref const owner(GetClass(self, nullptr));
        return Ref(PyObject_CallFunctionObjArgs(describeField, owner.Get(), As(self)->data.name,
                                                nullptr))
            .Release();
    });
}

PyGetSetDef getSet[] = {{"__name__", GetName, nullptr, nullptr, nullptr},
                        {"__objclass__", GetClass, nullptr, nullptr, nullptr},
                        {"__doc__", GetDoc, nullptr, nullptr, nullptr},
                        {nullptr, nullptr, nullptr, nullptr, nullptr}};
PyType_Slot slots[] = {{Py_tp_dealloc, reinterpret_cast<void*>(Dealloc)},
                       {Py_tp_descr_get, reinterpret_cast<void*>(Get)},
                       {Py_tp_descr_set, reinterpret_cast<void*>(Set)},
                       {Py_tp_repr, reinterpret_cast<void*>(Repr)},
                       {Py_tp_getset, getSet},
                       {0, nullptr}};
PyType_Spec spec = {"_nga.Field", sizeof(Field), 0,
                    Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION, slots};

}  // namespace

PyTypeObject* MakeFieldType() {
    fieldType = reinterpret_cast<PyTypeObject*>(PyType_FromSpec(&spec));
    if (!fieldType) throw Failure();
    return fieldType;
}

Ref MakeField(mdl_Description const& owner, std::string const& script, PyObject* literals,
              PyObject* words) {
    Field* const made = As(fieldType->tp_alloc(fieldType, 0));
    if (!made) throw Failure();
    new (&made->data) FieldData;
    Ref result(reinterpret_cast<PyObject*>(made));
    FieldData& data = made->data;
    data.owner = &owner;
    data.field = &DescribedFieldOf(owner, script);
    data.name = PyUnicode_InternFromString(script.c_str());
    mdl_FieldType const& type = data.field->Type();
    if (type.Kind() == mdl_FieldKind::Array) data.cells = data.field;
    if (type.Kind() == mdl_FieldKind::Object && IsTable(*type.Held()))
        data.cells = &CellsOf(*type.Held());
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(literals); ++i) {
        PyObject* const literal = PyTuple_GET_ITEM(literals, i);
        Py_INCREF(literal);
        data.literals.push_back(literal);
    }
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(words); ++i) {
        PyObject* const pair = PyTuple_GET_ITEM(words, i);
        PyObject* const word = PyTuple_GET_ITEM(pair, 0);
        Py_INCREF(word);
        data.words.emplace_back(word, PyFloat_AsDouble(PyTuple_GET_ITEM(pair, 1)));
    }
    return result;
}

void SetViews(PyObject* list, PyObject* map, PyObject* describe) {
    Py_INCREF(list);
    Py_INCREF(map);
    Py_INCREF(describe);
    listView = list;
    mapView = map;
    describeField = describe;
}

std::string ScriptPath(std::string const& path) {
    std::string result;
    for (std::size_t i = 0; i < path.size(); ++i) {
        bool const byte =
            path.compare(i, 2, "\\x") == 0 && i + 3 < path.size() && path[i + 2] > '7';
        if (byte) {
            result += "\\udc";
            ++i;
        } else {
            result += path[i];
            if (path[i] == '\\' && i + 1 < path.size()) result += path[++i];
        }
    }
    return result;
}

Ref CopyOf(mdl_Description const& description, void const* object) {
    return OwnedObject(DescribedObject(description.Copy(object), DescribedDeleter{&description}));
}

Ref ValueOf(Field* field, void const* at) {
    FieldData const& data = field->data;
    mdl_FieldType const& type = data.field->Type();
    Ref plain = PlainValue(data, at);
    if (plain) return plain;
    if (type.Kind() == mdl_FieldKind::FloatMap) {
        Ref map(PyDict_New());
        cow_ConstMapIterator<cow_String, float> position(At<cls_xpMapString2Float>(at));
        for (position.First(); !position.IsDone(); position.Next()) {
            Ref const key = ToText(position.CurrentKey().View());
            Ref const number(PyFloat_FromDouble(static_cast<double>(position.CurrentValue())));
            if (PyDict_SetItem(map.Get(), key.Get(), number.Get()) != 0) throw Failure();
        }
        return map;
    }
    auto const copy = [&](int i) {
        void const* const object = type.ConstObject(at, i);
        return object ? CopyOf(*mdl_Description::Find(type.DynTypeIdOf(object)), object)
                      : Ref::Share(Py_None);
    };
    if (type.Kind() == mdl_FieldKind::Option || type.Kind() == mdl_FieldKind::Object)
        return copy(0);
    Ref list(PyList_New(type.Count(at)));
    for (int i = 0; i < type.Count(at); ++i) PyList_SET_ITEM(list.Get(), i, copy(i).Release());
    return list;
}

Field& FieldOf(mdl_Description const& description, PyObject* name) {
    PyObject* const found = _PyType_Lookup(ClassOf(description), name);
    if (found && Py_TYPE(found) == fieldType && IsA(&description, As(found)->data.owner))
        return *As(found);
    std::string const given = FromText(name);
    Fail(PyExc_AttributeError, ClassName(description) + " has no field " + Quoted(given) +
                                   DidYouMean(given, ScriptNames(description)));
}

mdl_Field const& DescribedFieldOf(mdl_Description const& description, std::string const& script) {
    mdl_Field const* const field = description.FindScript(script.c_str());
    if (!field)
        Fail(PyExc_AttributeError, std::string(description.Name()) + " has no field " +
                                       Quoted(script) +
                                       DidYouMean(script, ScriptNames(description)));
    return *field;
}

namespace {

using Values = std::vector<std::pair<mdl_Field const*, FieldValue>>;

Values ValuesFrom(mdl_Description const& description, PyObject* fields) {
    Values values;
    PyObject *name, *value;
    for (Py_ssize_t at = 0; PyDict_Next(fields, &at, &name, &value);) {
        FieldData const& data = FieldOf(description, name).data;
        values.emplace_back(data.field, FromPython(data, value));
    }
    return values;
}

void ApplyAll(Values&& values, void* object) {
    for (auto& [field, value] : values) Apply(*field, std::move(value), field->At(object));
}

}  // namespace

void SetValues(Object* object, PyObject* fields, bool validate) {
    mdl_Description const& description = *object->state.description;
    Values values = ValuesFrom(description, fields);
    void const* const now = Resolve(object);
    std::vector<mdl_Field const*> changed;
    for (auto const& [field, value] : values) {
        if (Holds(*field, value, field->At(now))) continue;
        RequireDepth(description, *field, value, LevelOf(object));
        changed.push_back(field);
    }
    // On a copy first, so that a broken rule leaves no trace, not even a change record.
    DescribedObject const trial(description.Copy(now), DescribedDeleter{&description});
    ApplyAll(std::move(values), trial.get());
    if (validate) RequireValid(description, trial.get(), PathOf(object));
    if (changed.empty()) return;
    WriteTo(object, [&](void* at) {
        for (mdl_Field const* field : changed)
            CopyField(*field, field->At(static_cast<void const*>(trial.get())), field->At(at));
    });
}

DescribedObject MakeObject(mdl_Description const& description, PyObject* fields, bool validate,
                           std::string const& path) {
    if (description.IsAbstract())
        Fail(PyExc_TypeError, std::string(description.Name()) + " is abstract");
    Values values = ValuesFrom(description, fields);
    for (auto const& [field, value] : values) RequireDepth(description, *field, value, 1);
    DescribedObject object(description.Create(), DescribedDeleter{&description});
    ApplyAll(std::move(values), object.get());
    if (validate) RequireValid(description, object.get(), path);
    return object;
}

Ref Put(Object* owner, std::string const& script, DescribedObject object) {
    mdl_Description const& description = *owner->state.description;
    mdl_Field const& field = DescribedFieldOf(description, script);
    RequireDepth(ClassName(description) + "." + script, *object.get_deleter().description,
                 object.get(), LevelOf(owner) + StepsTo(field));
    WriteTo(owner, [&](void* at) { field.Type().Adopt(field.At(at), object.release()); });
    void const* const at = field.At(Resolve(owner));
    return Held(owner, field, at, field.Type().Count(at) - 1);
}

void RequireHeld(mdl_Description const& owner, mdl_Field const& field,
                 mdl_Description const& given) {
    mdl_FieldKind const kind = field.Type().Kind();
    bool const adopts = kind == mdl_FieldKind::Option || kind == mdl_FieldKind::OptionList ||
                        kind == mdl_FieldKind::ObjectList;
    if (!adopts || !IsA(&given, field.Type().Held()))
        Fail(PyExc_TypeError,
             ClassName(owner) + "." + field.Script() + " holds no " + ClassName(given));
}

namespace {

/// The field that a view of a list stands on. Scripts can make a view of anything.
mdl_Field const& ListFieldOf(Object* owner, std::string const& script) {
    mdl_Field const& field = DescribedFieldOf(*owner->state.description, script);
    mdl_FieldKind const kind = field.Type().Kind();
    if (kind != mdl_FieldKind::OptionList && kind != mdl_FieldKind::ObjectList &&
        kind != mdl_FieldKind::Option)
        Fail(PyExc_TypeError,
             ClassName(*owner->state.description) + "." + script + " is no list of objects");
    return field;
}

}  // namespace

int CountOf(Object* owner, std::string const& script) {
    mdl_Field const& field = ListFieldOf(owner, script);
    return field.Type().Count(field.At(Resolve(owner)));
}

Ref ElementOf(Object* owner, std::string const& script, int index) {
    mdl_Field const& field = ListFieldOf(owner, script);
    void const* const at = field.At(Resolve(owner));
    if (index < 0 || index >= field.Type().Count(at))
        Fail(PyExc_IndexError, PathOf(owner) + "." + script + " has " +
                                   std::to_string(field.Type().Count(at)) + " elements");
    return Held(owner, field, at, index);
}

namespace {

FieldData const& NumbersOf(Object* owner, PyObject* name) {
    FieldData const& data = FieldOf(*owner->state.description, name).data;
    if (data.field->Type().Kind() != mdl_FieldKind::FloatMap)
        Fail(PyExc_TypeError, "the field " + FromText(name) + " is no map of numbers");
    return data;
}

}  // namespace

void PutNumbers(Object* owner, PyObject* name, PyObject* entries) {
    FieldData const& data = NumbersOf(owner, name);
    FieldValue const value = FromPython(data, entries);
    auto const& given = std::get<cow_Map<cow_String, float>>(value);
    auto const& now = At<cls_xpMapString2Float>(data.field->At(Resolve(owner)));
    bool changes = false;
    cow_ConstMapIterator<cow_String, float> entry(given);
    for (entry.First(); !entry.IsDone() && !changes; entry.Next()) {
        float const* const there = now.ConstFind(entry.CurrentKey());
        float const number = entry.CurrentValue();
        changes = !there || std::memcmp(there, &number, sizeof number) != 0;
    }
    if (!changes) return;
    WriteTo(owner, [&](void* at) {
        auto& map = *static_cast<cls_xpMapString2Float*>(data.field->At(at));
        cow_ConstMapIterator<cow_String, float> position(given);
        for (position.First(); !position.IsDone(); position.Next()) {
            if (float* const there = map.Find(position.CurrentKey()))
                *there = position.CurrentValue();
            else
                map.Insert(position.CurrentKey(), position.CurrentValue());
        }
    });
}

bool RemoveNumber(Object* owner, PyObject* name, PyObject* key) {
    FieldData const& data = NumbersOf(owner, name);
    if (!PyUnicode_Check(key)) return false;
    cow_String const entry{std::string_view(FromText(key))};
    if (!At<cls_xpMapString2Float>(data.field->At(Resolve(owner))).ConstFind(entry)) return false;
    WriteTo(owner, [&](void* at) {
        static_cast<cls_xpMapString2Float*>(data.field->At(at))->Remove(entry);
    });
    return true;
}

void SortTable(Object* object, std::string const& script, long columns, std::string const& shown) {
    Ref const name = ToText(script);
    FieldData const& data = FieldOf(*object->state.description, name.Get()).data;
    if (!data.cells) Fail(PyExc_TypeError, "the field " + script + " is no table");
    auto const& cells = At<cls_xp2DArrayDouble>(CellsAt(data, data.field->At(Resolve(object))));
    if (columns < 0 || columns > cells.Columns())
        Fail(PyExc_ValueError, PathOf(object) + "." + script + ": cannot sort by " + shown +
                                   " columns; expected 0 to " + std::to_string(cells.Columns()));
    FieldValue sorted = TableValue{mdl_SortedRows(cells, static_cast<int>(columns)), {}};
    if (Holds(*data.field, sorted, data.field->At(Resolve(object)))) return;
    WriteTo(object, [&](void* at) { Apply(*data.field, std::move(sorted), data.field->At(at)); });
}

}  // namespace nga::python
