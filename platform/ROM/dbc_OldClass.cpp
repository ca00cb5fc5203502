#include "dbc_OldClass.h"

#include <new>

#include "cls_ClassRegistrar.h"
#include "dbc_DatabaseConverter.h"
#include "dbc_OldClassRegistrar.h"
#include "omi_Singleton.h"

void dbc_OldClassOfTable::InitializeMetadata(cls_ClassRegistrar& registrar) const {
    cls_ClassMetadata& metadata = registrar.CreateClassMD(
        cow_String(m_row.name), m_row.typeId, m_row.version, nullptr, m_row.parentTypeId);
    for (std::size_t i = 0; i < m_row.fields.count; ++i) {
        dbc_OldField const& field = m_row.fields.first[i];
        metadata.AddAttribute(cls_FieldHandle(static_cast<int>(i), cow_String(field.name)),
                              field.type, field.arg, field.collection);
    }
}

void dbc_OldClassOfTable::SchemaChanges(dbc_DatabaseConverter& converter) const {
    dbc_OldClassEnd const& end = m_row.end;
    if (end.next == 0) return;
    dbc_ClassConverter& step = converter.GetConverter(end.next)->Upgrade(
        cow_String(m_row.name), m_row.typeId, m_row.version);
    if (end.convert) step.BindConversionFunction(end.convert);
    if (end.finalize) step.BindFinalizeFunction(end.finalize);
}

void dbc_OldClassOfTable::ClassesToDelete(dbc_DatabaseConverter& converter) const {
    if (!m_row.end.deleted) return;
    converter.DeletedClasses().Prepend(m_row.typeId);
    cow_String const name(m_row.name);
    converter.Output().Registrar().DeleteClass(name, m_row.typeId);
    converter.Input().Registrar().DeleteClass(name, m_row.typeId);
}

void dbc_OldClassOfTable::ClassesToRename(dbc_DatabaseConverter& converter) const {
    if (m_row.end.newName)
        converter.ClassNames().Insert(cow_String(m_row.name), cow_String(m_row.end.newName));
}

void dbc_OldClassOfTable::TablesToRename(dbc_DatabaseConverter& converter) const {
    if (m_row.end.moveTable) m_row.end.moveTable(converter);
}

void dbc_RegisterOldClasses(dbc_OldClass const* rows, std::size_t count) {
    auto& registrar = omi_Singleton<dbc_OldClassRegistrar>::Instance();
    using Holder = cow_CountedHld<dbc_OldClassVersion>;
    for (std::size_t i = 0; i < count; ++i) {
        cow_OwnedBlock place(mem_OperatorNewTinyThrow(sizeof(Holder)));
        auto* const holder = new (place.Get()) Holder(new dbc_OldClassOfTable(rows[i]));
        place.Release();
        registrar.Register(holder, rows[i].mask);
    }
}
