#include "dbc_DatabaseConverter.h"

#include <algorithm>

#include "dbc_DatabaseConverterHolder.h"
#include "dbc_Failure.h"
#include "dbc_KeptTable.h"
#include "dbc_Moves.h"
#include "omi_Singleton.h"

namespace {

/// A registrar of a run forgets classes, which those of the process do not.
void CopyClasses(cls_ClassRegistrar const& from, cls_ClassRegistrar& to) {
    for (cls_ClassMetadata const* metadata : from.Classes()) {
        cls_ClassMetadata& copy =
            to.CreateClassMD(metadata->Name(), metadata->TypeId(), metadata->Version(), nullptr,
                             metadata->ParentTypeId());
        for (cls_Attribute const& attribute : metadata->Attributes())
            copy.AddAttribute(attribute.field, attribute.type, attribute.arg, attribute.collection);
    }
}

unsigned long long NextSerial() {
    static unsigned long long serial = 0;
    return ++serial;
}

}  // namespace

// ---- the input ---------------------------------------------------------------------------------

dbc_InputDatabase::dbc_InputDatabase(dbc_WorkTables& tables)
    : m_tables(tables), m_transporter(tables.Original(), m_registrar) {}

dbc_InputDatabase::~dbc_InputDatabase() = default;

bool dbc_InputDatabase::HasInputTable(unsigned const& typeId) {
    return m_tables.Of(typeId).Frozen() != nullptr;
}

std::unique_ptr<dbc_TableRfm> dbc_InputDatabase::GetInputTable(unsigned const& typeId) {
    dbc_WorkTable& table = m_tables.Of(typeId);
    if (!table.Frozen()) return nullptr;
    return std::make_unique<dbc_TableRfm>(m_tables, table, dbc_TableRfm::Side::Input);
}

// ---- the output --------------------------------------------------------------------------------

dbc_OutputDatabase::dbc_OutputDatabase(dbc_WorkTables& tables, dbc_OldLayouts& layouts)
    : m_tables(tables), m_layouts(layouts), m_transporter(tables.Work(), m_registrar) {
    m_transporter.SetOldLayouts(&layouts);
}

dbc_OutputDatabase::~dbc_OutputDatabase() = default;

std::unique_ptr<dbc_TableRfm> dbc_OutputDatabase::View(unsigned typeId) {
    return std::make_unique<dbc_TableRfm>(m_tables, m_tables.Of(typeId),
                                          dbc_TableRfm::Side::Output);
}

dbc_TableRfm* dbc_OutputDatabase::GetOutputTable(unsigned const& typeId) {
    if (!m_tables.Of(typeId).Exists()) return nullptr;
    std::unique_ptr<dbc_TableRfm>& given = m_given[typeId];
    if (!given) given = View(typeId);
    return given.get();
}

dbc_TableMem* dbc_OutputDatabase::GetTempTable(unsigned typeId, dbc_TempTables& tables, int version,
                                               rfm_TableMetadata const& metadata, int) {
    auto const known = tables.find({typeId, version});
    if (known != tables.end()) return known->second;
    if (metadata.ColumnCount() == 0) return nullptr;
    dbc_WorkTable& table = m_tables.Of(typeId);
    if (!table.Exists()) table.Create(metadata);
    m_givenTemp.push_back(std::make_unique<dbc_TableMem>(View(typeId)));
    return tables[{typeId, version}] = m_givenTemp.back().get();
}

dbc_TableRfm& dbc_OutputDatabase::CreateClass(unsigned typeId, int version) {
    dbc_WorkTable& table = m_tables.Of(typeId);
    if (!table.Exists()) {
        rfm_TableMetadata const* const layout = m_layouts.InForce(typeId, version);
        if (!layout) dbc_Fail("No layout of class " + std::to_string(typeId) + " is known.");
        table.Create(*layout);
    }
    return *GetOutputTable(typeId);
}

void dbc_OutputDatabase::EndStep() {
    m_given.clear();
    m_givenTemp.clear();
    m_tempTables.clear();
}

// ---- the run -----------------------------------------------------------------------------------

