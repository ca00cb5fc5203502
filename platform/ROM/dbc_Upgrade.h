#pragma once

#include <set>
#include <vector>

#include "dbc_DatabaseConverter.h"
#include "dbc_OldClassRegistrar.h"
#include "dbc_UpgradeReport.h"

/// How an upgrade is run.
struct dbc_UpgradeOptions {
    /// Gives enumerations that a conversion left without a literal that of their class's default.
    bool complete = true;
    /// No step beyond this version is run, and the database stays one of that time. 0: all are.
    int lastVersion = 0;
    /// Called now and then with how much of the rows' way is behind them, from 0 to 1.
    void (*progress)(void* context, double done) = nullptr;
    void* progressContext = nullptr;
};

/// Takes a database of any schema to the current one.
///
/// A step applies to a class whose table is stored in the step's old version. Steps run by rising
/// version; each finds the database as the former one left it, frozen, and no row ever changes its
/// number. Within a step all its tables are carried to their new layout, then the functions run
/// over the rows in order, then the finalize functions. What the new layout lacks can be read until
/// then. Memory does not grow with the number of rows.
class dbc_Upgrade {
public:
    /// \p work began as a copy of \p original, which is never written to; after a failure it is of
    /// no use. All outlive this.
    dbc_Upgrade(rfm_Database& original, rfm_WorkDatabase& work, cls_ClassRegistrar const& current,
                dbc_OldClassRegistrar const& oldClasses, dbc_UpgradeOptions const& options = {});

    /// Raises nex_TextException where the database cannot be converted.
    dbc_UpgradeReport Run();

    /// Follows every reference of a database in one pass: lists those that lead to no row, and the
    /// objects that none leads to. Takes a bit for each row.
    static dbc_References LookAtReferences(rfm_Database& database,
                                           cls_ClassRegistrar const& current);

private:
    struct OldClass {
        dbc_OldClassVersion const* version;
        rfm_TableMetadata layout;
    };

    void Declare();
    int LastVersion(unsigned typeId, int version) const;
    /// How many rows the run is to bring over, each as often as it has a step before it.
    long long RowsExpected();
    bool IsAfterLast(int version) const {
        return m_options.lastVersion != 0 && version > m_options.lastVersion;
    }
    void RunStep(int version, dbc_Converter const& step);
    void RenameTables();
    /// Makes the table that is to get the rows of another class, as it was when classes were
    /// renamed.
    void StartTarget(unsigned typeId, std::string const& source);
    bool HasSteps(unsigned typeId) const;
    /// Whether a step leads the class to the version.
    bool IsReached(unsigned typeId, int version) const;
    void BringToCurrent();
    void DropDeleted();
    void Complete();
    void CompleteTable(dbc_WorkTable& table);
    void FinishReport();
    bool IsDeleted(unsigned typeId) const { return m_deleted.count(typeId) != 0; }

    cls_ClassRegistrar const& m_current;
    dbc_OldClassRegistrar const& m_registered;
    dbc_UpgradeOptions m_options;
    dbc_DatabaseConverter m_converter;
    std::vector<OldClass> m_oldClasses;
    /// Retired classes whose tables end at the retired version.
    std::set<unsigned> m_deleted;
    std::vector<OldClass const*> m_renamed;
};
