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

}  // namespace old_test
