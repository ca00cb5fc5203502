#pragma once

#include <map>
#include <memory>
#include <utility>

#include "cls_ClassRegistrar.h"
#include "dbc_OldLayouts.h"
#include "dbc_TableMem.h"
#include "dbc_TableRfm.h"
#include "rom_Transporter.h"

/// Temporary tables by class and version.
using dbc_TempTables = std::map<std::pair<unsigned, int>, dbc_TableMem*>;

/// The database as the running step leaves it.
class dbc_OutputDatabase {
public:
    dbc_OutputDatabase(dbc_WorkTables& tables, dbc_OldLayouts& layouts);
    virtual ~dbc_OutputDatabase();

    /// The output's table of a class, good until the step ends; null if there is none.
    virtual dbc_TableRfm* GetOutputTable(unsigned const& typeId);
    /// A table that collects rows of a class in a layout, good until the step ends; null if it
    /// cannot be made. The last number is passed on by conversions and means nothing here.
    virtual dbc_TableMem* GetTempTable(unsigned typeId, dbc_TempTables& tables, int version,
                                       rfm_TableMetadata const& metadata, int);
    /// The output's table of a class, made in the layout of the step if it is not there.
    dbc_TableRfm& CreateClass(unsigned typeId, int version);
    dbc_TempTables& TempTables() { return m_tempTables; }

    cls_ClassRegistrar& Registrar() { return m_registrar; }
    rom_Transporter& Transporter() { return m_transporter; }

    /// A step has ended: tables that were given out are gone.
    void EndStep();
    std::unique_ptr<dbc_TableRfm> View(unsigned typeId);

private:
    dbc_WorkTables& m_tables;
    dbc_OldLayouts& m_layouts;
    cls_ClassRegistrar m_registrar;
    rom_Transporter m_transporter;
    dbc_TempTables m_tempTables;
    std::map<unsigned, std::unique_ptr<dbc_TableRfm>> m_given;
    std::vector<std::unique_ptr<dbc_TableMem>> m_givenTemp;
};
