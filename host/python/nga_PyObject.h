#pragma once

#include "nga_PySession.h"
#include "nga_TextForm.h"

namespace nga::python {

struct Object;

/// What a handle knows. It holds no object of a document: it knows the way from the document, and
/// follows it anew after every write, so that it never dangles. A handle may also own an object
/// that belongs to no document yet.
struct ObjectState {
    /// The handle of the object that holds this one, or for a named object the Python document.
    PyObject* owner = nullptr;
    Object* root = nullptr;
    mdl_Description const* description = nullptr;

    // ---- of a root ----
    std::shared_ptr<Session> session;  ///< none for an object that belongs to no document
    Collection const* collection = nullptr;
    cow_String key;
    DescribedObject owned;
    std::uint64_t ownStamp = 1;
    unsigned long thread = 0;

    // ---- of all others ----
    mdl_Field const* field = nullptr;
    int index = 0;

    /// Where the object stood when the stamp had this value.
    void const* at = nullptr;
    std::uint64_t seen = 0;
    /// Handles on what this object holds, by field and place; they own this one, and leave the map
    /// with their end.
    std::map<std::pair<mdl_Field const*, int>, Object*> children;
};

struct Object {
    PyObject_HEAD PyObject* weak;
    ObjectState state;
};

PyTypeObject* MakeObjectType();
extern PyTypeObject* objectType;
inline bool IsObject(PyObject* object) { return PyObject_TypeCheck(object, objectType); }

/// The Python classes by TypeId, and back.
void RegisterClass(unsigned typeId, PyTypeObject* type);
PyTypeObject* ClassOf(mdl_Description const& description);
/// Null for a type that is no class of the library.
mdl_Description const* DescriptionOf(PyTypeObject* type);

/// The one handle of a named object, of an object within another, and a handle that owns.
Ref RootObject(std::shared_ptr<Session> const& session, PyObject* document,
               Collection const& collection, cow_String const& key);
Ref ChildObject(Object* owner, mdl_Field const& field, int index,
                mdl_Description const& description);
Ref OwnedObject(DescribedObject object);

/// Whether the object belongs to this thread, and refuses another one.
bool IsHere(Object* object);
void RequireHere(Object* object);
/// The object itself. Raises ReferenceError if the way to it leads nowhere any more.
void const* Resolve(Object* object);
/// The same for writing, within a Writing where there is a document.
void* Mutable(Object* object);
/// The stamp of the document or object behind a handle.
std::uint64_t& StampOf(Object* object);

/// As scripts write it; for an object of no document, its class and the way from it.
std::string PathOf(Object* object);
Session* SessionOf(Object* object);

/// Runs write(object) on the object of a handle: as an edit if it is in a document.
template <class Write>
void WriteTo(Object* object, Write const& write) {
    Resolve(object);
    if (Session* const session = SessionOf(object)) {
        ObjectState& root = object->state.root->state;
        Writing writing(*session);
        writing.Touch(*root.collection, root.key);
        write(Mutable(object));
        writing.Close();
    } else {
        write(Mutable(object));
        ++StampOf(object);
    }
}

/// Raises ValidationError with the first broken rule of the object, known by that path.
void RequireValid(mdl_Description const& description, void const* object, std::string const& path);

}  // namespace nga::python
