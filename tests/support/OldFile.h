#pragma once

#include <string>

#include "host/store/store_support.h"
#include "nga_SqliteDatabase.h"
#include "support/OldDatabase.h"

namespace old_test {

/// Writes a store to a file of an old schema.
inline void WriteFile(rfm_Database& store, std::string const& path, int schema) {
    { std::ofstream const empty(path, std::ios::binary | std::ios::trunc); }
    std::unique_ptr<nga::SqliteDatabase> const file = nga::SqliteDatabase::Build(path);
    std::vector<rfm_Value> values;
    for (rfm_Table* from : store.Tables()) {
        rfm_Table& to = file->CreateTable(from->Metadata());
        values.resize(from->Metadata().Columns().size());
        std::unique_ptr<rfm_Cursor> const cursor = from->OpenCursor();
        for (int oid = 0; oid < from->RowCount() && cursor->Seek(oid); ++oid) {
            for (std::size_t i = 0; i < values.size(); ++i)
                values[i] = cursor->Value(static_cast<int>(i));
            to.Append(values.data());
        }
    }
    file->Finish();
    std::string const number = std::to_string(schema);
    store_test::Sql(path, "PRAGMA user_version=" + number +
                              ";UPDATE nga_Catalogue SET ClassName='nga 0.0',Version=" + number +
                              " WHERE TypeId=0");
}

/// Rebuilds the object of every row, also of those that no name leads to.
inline void ReadEveryRow(std::string const& path) {
    cls_ClassRegistrar const& registrar =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    auto const database = nga::SqliteDatabase::Open(
        path, static_cast<long long>(std::filesystem::file_size(path)),
        [](nga::CatalogueEntry const&) { return std::optional<rfm_TableMetadata>(); });
    for (rfm_Table* table : database->Tables()) {
        cls_ClassMetadata const* const metadata = registrar.Find(table->Metadata().TypeId());
        if (!metadata || !metadata->HasCtor()) continue;
        rom_Transporter transporter(*database, registrar);
        for (int oid = 0; oid < table->RowCount(); ++oid) {
            try {
                transporter.Read(metadata->TypeId(), oid);
            } catch (nex_Exception const& failure) {
                ADD_FAILURE() << metadata->Name().Text() << " row " << oid << ": "
                              << failure.AsString().Text();
                break;
            }
        }
    }
}

}  // namespace old_test
