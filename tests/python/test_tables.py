import decimal
import fractions
import gc
import subprocess
import sys

import numpy
import pytest

import nga


@pytest.fixture
def elastic(doc):
    return doc.Material(name="steel").Elastic(table=((210e3, 0.3), (200e3, 0.31)))


def test_numpy_is_imported_by_the_first_table_only():
    code = ("import sys, nga; doc = nga.new('a'); e = doc.Material(name='s').Elastic(table=((1, 2),));"
            "assert 'numpy' not in sys.modules; e.table; assert 'numpy' in sys.modules")
    subprocess.run([sys.executable, "-c", code], check=True)


def test_a_table_is_a_read_only_view_that_copies_nothing(elastic):
    first, second = elastic.table, elastic.table
    assert type(first) is numpy.ndarray and first.dtype == numpy.float64
    assert numpy.shares_memory(first, second)
    with pytest.raises(ValueError):
        first[0, 0] = 1.0
    with pytest.raises(ValueError):
        first.flags.writeable = True


def test_a_view_stays_as_it_was_read(elastic):
    view = elastic.table
    elastic.table = ((1.0, 2.0),)
    assert view.tolist() == [[210e3, 0.3], [200e3, 0.31]]
    assert elastic.table.tolist() == [[1.0, 2.0]]


def test_a_view_outlives_its_document():
    document = nga.new("gone")
    view = document.Material(name="steel").Elastic(table=[[float(i), 1.0] for i in range(1000)]).table
    del document
    gc.collect()
    assert "gone" not in nga.documents
    assert view[:, 0].sum() == 999 * 1000 / 2


@pytest.mark.parametrize("rows", [
    ((1, 2), (3, 4)), [[1.0, 2.0], [3.0, 4.0]], numpy.array([[1, 2], [3, 4]]),
    numpy.array([[1, 2], [3, 4]], dtype=numpy.float32),
    numpy.array([[1, 3], [2, 4]], dtype=float).T, numpy.array([[1, 0, 2], [3, 0, 4]])[:, ::2],
    (row for row in ((1, 2), (3, 4))), [numpy.array([1, 2]), (3, 4)],
    numpy.array([[1, 2], [3, 4]], dtype=object), numpy.array([[1, 2], [3, 4]], dtype=">f8")])
def test_any_rows_are_taken(elastic, rows):
    elastic.table = rows
    assert elastic.table.tolist() == [[1.0, 2.0], [3.0, 4.0]]


@pytest.mark.parametrize("rows, kind", [
    ("text", TypeError), (5, TypeError), (None, TypeError), ((1, 2), TypeError),
    ((("a", 2),), TypeError), (((True, 2),), TypeError), (((1j, 2),), TypeError),
    (((1, 2), (3,)), ValueError), (numpy.array([1.0, 2.0]), TypeError),
    (numpy.array([["a", "b"]]), TypeError), (numpy.array([[True]]), TypeError),
    (numpy.array([[1j]]), TypeError), (numpy.zeros((2, 2, 2)), TypeError),
    ({"data": ((1.0,),), "rows": 3}, ValueError), ({"data": ((1.0,),), "allowEmptyFirstRow": 1},
                                                   TypeError)])
def test_what_is_no_table_is_refused(elastic, rows, kind):
    before = elastic.table
    with pytest.raises(kind):
        elastic.table = rows
    assert elastic.table.tolist() == before.tolist()


def test_a_view_goes_back_without_a_copy(doc, elastic):
    other = doc.Material(name="iron").Elastic(table=())
    other.table = elastic.table
    assert numpy.shares_memory(other.table, elastic.table)
    other.table = elastic.table[:1]
    assert other.table.tolist() == [[210e3, 0.3]]


def test_tables_without_rows_or_columns_keep_their_shape(elastic):
    for shape in ((0, 0), (0, 3), (2, 0)):
        elastic.table = numpy.zeros(shape)
        assert elastic.table.shape == shape
    elastic.table = nga.empty_table(4)
    assert elastic.table.shape == (0, 4)


def test_the_flag_of_a_table_is_given_beside_its_rows(doc):
    density = doc.Material(name="steel").Density(table=((7850.0,),))
    text = density.to_dict()
    density.table = {"allowEmptyFirstRow": False, "data": ((7850.0,),)}
    assert density.to_dict() != text
    assert nga.Density.from_dict(density.to_dict()) == density


def test_rows_are_sorted_by_the_last_columns(doc, elastic):
    elastic.table = ((3.0, 1.0), (2.0, 0.0), (1.0, 1.0))
    elastic.sort(1)
    assert elastic.table.tolist() == [[2.0, 0.0], [3.0, 1.0], [1.0, 1.0]]
    elastic.sort(2)
    assert elastic.table.tolist() == [[2.0, 0.0], [1.0, 1.0], [3.0, 1.0]]
    doc.undo()
    assert elastic.table.tolist() == [[2.0, 0.0], [3.0, 1.0], [1.0, 1.0]]
    for wrong in (3, -1):
        with pytest.raises(ValueError):
            elastic.sort(wrong)
    with pytest.raises(TypeError):
        doc.materials["steel"].sort(1)
    with pytest.raises(AttributeError):
        elastic.sort(1, "tabel")


def test_special_numbers_go_through(elastic):
    rows = numpy.array([[float("nan"), -0.0], [float("inf"), 5e-324]])
    elastic.table = rows
    assert elastic.table.tobytes() == rows.tobytes()


def test_masked_cells_are_refused(elastic):
    masked = numpy.ma.array([[1.0, 2.0]], mask=[[True, False]])
    for value in (masked, masked.astype(int), list(masked)):
        with pytest.raises((TypeError, ValueError)):
            elastic.table = value
    with pytest.raises(ValueError, match="masked"):
        nga.Elastic.from_dict({"table": masked})
    elastic.table = numpy.ma.array([[1.0, 2.0]])
    assert elastic.table.tolist() == [[1.0, 2.0]]


@pytest.mark.filterwarnings("ignore::RuntimeWarning")
def test_finite_numbers_beyond_double_precision_are_refused(elastic):
    before = elastic.table
    large = numpy.longdouble("1e400")
    for value in (numpy.array([[1.0, large]]), ((1.0, large),), ((1.0, decimal.Decimal("1e400")),),
                  ((1.0, fractions.Fraction(10**400)),), ((1.0, 10**400),),
                  {"data": ((1.0, -large),)}):
        with pytest.raises(ValueError, match="out of range"):
            elastic.table = value
    with pytest.raises(ValueError, match="out of range"):
        nga.Elastic.from_dict({"table": numpy.array([[1.0, -large]])})
    assert (elastic.table == before).all()
    elastic.table = numpy.array([[numpy.inf, 1.5]], dtype=numpy.longdouble)
    assert elastic.table.tolist() == [[float("inf"), 1.5]]
    elastic.table = ((numpy.longdouble("-inf"), decimal.Decimal("inf")),)
    assert elastic.table.tolist() == [[float("-inf"), float("inf")]]
