#include "nga_PyObject.h"

#include <structmember.h>

#include <unordered_map>

#include "nex_Exception.h"
#include "nga_Check.h"
#include "nga_Names.h"
#include "nga_Path.h"
#include "nga_PyField.h"

namespace nga::python {

PyTypeObject* objectType = nullptr;

namespace {

std::unordered_map<unsigned, PyTypeObject*> classes;
std::unordered_map<PyTypeObject*, mdl_Description const*> descriptions;

Object* As(PyObject* object) { return reinterpret_cast<Object*>(object); }
PyObject* Plain(Object* object) { return reinterpret_cast<PyObject*>(object); }

Object* Allocate(mdl_Description const& description) {
    PyTypeObject* const type = ClassOf(description);
    Object* const object = As(type->tp_alloc(type, 0));
    if (!object) throw Failure();
    new (&object->state) ObjectState;
    object->state.description = &description;
    object->state.root = object;
    return object;
}

bool IsRoot(ObjectState const& state) { return state.field == nullptr; }

void Forget(Object* object) {
    ObjectState& state = object->state;
    if (!IsRoot(state)) {
        auto& siblings = As(state.owner)->state.children;
        auto const found = siblings.find({state.field, state.index});
        if (found != siblings.end() && found->second == object) siblings.erase(found);
    } else if (state.session) {
        auto const found =
            state.session->roots.find({state.collection, std::string(state.key.View())});
        if (found != state.session->roots.end() && found->second == object)
            state.session->roots.erase(found);
    }
}

void Dealloc(PyObject* self) {
    Object* const object = As(self);
    PyTypeObject* const type = Py_TYPE(self);
    if (object->weak) PyObject_ClearWeakRefs(self);
    Forget(object);
    PyObject* const owner = object->state.owner;
    object->state.~ObjectState();
    type->tp_free(self);
    Py_XDECREF(owner);
    Py_DECREF(type);
}

[[noreturn]] void RaiseGone(Object* object, std::string const& why) {
    Fail(PyExc_ReferenceError, PathOf(object) + ": " + why);
}

void CheckClass(Object* object, mdl_Description const* now) {
    if (now != object->state.description)
        RaiseGone(object, std::string("another object has taken its place, a ") +
                              (now ? now->Name() : "stranger"));
}

/// An attribute that is none: names that are near it.
[[noreturn]] void RaiseNoAttribute(PyObject* self, PyObject* name) {
    std::vector<std::string> known;
    if (mdl_Description const* description = DescriptionOf(Py_TYPE(self)))
        known = ScriptNames(*description);
    std::string const given = FromText(name);
    PyErr_Clear();
    Fail(PyExc_AttributeError, std::string(Py_TYPE(self)->tp_name) + " has no attribute " +
                                   Quoted(given) + DidYouMean(given, known));
}

PyObject* GetAttribute(PyObject* self, PyObject* name) {
    PyObject* const value = PyObject_GenericGetAttr(self, name);
    if (value || !PyErr_ExceptionMatches(PyExc_AttributeError)) return value;
    Py_ssize_t size = 0;
    char const* const text = PyUnicode_AsUTF8AndSize(name, &size);
    // What Python itself asks for is nothing that anybody mistyped.
    if (!text || (size > 1 && text[0] == '_')) {
        if (!text) PyErr_Clear(), PyErr_SetObject(PyExc_AttributeError, name);
        return nullptr;
    }
    return Guarded<PyObject*>(nullptr, [&]() -> PyObject* { RaiseNoAttribute(self, name); });
}

int SetAttribute(PyObject* self, PyObject* name, PyObject* value) {
    if (PyUnicode_CompareWithASCIIString(name, "__class__") == 0)
        return Guarded(-1, [&]() -> int {
            Fail(PyExc_TypeError,
                 std::string("the class of a ") + Py_TYPE(self)->tp_name + " cannot be changed");
        });
    // A field's own setter says what is wrong with a value; only a name that is none comes here.
    if (!_PyType_Lookup(Py_TYPE(self), name))
        return Guarded(-1, [&]() -> int { RaiseNoAttribute(self, name); });
    return PyObject_GenericSetAttr(self, name, value);
}

PyObject* GetPath(PyObject* self, void*) {
    return Guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        RequireHere(As(self));
        if (!SessionOf(As(self))) Py_RETURN_NONE;
        return ToText(PathOf(As(self))).Release();
    });
}
PyObject* GetDocument(PyObject* self, void*) {
    return Guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        RequireHere(As(self));
        ObjectState const& root = As(self)->state.root->state;
        if (!root.session) Py_RETURN_NONE;
        Py_INCREF(root.owner);
        return root.owner;
    });
}
PyObject* GetAlive(PyObject* self, void*) {
    return Guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        try {
            Resolve(As(self));
        } catch (Failure const&) {
            if (!PyErr_ExceptionMatches(PyExc_ReferenceError)) throw;
            PyErr_Clear();
            Py_RETURN_FALSE;
        }
        Py_RETURN_TRUE;
    });
}

