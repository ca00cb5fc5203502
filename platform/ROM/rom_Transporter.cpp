#include "rom_Transporter.h"

#include "cls_Codes.h"
#include "dbc_OldLayouts.h"
#include "nex_TextException.h"
#include "rom_Reader.h"
#include "rom_Writer.h"

rom_Transporter::rom_Transporter(rfm_Database& database, cls_ClassRegistrar const& registrar)
    : m_database(database), m_registrar(registrar) {}

rom_Transporter::~rom_Transporter() = default;

rfm_TableMetadata rom_Transporter::GetTableMetadata(unsigned typeId) const {
    if (rfm_Table const* table = m_database.FindTable(typeId)) return table->Metadata();
    return rom_Layout::OfType(typeId, m_registrar);
}

rfm_TableMetadata rom_Transporter::GetTableMetadata(unsigned typeId, int version) const {
    if (m_oldLayouts)
        if (rfm_TableMetadata const* layout = m_oldLayouts->InForce(typeId, version))
            return *layout;
    return rfm_TableMetadata(typeId, cow_String(), version, cls_RootTypeId);
}

int rom_Transporter::Write(void const* object, unsigned typeId) {
    cls_ClassMetadata const* metadata = m_registrar.Find(typeId);
    if (!metadata)
        nex_TextException(atr_raw("An object of a class that is not registered was to be written."))
            .Throw("platform/ROM/rom_Transporter", 25);
    if (!m_writer) m_writer = std::make_unique<rom_Writer>(*this);
    try {
        return m_writer->Write(object, *metadata);
    } catch (...) {
        // Half of the object's parts count as written.
        m_writer.reset();
        throw;
    }
}

cow_ErasedHandle rom_Transporter::Read(unsigned typeId, int oid) {
    if (!m_reader) m_reader = std::make_unique<rom_Reader>(*this);
    return static_cast<cow_ErasedHandle const&>(m_reader->Object(typeId, oid));
}

cow_ErasedHandle rom_Transporter::ReadMapElement(unsigned typeId, int oid, cow_String const& field,
                                                 cow_String const& key, unsigned elementTypeId) {
    if (!m_reader) m_reader = std::make_unique<rom_Reader>(*this);
    return static_cast<cow_ErasedHandle const&>(
        m_reader->MapElement(typeId, oid, field, key, elementTypeId));
}

std::vector<rom_Transporter::Unreferenced> rom_Transporter::ReadUnreferenced() {
    if (!m_reader) m_reader = std::make_unique<rom_Reader>(*this);
    return m_reader->Unreferenced();
}

std::string rom_Transporter::FailedAt() const {
    return m_reader ? m_reader->FailedAt() : std::string();
}

void rom_Transporter::Forget() {
    m_writer.reset();
    m_reader.reset();
}
