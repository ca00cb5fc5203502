#pragma once

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <exception>
#include <string>
#include <utility>

// The layer between Python and the generic C++ host. The frequent ways (attributes of objects) are
// written against CPython's own interface, since they are called a million times; what is called
// once goes through pybind11 in nga_PyModule.cpp.

namespace nga::python {

/// Thrown while Python's error indicator is set.
struct Failure {};

/// An owned reference.
class Ref {
public:
    Ref() = default;
    /// Takes over a new reference; null means that Python has failed.
    explicit Ref(PyObject* fresh) : m_object(fresh) {
        if (!fresh) throw Failure();
    }
    static Ref Share(PyObject* borrowed) {
        Py_INCREF(borrowed);
        return Ref(borrowed);
    }
    Ref(Ref&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    Ref& operator=(Ref&& other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~Ref() { Py_XDECREF(m_object); }
    PyObject* Get() const { return m_object; }
    PyObject* Release() { return std::exchange(m_object, nullptr); }
    explicit operator bool() const { return m_object != nullptr; }

private:
    PyObject* m_object = nullptr;
};

[[noreturn]] void Fail(PyObject* type, std::string const& message);

/// The exception classes of the module, made by MakeExceptions().
struct Exceptions {
    PyObject* error = nullptr;
    PyObject* storeError = nullptr;
    PyObject* validationError = nullptr;
};
extern Exceptions exceptions;
/// Raises an instance with these attributes beside its message.
[[noreturn]] void FailWith(PyObject* type, std::string const& message, PyObject* attributes);

/// The built-in exception that the library names, for failures of commands.
PyObject* BuiltIn(std::string const& name);

/// Sets Python's error indicator for a failure of the host or the library.
void Translate(std::exception_ptr const& failure);

/// Runs a body that may throw, behind a function that Python calls.
template <class Result, class Body>
Result Guarded(Result failed, Body&& body) {
    try {
        return body();
    } catch (...) {
        Translate(std::current_exception());
        return failed;
    }
}

/// Texts of the library may hold bytes that are no UTF-8: they pass as lone surrogates. Others of
/// Python's texts than these cannot be kept: FromText() raises ValueError.
Ref ToText(std::string_view text);
std::string FromText(PyObject* text);
std::string TypeNameOf(PyObject* object);

}  // namespace nga::python
