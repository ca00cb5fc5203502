#pragma once

#include <map>
#include <memory>
#include <vector>

#include "cow_List.h"
#include "cow_Map.h"
#include "dbc_Converter.h"
#include "dbc_InputDatabase.h"
#include "dbc_OldLayouts.h"
#include "dbc_OutputDatabase.h"
#include "dbc_TableCopier.h"

/// One run of an upgrade: the declared steps, both databases, and what became of classes.
class dbc_DatabaseConverter {
public:
    /// \p work began as a copy of \p original, which is never written to. All outlive this.
    dbc_DatabaseConverter(rfm_Database& original, rfm_WorkDatabase& work,
                          cls_ClassRegistrar const& current);
    ~dbc_DatabaseConverter();
    dbc_DatabaseConverter(dbc_DatabaseConverter const&) = delete;
    dbc_DatabaseConverter& operator=(dbc_DatabaseConverter const&) = delete;

    /// The step whose result is the version; made when first asked for.
    dbc_Converter* GetConverter(int version) { return &m_steps[version]; }
    std::map<int, dbc_Converter> const& Steps() const { return m_steps; }

    dbc_InputDatabase& Input() { return *m_input; }
    dbc_OutputDatabase& Output() { return *m_output; }
    /// For tests, in which one of them gives what a database would not.
    void SetInput(std::unique_ptr<dbc_InputDatabase> input) { m_input = std::move(input); }
    void SetOutput(std::unique_ptr<dbc_OutputDatabase> output) { m_output = std::move(output); }

    cow_List<unsigned>& DeletedClasses() { return m_deleted; }
    /// From old to new names.
    cow_Map<cow_String, cow_String>& ClassNames() { return m_names; }
    /// The tables that TablesToRename made, by the new class.
    cow_Map<unsigned, dbc_TableMem*>& RenamedTables() { return m_renamedTables; }
    dbc_TableCopier& Copier() { return m_copier; }

    dbc_WorkTables& Tables() { return m_tables; }
    dbc_OldLayouts& Layouts() { return m_layouts; }
    /// The version that the running step leads to.
    int StepVersion() const { return m_stepVersion; }
    void StartStep(int version);
    void EndStep();

    /// Keeps a table that a function wants for the rest of the step.
    dbc_Table& Keep(std::unique_ptr<dbc_Table> table);
    void Release(dbc_Table const& table);
    /// Differs from that of every other step of every run.
    unsigned long long StepSerial() const { return m_stepSerial; }

private:
    dbc_WorkTables m_tables;
    dbc_OldLayouts m_layouts;
    std::unique_ptr<dbc_InputDatabase> m_input;
    std::unique_ptr<dbc_OutputDatabase> m_output;
    std::map<int, dbc_Converter> m_steps;
    cow_List<unsigned> m_deleted;
    cow_Map<cow_String, cow_String> m_names;
    cow_Map<unsigned, dbc_TableMem*> m_renamedTables;
    dbc_TableCopier m_copier;
    std::vector<std::unique_ptr<dbc_Table>> m_kept;
    int m_stepVersion = 0;
    unsigned long long m_stepSerial = 0;
};
