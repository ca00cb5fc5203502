#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "nex_Exception.h"
#include "nga_Check.h"
#include "nga_Error.h"
#include "nga_FieldLiterals.h"
#include "nga_Fields.h"
#include "nga_Json.h"
#include "nga_JsonTree.h"
#include "nga_Names.h"
#include "nga_Path.h"
#include "nga_Picture.h"
#include "nga_PyDepth.h"
#include "nga_PyFacts.h"
#include "nga_PyField.h"
#include "nga_Script.h"
#include "nga_Start.h"
#include "nga_StoreError.h"
#include "nga_Svg.h"
#include "nga_Tree.h"
#include "omu_PrimValues.h"

// The module _nga: documents, and what the package nga makes classes from. The package is the
// interface that scripts see.

namespace nga::python {

namespace py = pybind11;
using SessionPointer = std::shared_ptr<Session>;

namespace {

py::object Give(Ref&& ref) { return py::reinterpret_steal<py::object>(ref.Release()); }
py::object Text(std::string_view text) { return Give(ToText(text)); }
std::string From(py::handle text) {
    if (!PyUnicode_Check(text.ptr()))
        Fail(PyExc_TypeError, "a text is expected, not a " + TypeNameOf(text.ptr()));
    return FromText(text.ptr());
}
cow_String Key(py::handle text) { return cow_String(std::string_view(From(text))); }
Object* Handle(py::handle object) {
    if (!IsObject(object.ptr()))
        Fail(PyExc_TypeError,
             "an object of the library is expected, not a " + TypeNameOf(object.ptr()));
    return reinterpret_cast<Object*>(object.ptr());
}
/// A truth value, of Python or of NumPy, and nothing that only has one.
bool Flag(py::handle value, char const* name) {
    if (PyBool_Check(value.ptr())) return value.ptr() == Py_True;
    if (TypeNameOf(value.ptr()) == "numpy.bool_") return PyObject_IsTrue(value.ptr()) == 1;
    Fail(PyExc_TypeError, std::string(name) + ": " + From(py::repr(value)) + " (" +
                              TypeNameOf(value.ptr()) +
                              ") cannot stand here; expected True or False");
}
Collection const& CollectionAt(std::size_t index) { return *Collection::All().at(index); }

// ---- documents ---------------------------------------------------------------------------------

py::list Findings(std::vector<Finding> const& findings) {
    py::list list;
    for (Finding const& finding : findings)
        list.append(py::make_tuple(Text(ScriptPath(finding.path)), finding.module, finding.code,
                                   Text(finding.message), finding.note));
    return list;
}

/// Gives what the work makes, which signals can end and to which the document is closed meanwhile.
template <class Work>
auto Long(Session& session, Work const& work) {
    session.Enter();
    Interruptible const interruptible(&session);
    return work();
}
/// The same for an object. One that belongs to no document cannot be closed to the handler of a
/// signal; the work gets a share of it then, which nobody else reaches.
template <class Work>
auto Long(Object* object, Work const& work) {
    mdl_Description const& description = *object->state.description;
    void const* const at = Resolve(object);
    Session* const session = SessionOf(object);
    DescribedObject const share(session ? nullptr : description.Copy(at),
                                DescribedDeleter{&description});
    Interruptible const interruptible(session);
    return work(session ? at : static_cast<void const*>(share.get()));
}
/// Does what may change the document as a whole.
template <class Work>
auto Recorded(Session& session, Work const& work) {
    session.Enter();
    Recording const recording(session);
    ++session.stamp;
    return work();
}
CheckDepth DepthOf(bool deep) { return deep ? CheckDepth::All : CheckDepth::Asked; }

void RequireKey(Session& session, Collection const& collection, std::string const& key) {
    RequireName(key, DocumentPath(session.document) + "." + collection.Name());
    int const code = collection.CodeOfName(key);
    if (code < 0) return;
    mdl_Module const& module = *collection.Held().Module();
    std::string const message(module.errorText(code).View());
    std::string const path = EntryPath(DocumentPath(session.document), collection, key);
    py::dict attributes;
    attributes["message"] = Text(message);
    attributes["path"] = Text(ScriptPath(path));
    attributes["module"] = module.prefix;
    attributes["code"] = code;
    attributes["file"] = "";
    attributes["line"] = 0;
    try {
        module.fail(code);
    } catch (nex_Exception const& failure) {
        attributes["file"] = failure.File() ? failure.File() : "";
        attributes["line"] = failure.Line();
    }
    FailWith(exceptions.validationError, ScriptPath(path) + ": " + message, attributes.ptr());
}

[[noreturn]] void RaiseNoKey(Session& session, Collection const& collection,
                             std::string const& key) {
    std::vector<std::string> known;
    // So many names are no typing mistake's choice, and looking through them is slow.
    if (collection.Size(session.document.Model()) <= 10000)
        collection.Each(session.document.Model(), [&](cow_String const& name, void const*) {
            known.emplace_back(name.View());
        });
    Fail(PyExc_KeyError, DocumentPath(session.document) + "." + collection.Name() +
                             ": there is no entry " + Quoted(key) + DidYouMean(key, known));
}

py::object Entry(SessionPointer const& session, py::handle document, std::size_t index,
                 py::handle name) {
    std::string const key = From(name);
    Ref object =
        RootObject(session, document.ptr(), CollectionAt(index), cow_String(std::string_view(key)));
    if (!object) RaiseNoKey(*session, CollectionAt(index), key);
    return Give(std::move(object));
}

void Insert(Session& session, Collection const& collection, cow_String const& key,
            DescribedObject object) {
    RequireDepth(std::string(".") + collection.Name(), *object.get_deleter().description,
                 object.get(), levelOfNamed);
    Writing writing(session);
    writing.Touch(collection, key);
    collection.Insert(session.document.Model(), key, object.release());
    writing.Close();
}

py::object MakeEntry(SessionPointer const& session, py::handle document, std::size_t index,
                     unsigned typeId, py::handle name, py::dict fields, py::handle validate) {
    session->Enter();
    Collection const& collection = CollectionAt(index);
    std::string const key = From(name);
    std::string const path =
        ScriptPath(EntryPath(DocumentPath(session->document), collection, key));
    RequireKey(*session, collection, key);
    if (collection.Find(session->document.Model(), cow_String(std::string_view(key))))
        Fail(PyExc_ValueError, path +
                                   ": there is an object of this name already; assign to it "
                                   "to replace it");
    Insert(*session, collection, cow_String(std::string_view(key)),
           MakeObject(DescriptionAt(typeId), fields.ptr(), Flag(validate, "validate"), path));
    return Entry(session, document, index, name);
}

void PutEntry(SessionPointer const& session, std::size_t index, py::handle name,
              py::handle object) {
    session->Enter();
    Collection const& collection = CollectionAt(index);
    std::string const key = From(name);
    RequireKey(*session, collection, key);
    Object* const source = Handle(object);
    mdl_Description const* const description = source->state.description;
    mdl_Description const* level = description;
    while (level && level != &collection.Held()) level = level->Base();
    if (!level)
        Fail(PyExc_TypeError,
             std::string(".") + collection.Name() + " holds no " + TypeNameOf(object.ptr()));
    cow_String const place(std::string_view{key});
    void const* const given = Resolve(source);
    void const* const there = collection.Find(session->document.Model(), place);
    // What changes nothing is no step.
    if (there && collection.DynTypeIdOf(there) == description->TypeId() &&
        description->Same(there, given))
        return;
    Insert(*session, collection, place,
           DescribedObject(description->Copy(given), DescribedDeleter{description}));
}

void RemoveEntry(Session& session, std::size_t index, py::handle name) {
    session.Enter();
    Collection const& collection = CollectionAt(index);
    cow_String const key = Key(name);
    if (!collection.Find(session.document.Model(), key))
        RaiseNoKey(session, collection, std::string(key.View()));
    Writing writing(session);
    writing.Touch(collection, key);
    collection.Remove(session.document.Model(), key);
    writing.Close();
}

void RenameEntry(Session& session, std::size_t index, py::handle from, py::handle to) {
    session.Enter();
    Collection const& collection = CollectionAt(index);
    cow_String const old = Key(from), fresh = Key(to);
    ddr_Model& model = session.document.Model();
    auto const held = collection.Hold(model, old);
    if (!held) RaiseNoKey(session, collection, std::string(old.View()));
    RequireKey(session, collection, std::string(fresh.View()));
    if (old == fresh) return;
    if (collection.Find(model, fresh))
        Fail(PyExc_ValueError,
             ScriptPath(EntryPath(DocumentPath(session.document), collection, fresh.View())) +
                 ": there is an object of this name already");
    Writing writing(session);
    writing.Touch(collection, old);
    writing.Touch(collection, fresh);
    session.history.Renamed(collection, old, fresh);
    collection.Remove(model, old);
    collection.Restore(model, fresh, held);
    writing.Close();
}

py::list Keys(Session& session, std::size_t index) {
    session.Enter();
    // Making objects of Python's can run Python code, which may write to the document.
    std::vector<cow_String> names;
    CollectionAt(index).Each(session.document.Model(),
                             [&](cow_String const& key, void const*) { names.push_back(key); });
    py::list keys(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) keys[i] = Text(names[i].View());
    return keys;
}

py::list Import(Session& session, py::handle given, std::string const& onConflict) {
    session.Enter();
    std::string const text = From(given);
    OnConflict const rule = onConflict == "replace" ? OnConflict::Replace
                            : onConflict == "keep"  ? OnConflict::Keep
                                                    : OnConflict::Error;
    std::vector<Imported> lines;
    {
        Recording const recording(session);
        Interruptible const interruptible(&session);
        ++session.stamp;
        lines = ImportRecorded(session.document, session.history, text, rule);
    }
    py::list report;
    for (Imported const& line : lines)
        report.append(py::make_tuple(line.collection, line.added, line.replaced, line.kept));
    return report;
}

/// A change record as the tuple that it is.
class TupleOfPrimitive final : public omu_PrimVisitor {
public:
    py::object result;
    void Visit(omu_PrimEnumBase const& value) override { result = Text(value.GetString()); }
    void Visit(omu_PrimInt const& value) override { result = py::int_(value.Value()); }
    void Visit(omu_PrimDouble const& value) override { result = py::float_(value.Value()); }
    void Visit(omu_PrimString const& value) override { result = Text(value.Value().View()); }
    void Visit(omu_PrimTuple const& value) override {
        py::tuple tuple(static_cast<std::size_t>(value.Size()));
        for (int i = 0; i < value.Size(); ++i) {
            TupleOfPrimitive member;
            value.Get(i).Accept(&member);
            tuple[static_cast<std::size_t>(i)] = member.result;
        }
        result = tuple;
    }
};

py::list Records(Session& session, std::size_t from, std::size_t count) {
    session.Enter();
    py::list records;
    for (std::size_t i = from; i < session.records.size() && i - from < count; ++i) {
        // A copy: making objects of Python's can run Python code, which may have them forgotten.
        ChangeRecord const record = session.records[i];
        if (record.whole) {
            TupleOfPrimitive visitor;
            record.whole->Accept(&visitor);
            records.append(visitor.result);
        } else if (record.hasMark) {
            records.append(py::make_tuple(record.what, Text(record.key.View()), record.mark));
        } else {
            records.append(py::make_tuple(record.what, Text(record.key.View())));
        }
    }
    return records;
}

/// A snapshot with the thread that its counts belong to.
struct KeptSnapshot {
    explicit KeptSnapshot(Session& session)
        : snapshot((session.Enter(), session.document.Model())) {}
    Snapshot snapshot;
    unsigned long thread = PyThread_get_thread_ident();
};

py::object SideOf(DiffValue const& value, py::handle missing) {
    switch (value.what) {
        case DiffValue::What::Missing:
            return py::reinterpret_borrow<py::object>(missing);
        case DiffValue::What::Object:
            return Give(CopyOf(*value.description, value.at));
        case DiffValue::What::Field: {
            Ref const name = ToText(value.field->Script());
            return Give(ValueOf(&FieldOf(*value.description, name.Get()), value.at));
        }
        case DiffValue::What::Real:
            return py::float_(value.real);
        case DiffValue::What::Integer:
            return py::int_(value.integer);
    }
    return py::none();
}

py::list DiffOf(KeptSnapshot const& before, KeptSnapshot const& after, std::string const& root,
                double relative, double absolute, py::handle missing) {
    if (before.thread != PyThread_get_thread_ident() || after.thread != before.thread)
        Fail(PyExc_RuntimeError, "a snapshot belongs to the thread that took it");
    py::list list;
    Interruptible const interruptible;
    Diff(before.snapshot, after.snapshot, root, {relative, absolute},
         [&](Difference const& difference) {
             list.append(py::make_tuple(Text(ScriptPath(difference.path)),
                                        SideOf(difference.before, missing),
                                        SideOf(difference.after, missing)));
         });
    return list;
}

// ---- objects -----------------------------------------------------------------------------------

py::object Create(unsigned typeId, py::dict fields, py::handle validate) {
    mdl_Description const& description = DescriptionAt(typeId);
    return Give(OwnedObject(
        MakeObject(description, fields.ptr(), Flag(validate, "validate"),
                   description.Constructor() ? description.Constructor() : description.Name())));
}

py::object MakeIn(py::handle owner, std::string const& script, unsigned typeId, py::dict fields,
                  py::handle validate) {
    Object* const object = Handle(owner);
    Resolve(object);
    mdl_Field const& field = DescribedFieldOf(*object->state.description, script);
    // A constructor of one class called on an object of another finds a field of that name,
    // perhaps.
    RequireHeld(*object->state.description, field, DescriptionAt(typeId));
    std::string path = PathOf(object) + FieldStep(*object->state.description, field);
    if (field.Type().Kind() != mdl_FieldKind::Option) path += IndexStep(CountOf(object, script));
    return Give(
        Put(object, script,
            MakeObject(DescriptionAt(typeId), fields.ptr(), Flag(validate, "validate"), path)));
}

py::object ToJson(py::handle handle) {
    Object* const object = Handle(handle);
    mdl_Description const& description = *object->state.description;
    return Text(Long(object, [&](void const* at) {
        JsonWriter writer;
        Defaults defaults;
        WriteObject(writer, defaults, description, description, at, defaults.Of(description));
        return writer.TakeValue();
    }));
}

py::object FromJson(unsigned typeId, py::handle text) {
    mdl_Description const& description = DescriptionAt(typeId);
    Interruptible const interruptible;
    return Give(OwnedObject(ReadObject(ParseJson(From(text)), JsonPlace(), description)));
}

bool Same(py::handle a, py::handle b) {
    Object *const one = Handle(a), *const other = Handle(b);
    RequireHere(one);
    RequireHere(other);
    return one->state.description == other->state.description &&
           one->state.description->Same(Resolve(one), Resolve(other));
}

py::object FieldJson(py::handle handle, std::string const& script) {
    Object* const object = Handle(handle);
    mdl_Field const& field = DescribedFieldOf(*object->state.description, script);
    void const* const at = field.At(Resolve(object));
    return Text(ValueText(field, at));
}

/// The names of the fields that are not at their defaults.
py::list Changed(py::handle handle) {
    Object* const object = Handle(handle);
    mdl_Description const& description = *object->state.description;
    void const* const at = Resolve(object);
    DescribedObject const usual(description.Create(), DescribedDeleter{&description});
    py::list names;
    for (mdl_Field const* field : description.AllFields())
        if (!field->Type().Same(field->At(at), field->At(static_cast<void const*>(usual.get()))))
            names.append(field->Script());
    return names;
}

void MakeExceptions(py::module_& module) {
    auto const make = [&](char const* name, py::tuple const& bases, char const* doc) {
        Ref made(PyErr_NewExceptionWithDoc((std::string("nga.") + name).c_str(), doc, bases.ptr(),
                                           nullptr));
        module.attr(name) = py::reinterpret_borrow<py::object>(made.Get());
        return made.Release();
    };
    auto const base = [](PyObject* type) { return py::reinterpret_borrow<py::object>(type); };
    exceptions.error =
        make("Error", py::make_tuple(base(PyExc_ValueError)),
             "What the library cannot do, with message, place, line and what was expected.");
    exceptions.storeError = make("StoreError", py::make_tuple(base(PyExc_OSError)),
                                 "What is wrong with a file: its path and the cause.");
    exceptions.validationError =
        make("ValidationError", py::make_tuple(base(PyExc_ValueError)),
             "A broken rule: message, code, module, path of the object, file and line.");
}

/// Without this, __new__ gives an object around memory that nobody has made.
void RefuseNew(py::handle type) {
    reinterpret_cast<PyTypeObject*>(type.ptr())->tp_new = [](PyTypeObject* made, PyObject*,
                                                             PyObject*) -> PyObject* {
        PyErr_Format(PyExc_TypeError, "%s cannot be made by its class", made->tp_name);
        return nullptr;
    };
}

void DefineSession(py::module_& module) {
    RefuseNew(py::class_<KeptSnapshot>(module, "Snapshot"));
    py::class_<Session, SessionPointer> session(module, "Session");
    RefuseNew(session);
    session
        .def_static(
            "new",
            [](py::handle name) { return std::make_shared<Session>(Document::New(From(name))); })
        .def_static("open",
                    [](py::handle path) {
                        Interruptible const interruptible;
                        return std::make_shared<Session>(Document::Open(From(path)));
                    })
        .def_static("from_json",
                    [](py::handle name, py::handle text) {
                        Interruptible const interruptible;
                        Document document = Document::New(From(name));
                        ImportJson(document, From(text));
                        return std::make_shared<Session>(std::move(document));
                    })
        .def_property(
            "name",
            [](Session& s) {
                // Also in the midst of a call, or no document could be looked up by name then.
                if (!s.isAtWork || !s.IsHere()) s.Enter();
                return Text(s.document.Name());
            },
            [](Session& s, py::handle name) {
                s.Enter();
                RequireName(From(name), "the document");
                s.document.Model().Rename(Key(name));
            })
        .def_property_readonly("file",
                               [](Session& s) {
                                   s.Enter();
                                   return Text(s.document.File());
                               })
        .def_property_readonly("path",
                               [](Session& s) {
                                   s.Enter();
                                   return Text(ScriptPath(DocumentPath(s.document)));
                               })
        .def_property_readonly("is_here", [](Session& s) { return s.IsHere(); })
        .def_property(
            "opening", [](Session& s) { return Text(s.Opening()); },
            [](Session& s, py::handle opening) { s.opening = From(opening); })
        .def("set_opened",
             [](Session& s, py::handle opening, py::handle file) {
                 s.opening = From(opening);
                 s.opened = From(file);
                 s.openedStamp = FileStamp::Of(s.opened);
             })
        .def("enter", [](Session& s) { s.Enter(); })
        .def("save",
             [](Session& s) {
                 Long(s, [&] {
                     ++s.stamp;
                     s.document.Save();
                     // Here and not in a second call: a signal could come between the two.
                     s.NoteSaved();
                 });
             })
        .def("save_as",
             [](Session& s, py::handle path) {
                 std::string const target = From(path);
                 Long(s, [&] {
                     ++s.stamp;
                     s.document.SaveAs(target);
                     s.NoteSaved();
                 });
             })
        .def("undo", [](Session& s) { return Recorded(s, [&] { return s.history.Undo(); }); })
        .def("redo", [](Session& s) { return Recorded(s, [&] { return s.history.Redo(); }); })
        .def("forget",
             [](Session& s) {
                 s.Enter();
                 // A script begins here from now on, and nothing else may have what is here.
                 bool const begins = s.history.UndoCount() > 0;
                 s.history.Forget();
                 if (begins) s.opening.clear();
                 s.records.clear();
             })
        .def("counts",
             [](Session& s) {
                 s.Enter();
                 return py::make_tuple(s.history.UndoCount(), s.history.RedoCount());
             })
        .def("reasons",
             [](Session& s) {
                 s.Enter();
                 return py::make_tuple(Text(s.history.NextUndo()), Text(s.history.NextRedo()));
             })
        .def("open_edit",
             [](Session& s, py::handle edit, py::handle why) {
                 s.Enter();
                 std::size_t const number = s.history.Open(From(why));
                 // Noted here, since a signal could come between this call and what keeps its
                 // result; nobody could end the edit then.
                 try {
                     edit.attr("_number") = number;
                 } catch (...) {
                     s.history.RollBack(number);
                     throw;
                 }
             })
        .def("close_edit",
             [](Session& s, std::size_t edit) { Recorded(s, [&] { s.history.Close(edit); }); })
        .def("roll_back",
             [](Session& s, std::size_t edit) { Recorded(s, [&] { s.history.RollBack(edit); }); })
        .def("drop_edit", [](Session& s, std::size_t edit) { s.Drop(edit); })
        .def("has_edit",
             [](Session& s, std::size_t edit) {
                 s.Enter();
                 return s.history.IsOpen(edit);
             })
        .def("snapshot", [](Session& s) { return std::make_unique<KeptSnapshot>(s); })
        .def("findings",
             [](Session& s, py::handle deep) {
                 CheckDepth const depth = DepthOf(Flag(deep, "deep"));
                 return Findings(Long(s, [&] { return Check(s.document, depth); }));
             })
        .def("export_json",
             [](Session& s) { return Text(Long(s, [&] { return ExportJson(s.document); })); })
        .def("import_json", Import)
        .def("records", Records)
        .def("record_count",
             [](Session& s) {
                 s.Enter();
                 return s.records.size();
             })
        .def("start_text", [](Session& s) { return Text(Long(s, [&] { return s.StartText(); })); })
        .def("script",
             [](Session& s, py::handle opening) {
                 std::string const start = From(opening);
                 return Text(Long(s, [&] { return ScriptText(start, s.history); }));
             })
        .def("script_body",
             [](Session& s) { return Text(Long(s, [&] { return ScriptBody(s.history); })); })
        .def("size",
             [](Session& s, std::size_t index) {
                 s.Enter();
                 return CollectionAt(index).Size(s.document.Model());
             })
        .def("contains",
             [](Session& s, std::size_t index, py::handle name) {
                 s.Enter();
                 if (!PyUnicode_Check(name.ptr())) return false;
                 try {
                     return CollectionAt(index).Find(s.document.Model(), Key(name)) != nullptr;
                 } catch (Failure const&) {
                     // A text that cannot be kept is the name of nothing.
                     PyErr_Clear();
                     return false;
                 }
             })
        .def("keys", Keys)
        .def("entry", [](SessionPointer const& s, py::handle document, std::size_t index,
                         py::handle name) { return Entry(s, document, index, name); })
        .def("make_entry", MakeEntry)
        .def("put_entry", PutEntry)
        .def("remove_entry", RemoveEntry)
        .def("rename_entry", RenameEntry);
}

void DefineObjects(py::module_& module) {
    module.def("create", Create);
    module.def("set_values", [](py::handle object, py::dict fields, py::handle validate) {
        SetValues(Handle(object), fields.ptr(), Flag(validate, "validate"));
    });
    module.def("make_in", MakeIn);
    module.def("count", [](py::handle owner, std::string const& script) {
        return CountOf(Handle(owner), script);
    });
    module.def("element", [](py::handle owner, std::string const& script, int index) {
        return Give(ElementOf(Handle(owner), script, index));
    });
    module.def("append", [](py::handle owner, py::handle name, py::handle element) {
        // The field's own checks, for one element.
        Object *const object = Handle(owner), *const source = Handle(element);
        mdl_Field const& field = DescribedFieldOf(*object->state.description, From(name));
        mdl_Description const* const description = source->state.description;
        RequireHeld(*object->state.description, field, *description);
        DescribedObject copy(description->Copy(Resolve(source)), DescribedDeleter{description});
        return Give(Put(object, From(name), std::move(copy)));
    });
    module.def("value", [](py::handle owner, py::handle name) {
        Object* const object = Handle(owner);
        Field& field = FieldOf(*object->state.description, name.ptr());
        mdl_Field const& described = DescribedFieldOf(*object->state.description, From(name));
        return Give(ValueOf(&field, described.At(Resolve(object))));
    });
    module.def("put_numbers", [](py::handle owner, py::handle name, py::dict entries) {
        PutNumbers(Handle(owner), name.ptr(), entries.ptr());
    });
    module.def("remove_number", [](py::handle owner, py::handle name, py::handle key) {
        return RemoveNumber(Handle(owner), name.ptr(), key.ptr());
    });
    module.def("sort", [](py::handle object, py::handle script, py::int_ columns) {
        int overflow = 0;
        long const wide = PyLong_AsLongAndOverflow(columns.ptr(), &overflow);
        SortTable(Handle(object), From(script), overflow ? -1 : wide, From(py::str(columns)));
    });
    module.def("validate", [](py::handle handle) {
        Object* const object = Handle(handle);
        RequireValid(*object->state.description, Resolve(object), PathOf(object));
    });
    module.def("findings", [](py::handle handle, py::handle deep) {
        Object* const object = Handle(handle);
        CheckDepth const depth = DepthOf(Flag(deep, "deep"));
        return Findings(Long(object, [&](void const* at) {
            return Check(*object->state.description, at, PathOf(object), depth);
        }));
    });
    module.def("is_here", [](py::handle handle) { return IsHere(Handle(handle)); });
    // What was read stays right while this number stays.
    module.def("stamp", [](py::handle handle) {
        Object* const object = Handle(handle);
        Resolve(object);
        return StampOf(object);
    });
    module.def("to_json", ToJson);
    module.def("from_json", FromJson);
    module.def("same", Same);
    module.def("field_text", FieldJson);
    module.def("changed", Changed);
    module.def("svg", [](py::handle handle) -> py::object {
        Object* const object = Handle(handle);
        Selection selection;
        selection.what = Selection::What::Object;
        selection.object = Resolve(object);
        selection.description = object->state.description;
        selection.path = PathOf(object);
        if (!MayHavePicture(selection)) return py::none();
        Picture const picture = PictureOf(selection);
        return picture.none.empty() ? Text(SvgText(picture)) : py::none();
    });
    module.def("copy", [](py::handle handle) {
        Object* const object = Handle(handle);
        return Give(CopyOf(*object->state.description, Resolve(object)));
    });
    module.def("expression", [](py::handle handle) {
        Object* const object = Handle(handle);
        return Text(ScriptObject(*object->state.description, Resolve(object)));
    });
    module.def(
        "refuse",
        [](py::handle message, std::string const& place, std::string const& expected) {
            throw Error(From(message), place, 0, expected);
        },
        py::arg("message"), py::arg("place") = "", py::arg("expected") = "");
    module.def("refuse_file", [](py::handle path, py::handle cause) {
        throw StoreError(From(path), From(cause));
    });
    module.def("near", [](py::handle given, py::list known) {
        std::vector<std::string> names;
        for (py::handle name : known) names.push_back(From(name));
        try {
            return Text(DidYouMean(From(given), names));
        } catch (Failure const&) {
            // Nothing is near to a text with half of a character in it.
            PyErr_Clear();
            return Text("");
        }
    });
}

}  // namespace

PYBIND11_MODULE(_nga, module) {
    py::register_exception_translator([](std::exception_ptr failure) {
        try {
            std::rethrow_exception(failure);
        } catch (Failure const&) {
            // Python knows already.
        } catch (nex_Exception const&) {
            Translate(failure);
        } catch (StoreError const&) {
            Translate(failure);
        } catch (Error const&) {
            Translate(failure);
        }
    });
    try {
        Start();
        MakeExceptions(module);
        module.attr("Object") = py::handle(reinterpret_cast<PyObject*>(MakeObjectType()));
        module.attr("Field") = py::handle(reinterpret_cast<PyObject*>(MakeFieldType()));
    } catch (Failure const&) {
        throw py::error_already_set();
    }
    DefineFacts(module);
    module.def("register_class", [](unsigned typeId, py::handle type) {
        RegisterClass(typeId, reinterpret_cast<PyTypeObject*>(type.ptr()));
    });
    module.def("make_field", [](unsigned typeId, std::string const& script, py::tuple literals,
                                py::tuple words) {
        return Give(MakeField(DescriptionAt(typeId), script, literals.ptr(), words.ptr()));
    });
    module.def("set_views", [](py::handle list, py::handle map, py::handle describe) {
        SetViews(list.ptr(), map.ptr(), describe.ptr());
    });
    module.def("diff", DiffOf);
    DefineSession(module);
    DefineObjects(module);
}

}  // namespace nga::python
