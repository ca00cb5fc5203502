#include <pybind11/numpy.h>

#include <climits>
#include <cstring>

#include "nga_PyFieldData.h"

namespace nga::python {

namespace {

/// What an array of Python's stands on: a share of the cells. A write to the document detaches from
/// it, so that the array stays as it was read.
struct Cells {
    PyObject_HEAD cow_2DArray<double> cells;
};

void DeallocCells(PyObject* self) {
    PyTypeObject* const type = Py_TYPE(self);
    reinterpret_cast<Cells*>(self)->cells.~cow_2DArray<double>();
    type->tp_free(self);
    Py_DECREF(type);
}

PyTypeObject* CellsType() {
    static PyType_Slot slots[] = {{Py_tp_dealloc, reinterpret_cast<void*>(DeallocCells)},
                                  {0, nullptr}};
    static PyType_Spec spec = {"_nga.Cells", sizeof(Cells), 0,
                               Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION, slots};
    static auto* const type = reinterpret_cast<PyTypeObject*>(PyType_FromSpec(&spec));
    if (!type) throw Failure();
    return type;
}

pybind11::detail::npy_api& Api() {
    try {
        // NumPy is imported here, by the first table.
        return pybind11::detail::npy_api::get();
    } catch (pybind11::error_already_set& failure) {
        failure.restore();
        throw Failure();
    }
}

bool IsNumPyThere() {
    static bool there = false;
    if (!there) {
        PyObject* const modules = PyImport_GetModuleDict();
        there = PyDict_GetItemString(modules, "numpy") != nullptr;
    }
    return there;
}

/// Masked cells have no value, though something stands in their place.
void RefuseMasked(FieldData const& field, pybind11::array const& array) {
    if (Py_TYPE(array.ptr()) == reinterpret_cast<PyTypeObject*>(Api().PyArray_Type_)) return;
    pybind11::module_ const masked = pybind11::module_::import("numpy.ma");
    if (pybind11::isinstance(array, masked.attr("MaskedArray")) &&
        masked.attr("is_masked")(array).cast<bool>())
        Fail(PyExc_ValueError,
             NameOf(field) + ": the array has masked cells; expected a number in each cell");
}

/// Types wider than a double turn into infinities what does not fit.
void RefuseOverflow(FieldData const& field, pybind11::array const& given,
                    pybind11::array const& doubles) {
    if (given.dtype().itemsize() <= static_cast<pybind11::ssize_t>(sizeof(double))) return;
    pybind11::object const isInf = pybind11::module_::import("numpy").attr("isinf");
    auto const count = [&](pybind11::array const& array) {
        return isInf(array).attr("sum")().cast<long long>();
    };
    if (count(given) != count(doubles))
        Fail(PyExc_ValueError,
             NameOf(field) + ": a number of the array is out of range; expected double precision");
}

}  // namespace

PyObject* ArrayOf(cow_2DArray<double> const& cells) {
    using Api_ = pybind11::detail::npy_api;
    Api_& api = Api();
    PyTypeObject* const type = CellsType();
    auto* const base = reinterpret_cast<Cells*>(type->tp_alloc(type, 0));
    if (!base) throw Failure();
    new (&base->cells) cow_2DArray<double>(cells);
    Ref owner(reinterpret_cast<PyObject*>(base));
    cow_2DArrayRep<double> const& rep = base->cells.ConstGet();
    Py_intptr_t const shape[2] = {rep.Rows(), rep.Columns()};
    static double none = 0;
    void* const data = rep.Size() ? const_cast<double*>(rep.Data()) : &none;
    PyObject* const descr = api.PyArray_DescrFromType_(Api_::NPY_DOUBLE_);
    // Aligned and contiguous, but not writeable: the cells are shared.
    PyObject* const array = api.PyArray_NewFromDescr_(
        api.PyArray_Type_, descr, 2, shape, nullptr, data,
        Api_::NPY_ARRAY_C_CONTIGUOUS_ | Api_::NPY_ARRAY_ALIGNED_, nullptr);
    Ref result(array);
    if (api.PyArray_SetBaseObject_(array, owner.Release()) != 0) throw Failure();
    return result.Release();
}

bool FromArray(FieldData const& field, PyObject* value, cow_2DArray<double>& cells) {
    if (!IsNumPyThere()) return false;
    pybind11::detail::npy_api const& api = Api();
    if (!api.PyArray_Check_(value)) return false;
    try {
        auto const array = pybind11::reinterpret_borrow<pybind11::array>(value);
        char const kind = array.dtype().kind();
        RefuseMasked(field, array);
        if (kind == 'O') return false;
        if (array.ndim() != 2)
            Fail(PyExc_TypeError, NameOf(field) + ": the array has " +
                                      std::to_string(array.ndim()) +
                                      " dimensions; expected 2, rows and columns");
        if (kind != 'f' && kind != 'i' && kind != 'u')
            Fail(PyExc_TypeError,
                 NameOf(field) + ": the array holds no numbers; expected rows of numbers");
        PyObject* const base = pybind11::detail::array_proxy(value)->base;
        if (base && Py_TYPE(base) == CellsType()) {
            cow_2DArray<double> const& shared = reinterpret_cast<Cells*>(base)->cells;
            // The very array that was read, and no part of it, goes back without a copy.
            if (array.data() == shared.Data() && array.shape(0) == shared.Rows() &&
                array.shape(1) == shared.Columns() &&
                (array.flags() & pybind11::array::c_style) != 0) {
                cells = shared;
                return true;
            }
        }
        if (array.shape(0) > INT_MAX || array.shape(1) > INT_MAX)
            Fail(PyExc_ValueError, NameOf(field) + ": the array is too large for a table");
        auto const doubles =
            pybind11::array_t<double,
                              pybind11::array::c_style | pybind11::array::forcecast>::ensure(array);
        if (!doubles) {
            // ensure() has cleared what NumPy said, as with warnings that are made failures.
            if (!PyErr_Occurred())
                Fail(PyExc_ValueError,
                     NameOf(field) + ": the array cannot be taken as numbers in double precision");
            throw Failure();
        }
        RefuseOverflow(field, array, doubles);
        cells =
            cow_2DArray<double>(static_cast<int>(array.shape(0)), static_cast<int>(array.shape(1)));
        if (cells.Size() > 0)
            std::memcpy(cells.Get().Data(), doubles.data(),
                        static_cast<std::size_t>(cells.Size()) * sizeof(double));
        return true;
    } catch (pybind11::error_already_set& failure) {
        failure.restore();
        throw Failure();
    }
}

}  // namespace nga::python
