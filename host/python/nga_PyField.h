#pragma once

#include "nga_PyObject.h"

namespace nga::python {

/// The attribute of a class for one described field.
struct Field;

PyTypeObject* MakeFieldType();
/// Makes one: the literals are Python's, one for each row of the field's table, and the words are
/// those that stand for a number, with their numbers.
Ref MakeField(mdl_Description const& owner, std::string const& script, PyObject* literals,
              PyObject* words);

/// What makes the Python views of lists of objects and of maps: called with handle and name. And
/// what describes a field in words: called with the class that has it and its name.
void SetViews(PyObject* list, PyObject* map, PyObject* describe);

/// A text of a path as Python reads it: bytes that are no UTF-8 are the surrogates that stand for
/// them.
std::string ScriptPath(std::string const& path);

/// The value of a field at an address, whole: lists as lists, objects as objects of no document.
Ref ValueOf(Field* field, void const* at);
Ref CopyOf(mdl_Description const& description, void const* object);

/// Sets several fields, or none: refuses all if one is refused. With \p validate the object is
/// asked before anything is written.
void SetValues(Object* object, PyObject* fields, bool validate);
/// A new object with these fields; \p path is how messages call it.
DescribedObject MakeObject(mdl_Description const& description, PyObject* fields, bool validate,
                           std::string const& path);
/// Sets an option, or appends to a list; gives the handle of what is there then.
Ref Put(Object* owner, std::string const& script, DescribedObject object);
Ref ElementOf(Object* owner, std::string const& script, int index);
int CountOf(Object* owner, std::string const& script);

/// Sets entries of a map of numbers, and takes one away: false if it is not there. Either costs
/// what it changes and not the map.
void PutNumbers(Object* owner, PyObject* name, PyObject* entries);
bool RemoveNumber(Object* owner, PyObject* name, PyObject* key);

/// Refuses a field that holds no objects, or none of this class.
void RequireHeld(mdl_Description const& owner, mdl_Field const& field,
                 mdl_Description const& given);

/// Orders the rows of a table of an object by as many columns; messages call the number as shown.
void SortTable(Object* object, std::string const& script, long columns, std::string const& shown);

/// The field of a class by its script name; raises AttributeError with near names.
Field& FieldOf(mdl_Description const& description, PyObject* name);
mdl_Field const& DescribedFieldOf(mdl_Description const& description, std::string const& script);

}  // namespace nga::python
