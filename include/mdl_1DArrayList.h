#pragma once

#include "cls_xc1DArrayList.h"
#include "mem_AllocationOperators.h"

/// A list of options in an object: a list of handles with an identity of its own. Its persistence
/// is that of cls_xc1DArrayList.
template <class V, class T>
class mdl_1DArrayList : public mem_AllocationOperators {
public:
    mdl_1DArrayList() = default;
    explicit mdl_1DArrayList(cls_ReadVisitor const& visitor) : list(visitor) {}
    mdl_1DArrayList(mdl_1DArrayList const&) = default;
    mdl_1DArrayList& operator=(mdl_1DArrayList const&) = default;
    virtual ~mdl_1DArrayList() = default;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const { list.DBWrite(visitor); }

    int Size() const { return list.Size(); }
    V const& ConstGet(int index) const { return list.ConstGet(index); }
    V& Get(int index) { return list.Get(index); }
    void Append(V const& value) { list.Append(value); }

    cls_xc1DArrayList<V, T> list;
};
