#include <climits>
#include <cmath>
#include <cstring>

#include "cls_xp.h"
#include "nex_CommandException.h"
#include "nga_FieldLiterals.h"
#include "nga_Fields.h"
#include "nga_Names.h"
#include "nga_PyFieldData.h"

namespace nga::python {

std::string NameOf(FieldData const& field) {
    char const* const constructor = field.owner->Constructor();
    return std::string(constructor ? constructor : field.owner->Name()) + "." +
           field.field->Script();
}

namespace {

std::string Shown(PyObject* value) {
    PyObject* const text = PyObject_Repr(value);
    if (!text) {
        PyErr_Clear();
        return "a value";
    }
    std::string shown = FromText(text);
    Py_DECREF(text);
    if (shown.size() > 60) shown = shown.substr(0, 57) + "...";
    return shown;
}

[[noreturn]] void WrongType(FieldData const& field, PyObject* value, std::string const& expected) {
    Fail(PyExc_TypeError, NameOf(field) + ": " + Shown(value) + " (" + TypeNameOf(value) +
                              ") cannot stand here; expected " + expected);
}
[[noreturn]] void WrongValue(FieldData const& field, std::string const& what,
                             std::string const& expected) {
    Fail(PyExc_ValueError, NameOf(field) + ": " + what + "; expected " + expected);
}

/// Whether Python takes it for an integer; a truth value is none.
bool IsInteger(PyObject* value) {
    return !PyBool_Check(value) && PyIndex_Check(value) && !PySequence_Check(value) &&
           std::strcmp(Py_TYPE(value)->tp_name, "numpy.bool_") != 0;
}

int IntFrom(FieldData const& field, PyObject* value) {
    if (!IsInteger(value)) WrongType(field, value, "an integer");
    Ref const number(PyNumber_Index(value));
    int overflow = 0;
    long const wide = PyLong_AsLongAndOverflow(number.Get(), &overflow);
    if (overflow != 0 || wide < INT_MIN || wide > INT_MAX)
        WrongValue(field, "the number is out of range",
                   "an integer from -2147483648 to 2147483647");
    return static_cast<int>(wide);
}

double DoubleFrom(FieldData const& field, PyObject* value, char const* expected = "a number") {
    bool fits = true;
    double real = 0;
    try {
        real = RealFrom(value, fits);
    } catch (Failure const&) {
        if (!PyErr_ExceptionMatches(PyExc_OverflowError)) throw;
        PyErr_Clear();
        WrongValue(field, "the number is out of range", expected);
    }
    if (!fits) WrongType(field, value, expected);
    return real;
}

FieldValue NumberFrom(FieldData const& field, PyObject* value) {
    bool const isInt = field.field->Type().Kind() == mdl_FieldKind::Int;
    auto const give = [&](double number) -> FieldValue {
        if (isInt) return static_cast<int>(number);
        return number;
    };
    if (value == Py_None) {
        if (isInt) return INT_MAX;
        return std::numeric_limits<double>::max();
    }
    if (PyUnicode_Check(value) && !field.words.empty()) {
        std::string known;
        for (auto const& [word, number] : field.words) {
            if (PyUnicode_Compare(word, value) == 0) return give(number);
            known += " or " + FromText(word);
        }
        WrongValue(field, "unknown literal " + Shown(value), "a number, None" + known);
    }
    // The largest number is how the classes keep one that is not set; it would be read as None.
    bool isMark;
    FieldValue result;
    if (isInt) {
        int const number = IntFrom(field, value);
        isMark = number == INT_MAX;
        result = number;
    } else {
        double const number = DoubleFrom(field, value);
        isMark = number == std::numeric_limits<double>::max();
        result = number;
    }
    if (isMark) {
        std::string known;
        for (auto const& [word, number] : field.words)
            if (number == std::numeric_limits<double>::max()) known += " or " + FromText(word);
        WrongValue(field, "the number " + Shown(value) + " stands for one that is not set",
                   "None" + known + " for that, or a smaller number");
    }
    return result;
}

unsigned LiteralFrom(FieldData const& field, PyObject* value) {
    omu_EnumRow const* const rows = field.field->Type().Rows();
    for (std::size_t i = 0; i < field.literals.size(); ++i)
        if (field.literals[i] == value) return rows[i].value;
    if (!PyUnicode_Check(value))
        WrongType(field, value, "one of " + std::string(omu_PrimEnumBase::LiteralsOf(rows).View()));
    for (std::size_t i = 0; i < field.literals.size(); ++i)
        if (PyUnicode_Compare(field.literals[i], value) == 0) return rows[i].value;
    try {
        omu_PrimEnumBase::RaiseLiteral(rows, FromText(value).c_str());
    } catch (nex_CommandException const& failure) {
        // The library's own words, behind where they belong.
        Fail(BuiltIn(std::string(failure.PythonType().View())),
             NameOf(field) + ": " + std::string(failure.UserReport().View()));
    }
}

/// The elements of anything that can be walked, but for texts. A tuple of its own: converting an
/// element may run Python code, which might change a list.
Ref Elements(FieldData const& field, PyObject* value, char const* expected) {
    if (PyUnicode_Check(value) || PyBytes_Check(value) || PyDict_Check(value))
        WrongType(field, value, expected);
    PyObject* const tuple = PySequence_Tuple(value);
    if (!tuple) {
        if (!PyErr_ExceptionMatches(PyExc_TypeError)) throw Failure();
        PyErr_Clear();
        WrongType(field, value, expected);
    }
    return Ref(tuple);
}

cow_2DArray<double> RowsFrom(FieldData const& field, PyObject* value) {
    constexpr char const* rowsText = "rows of numbers";
    if (IsObject(value)) WrongType(field, value, rowsText);
    cow_2DArray<double> result;
    if (FromArray(field, value, result)) return result;
    Ref const rows = Elements(field, value, rowsText);
    Py_ssize_t const count = PyTuple_GET_SIZE(rows.Get());
    std::vector<double> cells;
    Py_ssize_t columns = 0;
    for (Py_ssize_t i = 0; i < count; ++i) {
        Ref const row = Elements(field, PyTuple_GET_ITEM(rows.Get(), i), rowsText);
        Py_ssize_t const length = PyTuple_GET_SIZE(row.Get());
        if (i == 0) columns = length;
        if (length != columns)
            WrongValue(field,
                       "row " + std::to_string(i) + " has " + std::to_string(length) + " numbers",
                       std::to_string(columns) + " as in the other rows");
        for (Py_ssize_t j = 0; j < length; ++j)
            cells.push_back(
                DoubleFrom(field, PyTuple_GET_ITEM(row.Get(), j), "a number in each cell"));
    }
    if (cells.size() > static_cast<std::size_t>(INT_MAX) || count > INT_MAX)
        WrongValue(field, "the table is too large", "fewer rows");
    result = cow_2DArray<double>(static_cast<int>(count), static_cast<int>(columns));
    if (!cells.empty())
        std::memcpy(result.Get().Data(), cells.data(), cells.size() * sizeof(double));
    return result;
}

TableValue TableFrom(FieldData const& field, PyObject* value) {
    if (!PyDict_Check(value)) return {RowsFrom(field, value), {}};
    TableValue table;
    mdl_Description const* const held = field.field->Type().Held();
    PyObject *key, *member;
    for (Py_ssize_t at = 0; PyDict_Next(value, &at, &key, &member);) {
        if (!PyUnicode_Check(key)) WrongType(field, key, "the name of a flag, or 'data'");
        std::string const name = FromText(key);
        if (name == "data") {
            table.cells = RowsFrom(field, member);
            continue;
        }
        mdl_Field const* const flag = held ? held->FindScript(name.c_str()) : nullptr;
        if (!flag || flag->Type().Kind() != mdl_FieldKind::Bool)
            WrongValue(field, "unknown key " + Quoted(name), "'data' or a flag of the table");
        if (!PyBool_Check(member)) WrongType(field, member, "True or False");
        table.flags.emplace_back(flag, member == Py_True);
    }
    return table;
}

cow_Map<cow_String, float> FloatsFrom(FieldData const& field, PyObject* value) {
    if (!PyMapping_Check(value) || PySequence_Check(value))
        if (!PyDict_Check(value) && !PyObject_HasAttrString(value, "items"))
            WrongType(field, value, "a mapping of names and numbers");
    Ref const items(PyMapping_Items(value));
    cow_Map<cow_String, float> result;
    for (Py_ssize_t i = 0; i < PyList_GET_SIZE(items.Get()); ++i) {
        PyObject* const item = PyList_GET_ITEM(items.Get(), i);
        if (!PyTuple_Check(item) || PyTuple_GET_SIZE(item) != 2)
            WrongType(field, item, "pairs of names and numbers");
        PyObject* const key = PyTuple_GET_ITEM(item, 0);
        if (!PyUnicode_Check(key)) WrongType(field, key, "a name");
        std::string const name = FromText(key);
        RequireName(name, NameOf(field));
        double const real = DoubleFrom(field, PyTuple_GET_ITEM(item, 1));
        // Up to half a step beyond the largest number, that number is still the nearest.
        bool const beyond = std::isfinite(real) && std::abs(real) >= 3.4028235677973366e38;
        float const narrow = beyond ? 0.0f : static_cast<float>(real);
        if (beyond || (narrow == 0.0f && real != 0.0))
            WrongValue(field, "the number is out of range", "a single-precision number");
        result.Insert(cow_String(std::string_view(name)), narrow);
    }
    return result;
}

/// A share of what a handle leads to, if the field can hold it.
DescribedObject ObjectFrom(FieldData const& field, PyObject* value, char const* kind) {
    mdl_Description const& held = *field.field->Type().Held();
    std::string const expected =
        std::string(kind) + " " + (held.Constructor() ? held.Constructor() : held.Name());
    if (!IsObject(value)) WrongType(field, value, expected);
    auto* const object = reinterpret_cast<Object*>(value);
    mdl_Description const* const description = object->state.description;
    mdl_Description const* level = description;
    while (level && level != &held) level = level->Base();
    if (!level) WrongType(field, value, expected);
    return DescribedObject(description->Copy(Resolve(object)), DescribedDeleter{description});
}

std::vector<DescribedObject> ObjectsFrom(FieldData const& field, PyObject* value) {
    std::vector<DescribedObject> result;
    mdl_FieldKind const kind = field.field->Type().Kind();
    if (kind == mdl_FieldKind::Option || kind == mdl_FieldKind::Object) {
        if (value != Py_None || kind == mdl_FieldKind::Object)
            result.push_back(
                ObjectFrom(field, value, kind == mdl_FieldKind::Option ? "None or" : "an object,"));
        return result;
    }
    Ref const elements = Elements(field, value, "a sequence of objects");
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(elements.Get()); ++i) {
        PyObject* const element = PyTuple_GET_ITEM(elements.Get(), i);
        if (element == Py_None && kind == mdl_FieldKind::OptionList)
            result.emplace_back(nullptr, DescribedDeleter());
        else
            result.push_back(ObjectFrom(field, element, "objects,"));
    }
    return result;
}

template <class T, class Convert>
cow_List<T> ListFrom(FieldData const& field, PyObject* value, char const* expected,
                     Convert const& convert) {
    Ref const elements = Elements(field, value, expected);
    cow_List<T> list;
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(elements.Get()); ++i)
        list.Append(convert(PyTuple_GET_ITEM(elements.Get(), i)));
    return list;
}

}  // namespace

