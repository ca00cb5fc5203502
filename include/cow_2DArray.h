#pragma once

#include <climits>
#include <cstddef>
#include <new>
#include <type_traits>

#include "cow_ArrayCOW.h"

// The cells of a two-dimensional array, row-major: cell (r,c) is at columns * r + c. The data is
// null while there are no cells.
template <class T>
class cow_2DArrayRep {
public:
    // A negative number of rows or columns counts as none. The cells are value-initialised.
    cow_2DArrayRep(int rowCount, int columnCount)
        : rows(rowCount > 0 ? rowCount : 0),
          columns(columnCount > 0 ? columnCount : 0),
          data(Allocate(rows, columns)) {
        Builder builder{data, 0};
        for (int const size = Size(); builder.built < size; ++builder.built) {
            ::new (static_cast<void*>(data + builder.built)) T();
        }
        builder.data = nullptr;
    }
    cow_2DArrayRep(cow_2DArrayRep const& other)
        : rows(other.rows), columns(other.columns), data(Allocate(rows, columns)) {
        Builder builder{data, 0};
        for (int const size = Size(); builder.built < size; ++builder.built) {
            ::new (static_cast<void*>(data + builder.built)) T(other.data[builder.built]);
        }
        builder.data = nullptr;
    }
    cow_2DArrayRep& operator=(cow_2DArrayRep const&) = delete;
    ~cow_2DArrayRep() {
        for (int i = Size(); i-- > 0;) data[i].~T();
        if (data) mem_Free(data);
    }

    int Rows() const noexcept { return rows; }
    int Columns() const noexcept { return columns; }
    int Size() const noexcept { return rows * columns; }
    T const* Data() const noexcept { return data; }
    T* Data() noexcept { return data; }
    // Not checked.
    T const& Cell(int row, int column) const noexcept { return data[Index(row, column)]; }
    T& Cell(int row, int column) noexcept { return data[Index(row, column)]; }

private:
    struct Builder {
        T* data;
        int built;
        ~Builder() {
            if (!data) return;
            while (built-- > 0) data[built].~T();
            mem_Free(data);
        }
    };

    std::ptrdiff_t Index(int row, int column) const noexcept {
        return static_cast<std::ptrdiff_t>(columns) * row + column;
    }
    static T* Allocate(int rows, int columns) {
        long long const cells = static_cast<long long>(rows) * columns;
        if (cells == 0) return nullptr;
        if (cells > INT_MAX) throw std::bad_alloc();
        return static_cast<T*>(mem_Malloc(static_cast<std::size_t>(cells) * sizeof(T)));
    }

    int rows;
    int columns;
    T* data;
};

// A shared two-dimensional array. A write goes through Get() and detaches the whole of it.
template <class T>
class cow_2DArray : public cow_COW<cow_2DArrayRep<T>, cow_Direct<cow_2DArrayRep<T>>> {
    using Rep = cow_2DArrayRep<T>;

public:
    cow_2DArray() : cow_2DArray(0, 0) {}
    cow_2DArray(int rows, int columns)
        : cow_COW<Rep, cow_Direct<Rep>>(cow_New<Rep>(rows, columns)) {}

    int Rows() const noexcept { return this->ConstGet().Rows(); }
    int Columns() const noexcept { return this->ConstGet().Columns(); }
    int Size() const noexcept { return this->ConstGet().Size(); }
    T const* Data() const noexcept { return this->ConstGet().Data(); }
    T const& Cell(int row, int column) const noexcept { return this->ConstGet().Cell(row, column); }
};