PyGetSetDef getSet[] = {
    {"path", GetPath, nullptr, "The expression that leads to this object; None in no document",
     nullptr},
    {"document", GetDocument, nullptr, "The document that this object is in, or None", nullptr},
    {"alive", GetAlive, nullptr, "Whether the path still leads to an object of this class",
     nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr}};
PyMemberDef members[] = {
    {"__weaklistoffset__", T_PYSSIZET, offsetof(Object, weak), READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr}};
PyType_Slot slots[] = {{Py_tp_dealloc, reinterpret_cast<void*>(Dealloc)},
                       {Py_tp_getattro, reinterpret_cast<void*>(GetAttribute)},
                       {Py_tp_setattro, reinterpret_cast<void*>(SetAttribute)},
                       {Py_tp_getset, getSet},
                       {Py_tp_members, members},
                       {0, nullptr}};
PyType_Spec spec = {"_nga.Object", sizeof(Object), 0,
                    Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE | Py_TPFLAGS_DISALLOW_INSTANTIATION,
                    slots};

}  // namespace

PyTypeObject* MakeObjectType() {
    objectType = reinterpret_cast<PyTypeObject*>(PyType_FromSpec(&spec));
    if (!objectType) throw Failure();
    return objectType;
}

void RegisterClass(unsigned typeId, PyTypeObject* type) {
    mdl_Description const* const description = mdl_Description::Find(typeId);
    if (!description) Fail(PyExc_ValueError, "there is no class of this number");
    Py_INCREF(type);
    classes[typeId] = type;
    descriptions[type] = description;
}

PyTypeObject* ClassOf(mdl_Description const& description) {
    auto const found = classes.find(description.TypeId());
    if (found == classes.end())
        Fail(PyExc_TypeError, std::string("the class ") + description.Name() + " has no type");
    return found->second;
}

mdl_Description const* DescriptionOf(PyTypeObject* type) {
    auto const found = descriptions.find(type);
    return found == descriptions.end() ? nullptr : found->second;
}

Ref RootObject(std::shared_ptr<Session> const& session, PyObject* document,
               Collection const& collection, cow_String const& key) {
    session->Enter();
    void const* const at = collection.Find(session->document.Model(), key);
    if (!at) return Ref();
    mdl_Description const* const description = mdl_Description::Find(collection.DynTypeIdOf(at));
    if (!description) Fail(PyExc_TypeError, "the object is of a class without a description");
    Object*& place = session->roots[{&collection, std::string(key.View())}];
    if (place && place->state.description == description) return Ref::Share(Plain(place));
    Object* const made = Allocate(*description);
    made->state.session = session;
    made->state.collection = &collection;
    made->state.key = key;
    made->state.thread = PyThread_get_thread_ident();
    Py_INCREF(document);
    made->state.owner = document;
    place = made;
    return Ref(Plain(made));
}

Ref ChildObject(Object* owner, mdl_Field const& field, int index,
                mdl_Description const& description) {
    Object*& place = owner->state.children[{&field, index}];
    if (place && place->state.description == &description) return Ref::Share(Plain(place));
    Object* const made = Allocate(description);
    Py_INCREF(Plain(owner));
    made->state.owner = Plain(owner);
    made->state.root = owner->state.root;
    made->state.field = &field;
    made->state.index = index;
    place = made;
    return Ref(Plain(made));
}