double RealFrom(PyObject* value, bool& fits) {
    fits = true;
    if (PyFloat_Check(value)) return PyFloat_AS_DOUBLE(value);
    PyNumberMethods const* const number = Py_TYPE(value)->tp_as_number;
    if (PyBool_Check(value) || PyUnicode_Check(value) || PySequence_Check(value) ||
        PyComplex_Check(value) || !number || (!number->nb_float && !number->nb_index) ||
        std::strcmp(Py_TYPE(value)->tp_name, "numpy.bool_") == 0) {
        fits = false;
        return 0;
    }
    double const real = PyFloat_AsDouble(value);
    if (real == -1.0 && PyErr_Occurred()) {
        if (!PyErr_ExceptionMatches(PyExc_TypeError)) throw Failure();
        PyErr_Clear();
        fits = false;
    }
    if (std::isinf(real)) {
        // Types wider than ours give an infinity for what does not fit instead of refusing.
        Ref const infinity(PyFloat_FromDouble(real));
        int const same = PyObject_RichCompareBool(value, infinity.Get(), Py_EQ);
        if (same < 0) throw Failure();
        if (same == 0) Fail(PyExc_OverflowError, "the number is out of range");
    }
    return real;
}

FieldValue FromPython(FieldData const& field, PyObject* value) {
    mdl_FieldType const& type = field.field->Type();
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
        case mdl_FieldKind::Double:
            return NumberFrom(field, value);
        case mdl_FieldKind::Bool:
            if (PyBool_Check(value)) return value == Py_True;
            if (std::strcmp(Py_TYPE(value)->tp_name, "numpy.bool_") == 0)
                return PyObject_IsTrue(value) == 1;
            WrongType(field, value, "True or False");
        case mdl_FieldKind::String:
            if (!PyUnicode_Check(value)) WrongType(field, value, "a text");
            return cow_String(std::string_view(FromText(value)));
        case mdl_FieldKind::Enum:
            return LiteralFrom(field, value);
        case mdl_FieldKind::Object:
            if (field.cells) return TableFrom(field, value);
            return ObjectsFrom(field, value);
        case mdl_FieldKind::Option:
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            return ObjectsFrom(field, value);
        case mdl_FieldKind::IntList:
            return ListFrom<int>(field, value, "a sequence of integers",
                                 [&](PyObject* element) { return IntFrom(field, element); });
        case mdl_FieldKind::DoubleList:
            return ListFrom<double>(field, value, "a sequence of numbers",
                                    [&](PyObject* element) { return DoubleFrom(field, element); });
        case mdl_FieldKind::FloatMap:
            return FloatsFrom(field, value);
        case mdl_FieldKind::Array:
            return TableFrom(field, value);
    }
    throw Failure();
}

