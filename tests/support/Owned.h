#pragma once

#include <memory>

#include "cow_Destroy.h"

namespace nga_test {

/// Ends an object as a handle would. A class whose destructor is not virtual is not for delete.
struct Ending {
    template <class T>
    void operator()(T* object) const {
        cow_Destroy(object);
    }
};
template <class T>
using Owned = std::unique_ptr<T, Ending>;

}  // namespace nga_test
