#pragma once

#include <string>

#include "nga_SignalCleanup.h"

namespace nga {

/// A file in the folder for such, which goes with this object, and with the process where a signal
/// to end comes that nobody else handles. What a kill leaves behind is removed by the next one of
/// the same user, as nobody holds its lock any more.
class ScratchFile {
public:
    /// Raises StoreError for the file \p of, whose copy this is to be.
    explicit ScratchFile(std::string const& of);
    ~ScratchFile();
    ScratchFile(ScratchFile const&) = delete;
    ScratchFile& operator=(ScratchFile const&) = delete;
    std::string const& Path() const { return m_path; }

private:
    bool Make(std::string const& folder);

    std::string m_path;
    int m_file = -1;
    SignalCleanup m_cleanup;
};

}  // namespace nga