namespace {

void ApplyObjects(mdl_FieldType const& type, std::vector<DescribedObject>& objects, void* at) {
    if (type.Kind() == mdl_FieldKind::Object) {
        for (mdl_Field const* inner : type.Held()->AllFields())
            CopyField(*inner, inner->At(static_cast<void const*>(objects[0].get())),
                      inner->At(type.MutableObject(at, 0)));
        return;
    }
    type.Clear(at);
    for (DescribedObject& object : objects) type.Adopt(at, object.release());
}

}  // namespace

namespace {

template <class Proxy, class Value>
bool HoldsList(mdl_FieldType const& type, Value const& value, void const* at) {
    Proxy proxy;
    proxy = value;
    return type.Same(&proxy, at);
}

bool HoldsTable(mdl_Field const& cells, TableValue const& table, void const* at) {
    for (auto const& [flag, set] : table.flags)
        if (*static_cast<bool const*>(flag->At(at)) != set) return false;
    return !table.cells || HoldsList<cls_xp2DArrayDouble>(cells.Type(), *table.cells, cells.At(at));
}

bool HoldsObjects(mdl_FieldType const& type, std::vector<DescribedObject> const& objects,
                  void const* at) {
    if (type.Kind() == mdl_FieldKind::Object)
        return type.Held()->Same(objects[0].get(), type.ConstObject(at, 0));
    // An option counts as one also where it is not set.
    if (type.Kind() == mdl_FieldKind::Option && objects.empty()) return !type.ConstObject(at, 0);
    if (static_cast<int>(objects.size()) != type.Count(at)) return false;
    for (int i = 0; i < type.Count(at); ++i) {
        DescribedObject const& object = objects[static_cast<std::size_t>(i)];
        void const* const there = type.ConstObject(at, i);
        if (!object || !there) {
            if (object || there) return false;
            continue;
        }
        mdl_Description const* const description = object.get_deleter().description;
        if (type.DynTypeIdOf(there) != description->TypeId() ||
            !description->Same(object.get(), there))
            return false;
    }
    return true;
}

}  // namespace

