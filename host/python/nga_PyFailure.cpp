#include "nga_PyFailure.h"

#include "nex_CommandException.h"
#include "nex_Exception.h"
#include "nga_Error.h"
#include "nga_StoreError.h"

namespace nga::python {

Exceptions exceptions;

void Fail(PyObject* type, std::string const& message) {
    Ref const text = ToText(message);
    PyErr_SetObject(type, text.Get());
    throw Failure();
}

void FailWith(PyObject* type, std::string const& message, PyObject* attributes) {
    Ref const text = ToText(message);
    Ref const instance(PyObject_CallOneArg(type, text.Get()));
    PyObject *key, *value;
    for (Py_ssize_t at = 0; PyDict_Next(attributes, &at, &key, &value);)
        if (PyObject_SetAttr(instance.Get(), key, value) != 0) throw Failure();
    PyErr_SetObject(type, instance.Get());
    throw Failure();
}

PyObject* BuiltIn(std::string const& name) {
    if (name == "KeyError") return PyExc_KeyError;
    if (name == "TypeError") return PyExc_TypeError;
    return PyExc_ValueError;
}

namespace {

void RaiseError(StoreError const& failure) {
    Ref const path = ToText(failure.Path()), cause = ToText(failure.Cause());
    Ref const attributes(Py_BuildValue("{sOsO}", "path", path.Get(), "cause", cause.Get()));
    // Not what(), which ends at a zero in the path.
    FailWith(exceptions.storeError, failure.Path() + ": " + failure.Cause(), attributes.Get());
}

void RaiseError(Error const& failure) {
    Ref const message = ToText(failure.Message()), place = ToText(failure.Place()),
              expected = ToText(failure.Expected());
    Ref const attributes(Py_BuildValue("{sOsOsisO}", "message", message.Get(), "place", place.Get(),
                                       "line", failure.Line(), "expected", expected.Get()));
    FailWith(exceptions.error, failure.what(), attributes.Get());
}

void Raise(nex_Exception const& failure) {
    if (auto const* command = dynamic_cast<nex_CommandException const*>(&failure))
        Fail(BuiltIn(std::string(command->PythonType().View())),
             std::string(failure.UserReport().View()));
    Ref const message = ToText(failure.UserReport().View());
    Ref const attributes(Py_BuildValue("{sOsssi}", "message", message.Get(), "file",
                                       failure.File() ? failure.File() : "", "line",
                                       failure.Line()));
    FailWith(exceptions.validationError, std::string(failure.UserReport().View()),
             attributes.Get());
}

}  // namespace

void Translate(std::exception_ptr const& failure) {
    try {
        try {
            std::rethrow_exception(failure);
        } catch (Failure const&) {
        } catch (nex_Exception const& library) {
            Raise(library);
        } catch (StoreError const& store) {
            RaiseError(store);
        } catch (Error const& host) {
            RaiseError(host);
        } catch (std::bad_alloc const&) {
            PyErr_NoMemory();
        } catch (std::exception const& other) {
            PyErr_SetString(PyExc_RuntimeError, other.what());
        }
    } catch (Failure const&) {
    }
}

Ref ToText(std::string_view text) {
    return Ref(
        PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "surrogateescape"));
}

std::string FromText(PyObject* text) {
    Py_ssize_t size = 0;
    if (char const* const letters = PyUnicode_AsUTF8AndSize(text, &size))
        return std::string(letters, static_cast<std::size_t>(size));
    PyErr_Clear();
    PyObject* const encoded = PyUnicode_AsEncodedString(text, "utf-8", "surrogateescape");
    if (!encoded) {
        if (!PyErr_ExceptionMatches(PyExc_UnicodeEncodeError)) throw Failure();
        PyErr_Clear();
        Ref const shown(PyObject_ASCII(text));
        Fail(PyExc_ValueError, "the text " + FromText(shown.Get()) +
                                   " has half of a character in it (a lone surrogate); expected "
                                   "whole characters");
    }
    Ref const bytes(encoded);
    return std::string(PyBytes_AS_STRING(bytes.Get()),
                       static_cast<std::size_t>(PyBytes_GET_SIZE(bytes.Get())));
}

std::string TypeNameOf(PyObject* object) { return Py_TYPE(object)->tp_name; }

}  // namespace nga::python
