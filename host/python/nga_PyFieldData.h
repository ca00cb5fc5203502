#pragma once

#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "cow_2DArray.h"
#include "cow_List.h"
#include "cow_Map.h"
#include "nga_PyField.h"

namespace nga::python {

struct FieldData {
    mdl_Description const* owner = nullptr;
    mdl_Field const* field = nullptr;
    /// The array where the field holds a table or is one, else null; and where it stands in it.
    mdl_Field const* cells = nullptr;
    PyObject* name = nullptr;
    std::vector<PyObject*> literals;
    std::vector<std::pair<PyObject*, double>> words;
};

struct Field {
    PyObject_HEAD FieldData data;
};

/// A table as a script gives it: rows and flags, each where it gives them.
struct TableValue {
    std::optional<cow_2DArray<double>> cells;
    std::vector<std::pair<mdl_Field const*, bool>> flags;
};

/// A value for a field, taken from Python and found right. Applying it cannot fail but for memory.
using FieldValue =
    std::variant<int, double, bool, unsigned, cow_String, TableValue, cow_List<int>,
                 cow_List<double>, cow_Map<cow_String, float>, std::vector<DescribedObject>>;

/// Raises TypeError or ValueError, which name the field and what it takes.
FieldValue FromPython(FieldData const& field, PyObject* value);
void Apply(mdl_Field const& field, FieldValue&& value, void* at);
/// Whether applying the value would change nothing.
bool Holds(mdl_Field const& field, FieldValue const& value, void const* at);
/// A field as messages call it.
std::string NameOf(FieldData const& field);
double RealFrom(PyObject* value, bool& fits);

/// A read-only NumPy array on the cells, which it keeps alive by sharing them.
PyObject* ArrayOf(cow_2DArray<double> const& cells);
/// The cells of a NumPy array; false for what is none, and for one of objects.
bool FromArray(FieldData const& field, PyObject* value, cow_2DArray<double>& cells);

/// The address of the array of a field that is or holds one.
inline void const* CellsAt(FieldData const& field, void const* at) {
    return field.cells == field.field ? at : field.cells->At(at);
}

}  // namespace nga::python