bool Holds(mdl_Field const& field, FieldValue const& value, void const* at) {
    mdl_FieldType const& type = field.Type();
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
            return type.Same(&std::get<int>(value), at);
        case mdl_FieldKind::Double:
            return type.Same(&std::get<double>(value), at);
        case mdl_FieldKind::Bool:
            return type.Same(&std::get<bool>(value), at);
        case mdl_FieldKind::String:
            return type.Same(&std::get<cow_String>(value), at);
        case mdl_FieldKind::Enum:
            return type.Number(at) == std::get<unsigned>(value);
        case mdl_FieldKind::IntList:
            return HoldsList<cls_xp1DArrayListInt>(type, std::get<cow_List<int>>(value), at);
        case mdl_FieldKind::DoubleList:
            return HoldsList<cls_xp1DArrayListDouble>(type, std::get<cow_List<double>>(value), at);
        case mdl_FieldKind::FloatMap:
            return HoldsList<cls_xpMapString2Float>(
                type, std::get<cow_Map<cow_String, float>>(value), at);
        case mdl_FieldKind::Array: {
            auto const& cells = std::get<TableValue>(value).cells;
            return !cells || HoldsList<cls_xp2DArrayDouble>(type, *cells, at);
        }
        case mdl_FieldKind::Object:
            if (auto const* const table = std::get_if<TableValue>(&value))
                return HoldsTable(CellsOf(*type.Held()), *table, at);
            [[fallthrough]];
        case mdl_FieldKind::Option:
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            return HoldsObjects(type, std::get<std::vector<DescribedObject>>(value), at);
    }
    return false;
}