Ref OwnedObject(DescribedObject object) {
    Object* const made = Allocate(*object.get_deleter().description);
    made->state.owned = std::move(object);
    made->state.thread = PyThread_get_thread_ident();
    return Ref(Plain(made));
}

Session* SessionOf(Object* object) { return object->state.root->state.session.get(); }

std::uint64_t& StampOf(Object* object) {
    ObjectState& root = object->state.root->state;
    return root.session ? root.session->stamp : root.ownStamp;
}

namespace {

void const* Follow(Object* object, std::uint64_t stamp) {
    ObjectState& state = object->state;
    if (state.seen == stamp) return state.at;
    void const* at = nullptr;
    mdl_Description const* now = nullptr;
    if (!IsRoot(state)) {
        mdl_FieldType const& type = state.field->Type();
        void const* const fieldAt = state.field->At(Follow(As(state.owner), stamp));
        if (state.index < type.Count(fieldAt)) at = type.ConstObject(fieldAt, state.index);
        if (at) now = mdl_Description::Find(type.DynTypeIdOf(at));
    } else if (state.session) {
        at = state.collection->Find(state.session->document.Model(), state.key);
        if (at) now = mdl_Description::Find(state.collection->DynTypeIdOf(at));
    } else {
        at = state.owned.get();
        now = state.description;
    }
    if (!at) RaiseGone(object, "the object is gone");
    CheckClass(object, now);
    state.at = at;
    state.seen = stamp;
    return at;
}

}  // namespace

bool IsHere(Object* object) {
    ObjectState const& root = object->state.root->state;
    return root.session ? root.session->IsHere() : root.thread == PyThread_get_thread_ident();
}

void RequireHere(Object* object) {
    ObjectState const& root = object->state.root->state;
    if (root.session)
        root.session->Enter();
    else if (root.thread != PyThread_get_thread_ident())
        Fail(PyExc_RuntimeError,
             "this object belongs to the thread that made it, and cannot be "
             "used from another");
}

void const* Resolve(Object* object) {
    RequireHere(object);
    return Follow(object, StampOf(object));
}

void* Mutable(Object* object) {
    ObjectState& state = object->state;
    void* at;
    if (!IsRoot(state)) {
        void* const fieldAt = state.field->At(Mutable(As(state.owner)));
        at = state.field->Type().MutableObject(fieldAt, state.index);
    } else if (state.session) {
        at = state.collection->Get(state.session->document.Model(), state.key);
    } else {
        return state.owned.get();
    }
    // The way has just been made its own, so this is where the object stays till the next write.
    state.at = at;
    state.seen = StampOf(object);
    return at;
}

std::string PathOf(Object* object) {
    ObjectState const& state = object->state;
    if (IsRoot(state)) {
        if (state.session)
            return ScriptPath(EntryPath(DocumentPath(state.session->document), *state.collection,
                                        state.key.View()));
        return state.description->Constructor() ? state.description->Constructor()
                                                : state.description->Name();
    }
    Object* const owner = As(state.owner);
    mdl_FieldKind const kind = state.field->Type().Kind();
    bool const list = kind == mdl_FieldKind::OptionList || kind == mdl_FieldKind::ObjectList;
    return PathOf(owner) + FieldStep(*owner->state.description, *state.field) +
           (list ? IndexStep(state.index) : std::string());
}

void RequireValid(mdl_Description const& description, void const* object, std::string const& path) {
    std::vector<Finding> const findings = Check(description, object, path);
    if (findings.empty()) return;
    Finding const& first = findings.front();
    std::string file;
    int line = 0;
    try {
        mdl_AssertingVisitor visitor(*description.Module());
        description.RunRules(object, visitor);
    } catch (nex_Exception const& failure) {
        file = failure.File() ? failure.File() : "";
        line = failure.Line();
    }
    Ref const message = ToText(first.message), where = ToText(ScriptPath(first.path));
    Ref const attributes(Py_BuildValue("{sOsOsssisssi}", "message", message.Get(), "path",
                                       where.Get(), "module", first.module.c_str(), "code",
                                       first.code, "file", file.c_str(), "line", line));
    FailWith(exceptions.validationError, ScriptPath(first.path) + ": " + first.message,
             attributes.Get());
}

}  // namespace nga::python
