#pragma once

#include <functional>
#include <string>

#include "dbc_UpgradeReport.h"
#include "nga_FileStamp.h"
#include "rfm_Database.h"

namespace nga {

/// How a file is upgraded.
struct UpgradeFileOptions {
    /// Where the current database goes; empty: in the place of the old one, which stays beside it.
    std::string output;
    /// Do all of it on a scratch copy, which goes with its results.
    bool dryRun = false;
    /// Give enumerations that were left without a literal that of their class's default.
    bool complete = true;
    /// Called now and then with how far the upgrade is, from 0 to 1.
    std::function<void(double done)> progress;
    /// Gives names to objects of the new database that none leads to, and takes them out of the
    /// list.
    std::function<void(rfm_Database& database, dbc_References& references)> adopt;
    /// Looks at the new file, under this path, before it takes its place; what it raises ends the
    /// upgrade.
    std::function<void(std::string const& part, dbc_References const& references)> inspect;
};

/// What became of a file.
struct UpgradedFile {
    int schema = 0;        ///< of the old file
    std::string writer;    ///< of the old file
    bool current = false;  ///< it was of the current schema, and nothing was done
    /// Where the old file is now, or would be after a dry run; empty if it stays where it was.
    std::string backup;
    long long rows = 0;  ///< of all tables of the old file
    dbc_UpgradeReport report;
};

/// Brings a file of an old schema to the current one. Under its name stands the whole old file
/// until the whole new one does; the old one is never written to, and stays as
/// FILE.schema-NNN.bak, or under a further number where that name is taken. Raises StoreError,
/// which names the file and the cause.
UpgradedFile UpgradeFile(std::string const& path, UpgradeFileOptions const& options = {});

}  // namespace nga
