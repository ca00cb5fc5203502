#pragma once

#include <string>

#include "omu_ChangeHistory.h"
#include "thr_ThreadSingleton.h"

namespace nga_test {

/// The change records of this thread while it lives.
class ChangeRecords {
public:
    ChangeRecords() { History().StartKeeping(); }
    ~ChangeRecords() { History().StopKeeping(); }
    ChangeRecords(ChangeRecords const&) = delete;
    ChangeRecords& operator=(ChangeRecords const&) = delete;

    /// Those since the last call, one a line.
    std::string Take() {
        std::string lines;
        for (omu_PrimTuple const& change : History().Drain())
            lines += std::string(change.AsString(0).Text()) + "\n";
        return lines;
    }

private:
    static omu_ChangeHistory& History() {
        return thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    }
};

}  // namespace nga_test