void Apply(mdl_Field const& field, FieldValue&& value, void* at) {
    mdl_FieldType const& type = field.Type();
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
            *static_cast<int*>(at) = std::get<int>(value);
            return;
        case mdl_FieldKind::Double:
            *static_cast<double*>(at) = std::get<double>(value);
            return;
        case mdl_FieldKind::Bool:
            *static_cast<bool*>(at) = std::get<bool>(value);
            return;
        case mdl_FieldKind::String:
            *static_cast<cow_String*>(at) = std::get<cow_String>(value);
            return;
        case mdl_FieldKind::Enum:
            type.SetNumber(at, std::get<unsigned>(value));
            return;
        case mdl_FieldKind::IntList:
            *static_cast<cls_xp1DArrayListInt*>(at) = std::get<cow_List<int>>(value);
            return;
        case mdl_FieldKind::DoubleList:
            *static_cast<cls_xp1DArrayListDouble*>(at) = std::get<cow_List<double>>(value);
            return;
        case mdl_FieldKind::FloatMap:
            *static_cast<cls_xpMapString2Float*>(at) = std::get<cow_Map<cow_String, float>>(value);
            return;
        case mdl_FieldKind::Array:
            if (auto const& cells = std::get<TableValue>(value).cells)
                *static_cast<cls_xp2DArrayDouble*>(at) = *cells;
            return;
        case mdl_FieldKind::Object:
            if (auto* const table = std::get_if<TableValue>(&value)) {
                mdl_Field const& cells = CellsOf(*type.Held());
                if (table->cells) *static_cast<cls_xp2DArrayDouble*>(cells.At(at)) = *table->cells;
                for (auto const& [flag, set] : table->flags)
                    *static_cast<bool*>(flag->At(at)) = set;
                return;
            }
            [[fallthrough]];
        case mdl_FieldKind::Option:
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            ApplyObjects(type, std::get<std::vector<DescribedObject>>(value), at);
            return;
    }
}

}  // namespace nga::python
