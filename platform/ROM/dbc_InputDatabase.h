#pragma once

#include <memory>

#include "cls_ClassRegistrar.h"
#include "dbc_TableRfm.h"
#include "rom_Transporter.h"

/// The database as the running step finds it.
class dbc_InputDatabase {
public:
    explicit dbc_InputDatabase(dbc_WorkTables& tables);
    virtual ~dbc_InputDatabase();

    virtual bool HasInputTable(unsigned const& typeId);
    /// A new table, the caller's; null if the input has none of the class.
    virtual std::unique_ptr<dbc_TableRfm> GetInputTable(unsigned const& typeId);

    cls_ClassRegistrar& Registrar() { return m_registrar; }
    rom_Transporter& Transporter() { return m_transporter; }

private:
    dbc_WorkTables& m_tables;
    cls_ClassRegistrar m_registrar;
    rom_Transporter m_transporter;
};