dbc_DatabaseConverter::dbc_DatabaseConverter(rfm_Database& original, rfm_WorkDatabase& work,
                                             cls_ClassRegistrar const& current)
    : m_tables(original, work),
      m_layouts(current),
      m_input(std::make_unique<dbc_InputDatabase>(m_tables)),
      m_output(std::make_unique<dbc_OutputDatabase>(m_tables, m_layouts)) {
    CopyClasses(current, m_input->Registrar());
    CopyClasses(current, m_output->Registrar());
}

dbc_DatabaseConverter::~dbc_DatabaseConverter() = default;

void dbc_DatabaseConverter::StartStep(int version) {
    m_stepVersion = version;
    m_stepSerial = NextSerial();
    m_tables.StartStep();
}

void dbc_DatabaseConverter::EndStep() {
    m_tables.EndStep();
    m_renamedTables = cow_Map<unsigned, dbc_TableMem*>();
    m_output->EndStep();
    m_kept.clear();
    m_stepSerial = NextSerial();
}

dbc_Table& dbc_DatabaseConverter::Keep(std::unique_ptr<dbc_Table> table) {
    m_kept.push_back(std::move(table));
    return *m_kept.back();
}

void dbc_DatabaseConverter::Release(dbc_Table const& table) {
    auto const kept = std::find_if(m_kept.begin(), m_kept.end(),
                                   [&](auto const& one) { return one.get() == &table; });
    if (kept != m_kept.end()) m_kept.erase(kept);
}

dbc_DatabaseConverter& dbc_DatabaseConverterHolder::GetDatabaseConverter() const {
    if (!m_converter) dbc_Fail("A conversion was called, and no upgrade runs.");
    return *m_converter;
}

dbc_DatabaseConverterHolder::Running::Running(dbc_DatabaseConverter& converter) {
    auto& holder = omi_Singleton<dbc_DatabaseConverterHolder>::Instance();
    if (holder.m_converter) dbc_Fail("An upgrade was started while another runs.");
    holder.m_converter = &converter;
}

dbc_DatabaseConverterHolder::Running::~Running() {
    omi_Singleton<dbc_DatabaseConverterHolder>::Instance().m_converter = nullptr;
}

// ---- tables that functions keep ----------------------------------------------------------------

using dbc_Moves::Run;

bool dbc_KeptTable::IsOpen() const {
    auto const& holder = omi_Singleton<dbc_DatabaseConverterHolder>::Instance();
    return holder.IsRunning() && m_step == Run().StepSerial() &&
           (m_table || m_output || m_temporary);
}

dbc_Table& dbc_KeptTable::Input(unsigned typeId) {
    if (IsOpen()) return *m_table;
    Release();
    std::unique_ptr<dbc_TableRfm> table = Run().Input().GetInputTable(typeId);
    if (!table)
        dbc_Fail("The database has no table of class " + Run().Layouts().NameOf(typeId) +
                 ", whose rows a conversion needs.");
    m_table = &Run().Keep(std::move(table));
    m_step = Run().StepSerial();
    return *m_table;
}

dbc_TableRfm& dbc_KeptTable::Output(unsigned typeId) {
    if (IsOpen()) return *m_output;
    Release();
    m_output = Run().Output().GetOutputTable(typeId);
    if (!m_output)
        dbc_Fail("The database has no table of class " + Run().Layouts().NameOf(typeId) +
                 ", whose rows a conversion needs.");
    m_step = Run().StepSerial();
    return *m_output;
}

dbc_TableMem& dbc_KeptTable::Temporary(unsigned typeId) {
    if (IsOpen()) return *m_temporary;
    Release();
    int const version = Run().StepVersion();
    rfm_TableMetadata const layout = Run().Output().Transporter().GetTableMetadata(typeId, version);
    m_temporary = Run().Output().GetTempTable(typeId, m_tables, version, layout, 1);
    if (!m_temporary)
        dbc_Fail("No layout of class " + Run().Layouts().NameOf(typeId) + " is known.");
    m_step = Run().StepSerial();
    return *m_temporary;
}

void dbc_KeptTable::Release() {
    if (IsOpen() && m_table) Run().Release(*m_table);
    m_table = nullptr;
    m_output = nullptr;
    m_temporary = nullptr;
    m_tables.clear();
}
