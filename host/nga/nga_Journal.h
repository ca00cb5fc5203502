#pragma once

#include <string>
#include <vector>

#include "omu_PrimTuple.h"

namespace nga {

/// Keeps the change records that are sent on this thread while it lives, in their order.
class Journal {
public:
    Journal();
    ~Journal();
    Journal(Journal const&) = delete;
    Journal& operator=(Journal const&) = delete;

    std::vector<omu_PrimTuple> const& Records() const { return m_records; }
    /// One record a line, as a script would write the tuple.
    std::string Text() const;
    /// An array of arrays.
    std::string Json() const;

private:
    std::vector<omu_PrimTuple> m_records;
    int m_listener;
};

}  // namespace nga
