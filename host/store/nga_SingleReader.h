#pragma once

#include <optional>
#include <string>

#include "cow_ErasedHandle.h"
#include "rom_Transporter.h"

namespace nga {

/// Reads objects of a store one by one, and keeps none of them for long, so that memory does not
/// grow with their number.
class SingleReader {
public:
    explicit SingleReader(rfm_Database& database);

    /// None, with the cause, where the object cannot be read.
    std::optional<cow_ErasedHandle> Read(unsigned typeId, int oid, std::string& failure);
    /// Lets go of all that stands on the store, so that it can be written to.
    void Forget() { m_transporter.Forget(); }

private:
    rom_Transporter m_transporter;
    int m_read = 0;
};

}  // namespace nga
