#pragma once

/// A complete copy of an object through its class's metadata: nothing is shared with the source,
/// and every object in it has a new identity. Objects that the source shares among its parts come
/// out as objects of their own. Needs the classes in the metadata domain of copies in memory, and
/// raises a nex_TextException for a class that is not there or cannot be rebuilt.
///
/// \p typeId is the object's dynamic class. The caller owns the result.
void* DDB_DeepCopyErased(void const* object, unsigned typeId);

template <class T>
T* DDB_DeepCopyPtr(T const* object, unsigned typeId) {
    return static_cast<T*>(DDB_DeepCopyErased(object, typeId));
}
