#pragma once

#include <cstring>

#include "rfm_Handle.h"

/// A stored array of T, least significant byte first. \p code is that of the type of element in a
/// record store; 4 is a real of 64 bits.
template <class T, int code>
class rfm_Array {
public:
    /// Over stored bytes, whose length is a multiple of the size of T.
    explicit rfm_Array(rfm_Handle const& handle)
        : m_handle(handle.IsNull() ? rfm_Handle(std::make_shared<std::string>()) : handle) {}

    /// How many values are stored.
    int Length() const { return static_cast<int>(m_handle.Bytes()->size() / sizeof(T)); }
    /// How many numbers one value is.
    int FieldCount() const { return 1; }
    /// The first \p count values, of which there are as many.
    void Read(T* values, int count) const {
        if (count > 0)
            std::memcpy(values, m_handle.Bytes()->data(),
                        static_cast<std::size_t>(count) * sizeof(T));
    }
    /// Replaces what is stored.
    void Write(T const* values, int count) {
        std::string& bytes = *m_handle.Bytes();
        bytes.clear();
        if (count > 0)
            bytes.assign(reinterpret_cast<char const*>(values),
                         static_cast<std::size_t>(count) * sizeof(T));
    }
    /// What a row is given to refer to this array, before or after it is written.
    rfm_Handle const& Handle() const { return m_handle; }

private:
    rfm_Handle m_handle;
};
