#include "nga_Store.h"

#include <climits>
#include <functional>

#include "mdl_Repository.h"
#include "nex_Exception.h"
#include "nga_SafeFile.h"
#include "nga_SingleReader.h"
#include "nga_SqliteDatabase.h"
#include "nga_StoredFile.h"
#include "rom_Transporter.h"

namespace nga {

namespace {

std::string TextOf(nex_Exception const& exception) {
    return std::string(exception.AsString().View());
}

// Runs work on a file, and puts the file's name to what goes wrong in it.
template <class Work>
auto OnFile(std::string const& path, Work&& work) -> decltype(work()) {
    try {
        return work();
    } catch (nex_Exception const& exception) {
        throw StoreError(path, TextOf(exception));
    } catch (SqliteError const& error) {
        throw StoreError(path, error.what());
    }
}

// What a class raises while it is read knows not where; what the frame and the store raise names
// the table itself, wherever it knows more of it.
[[noreturn]] void FailRead(StoredFile const& file, rom_Transporter const& transporter,
                           nex_Exception const& exception) {
    std::string const text = TextOf(exception);
    std::string const place = transporter.FailedAt();
    bool const placed = text.find("table ") != std::string::npos;
    file.Fail(place.empty() || placed ? text : place + ": " + text);
}

std::string StemOf(std::string const& path) {
    std::string const name = path.substr(path.rfind('/') + 1);
    std::size_t const dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

bool LeftOut(mdl_Extension const& extension, SaveOptions const& options) {
    auto const* repository = dynamic_cast<mdl_Repository const*>(&extension.ConstGetValue());
    if (repository) return repository->Size() == 0;
    return options.isEmpty && options.isEmpty(extension);
}

void FillDatabase(ddr_Model const& model, SaveOptions const& options, std::string const& part) {
    std::unique_ptr<SqliteDatabase> const database = SqliteDatabase::Build(part);
    rom_Transporter transporter(*database, StoredClasses());
    ddr_Model::RegisteredExtensions().Each([&](cow_String const& name, mdl_Extension const&) {
        if (!model.HasInstance(name)) return;
        auto const& extension = model.ConstGetExtension(name);
        if (!LeftOut(extension, options)) transporter.Write(&extension, extension.DynTypeId());
    });
    if (options.leftovers)
        for (Leftovers::Object const& each : options.leftovers->objects)
            transporter.Write(each.object.ErasedReferent(), each.typeId);
    database->AddIndex(rom_Layout::mapEntryTypeId, rom_Layout::MapEntryOwner,
                       rom_Layout::MapEntryKey);
    database->Finish();
}

}  // namespace

FileStamp SaveModel(ddr_Model const& model, std::string const& path, SaveOptions const& options) {
    return OnFile(path, [&] {
        SafeFile file(path);
        if (options.expected && file.Former() != *options.expected)
            throw StoreError(path, options.expected->exists
                                       ? "another program changed the file since it was opened; "
                                         "nothing was saved"
                                       : "the file is there already; nothing was saved");
        FillDatabase(model, options, file.PartPath());
        return file.Commit();
    });
}

namespace {

std::unique_ptr<SqliteDatabase> OpenModel(StoredFile const& file) {
    std::unique_ptr<SqliteDatabase> database = file.Open();
    database->Tables();
    database->RequireUnique(rom_Layout::mapEntryTypeId, rom_Layout::MapEntryOwner,
                            rom_Layout::MapEntryKey);
    return database;
}

// The table in whose row 0 an extension stands; null where the file has none of it.
rfm_Table* ExtensionTable(StoredFile const& file, SqliteDatabase& database,
                          mdl_Extension const& prototype) {
    rfm_Table* const table = database.FindTable(prototype.DynTypeId());
    if (!table || table->RowCount() == 0) return nullptr;
    if (table->RowCount() > 1)
        file.Fail("table " + std::string(table->Metadata().Name().View()) +
                  " holds more than the one row of the model");
    return table;
}

}  // namespace

std::unique_ptr<ddr_Model> LoadModel(std::string const& path, FileStamp* stamp,
                                     Leftovers* leftovers) {
    return OnFile(path, [&] {
        StoredFile const file(path);
        auto model = std::make_unique<ddr_Model>(cow_String(std::string_view(StemOf(path))));
        {
            std::unique_ptr<SqliteDatabase> const database = OpenModel(file);
            rom_Transporter transporter(*database, StoredClasses());
            ddr_Model::RegisteredExtensions().Each(
                [&](cow_String const& name, mdl_Extension const& prototype) {
                    if (!ExtensionTable(file, *database, prototype)) return;
                    try {
                        cow_ErasedHandle const read = transporter.Read(prototype.DynTypeId(), 0);
                        auto const* extension =
                            static_cast<mdl_Extension const*>(read.ErasedReferent());
                        model->SetExtension(name, extension->Copy());
                    } catch (nex_Exception const& exception) {
                        FailRead(file, transporter, exception);
                    }
                });
            if (leftovers)
                for (rom_Transporter::Unreferenced& each : transporter.ReadUnreferenced()) {
                    if (each.object)
                        leftovers->objects.push_back({each.typeId, std::move(*each.object)});
                    else
                        leftovers->unreadable.push_back(std::move(each.failure));
                }
        }
        file.CheckUnchanged();
        if (stamp) *stamp = file.Stamp();
        return model;
    });
}

namespace {

// A repository is read with its own identity, as objects are with theirs.
void RequireIdentity(StoredFile const& file, rfm_Table& table, rfm_Cursor& row) {
    rfm_Value const uid = row.Value(table.Metadata().Find("##Uid"));
    if (uid.tag != rfm_Value::Null &&
        (uid.tag != rfm_Value::Bytes || uid.length != cls_Uid::byteCount))
        file.Fail("row " + std::to_string(row.Oid()) + " of table " +
                  table.Metadata().Name().Text() + " has an identity that is not 16 bytes");
}

// Hands over the entries of a map from names: the name, the class and the row, which is -1 where
// the name leads to none.
void EachEntry(StoredFile const& file, rfm_Database& database, int map,
               std::function<void(std::string const&, unsigned, int)> const& each) {
    rfm_Table* const maps = database.FindTable(cls_MapTypeId);
    rfm_Table* const entries = database.FindTable(rom_Layout::mapEntryTypeId);
    std::unique_ptr<rfm_Cursor> const at = maps ? maps->OpenCursor() : nullptr;
    if (at && at->Seek(map)) RequireIdentity(file, *maps, *at);
    if (!at || at->Oid() != map ||
        at->Value(rom_Layout::MapKind).integer != static_cast<long long>(cls_CollectionMapString))
        file.Fail("a repository has no map of names");
    long long const first = at->Value(rom_Layout::MapFirst).integer;
    long long const count = at->Value(rom_Layout::MapCount).integer;
    long long const rows = entries ? entries->RowCount() : 0;
    if (first < 0 || count < 0 || first > rows || count > rows - first)
        file.Fail("row " + std::to_string(map) + " of table cls_Map has a count out of range");
    if (count == 0) return;
    std::unique_ptr<rfm_Cursor> const entry = entries->OpenCursor();
    for (long long row = first; row < first + count; ++row) {
        entry->Seek(static_cast<int>(row));
        rfm_Value const owner = entry->Value(rom_Layout::MapEntryOwner);
        rfm_Value const key = entry->Value(rom_Layout::MapEntryKey);
        rfm_Value const typeId = entry->Value(rom_Layout::MapEntryClass);
        rfm_Value const oid = entry->Value(rom_Layout::MapEntryOid);
        if (owner.tag != rfm_Value::Int || owner.integer != map || key.tag != rfm_Value::Text)
            file.Fail("row " + std::to_string(row) + " of table cls_MapEntry is no entry of row " +
                      std::to_string(map) + " of table cls_Map");
        bool const leads = typeId.tag == rfm_Value::Int && oid.tag == rfm_Value::Int &&
                           oid.integer >= 0 && oid.integer <= INT_MAX;
        each(std::string(key.text, static_cast<std::size_t>(key.length)),
             leads ? static_cast<unsigned>(typeId.integer) : 0,
             leads ? static_cast<int>(oid.integer) : -1);
    }
}

// Hands over the map of each repository in an extension's row, with the repository's name.
void EachMap(StoredFile const& file, rfm_Table& table, cow_String const& extension,
             std::function<void(std::string const&, int)> const& each) {
    std::unique_ptr<rfm_Cursor> const row = table.OpenCursor();
    if (!row->Seek(0)) return;
    RequireIdentity(file, table, *row);
    rfm_TableMetadata const& layout = table.Metadata();
    for (int i = 0; i + 1 < layout.ColumnCount(); ++i) {
        std::string const column = layout.Columns()[static_cast<std::size_t>(i)].name.Text();
        std::size_t const ending = column.rfind("#ClassID");
        rfm_Value const typeId = row->Value(i);
        rfm_Value const map = row->Value(i + 1);
        if (ending == std::string::npos || map.tag == rfm_Value::Null) continue;
        std::string field = column.substr(0, ending);
        // Without a class it is that of the field.
        bool const isMap = typeId.tag == rfm_Value::Null ||
                           (typeId.tag == rfm_Value::Int &&
                            typeId.integer == static_cast<long long>(cls_MapTypeId));
        if (!isMap || map.tag != rfm_Value::Int || map.integer < 0 || map.integer > INT_MAX)
            file.Fail(std::string("row 0 of table ") + layout.Name().Text() + ", field \"" + field +
                      "\", refers to no map of names");
        if (field == "extension") field = extension.Text();
        each(field, static_cast<int>(map.integer));
    }
}

}  // namespace

std::vector<UnreadableObject> FindUnreadable(
    std::string const& path, ReadableObject const& readable,
    std::vector<dbc_UnreferencedReport> const& unreferenced) {
    return OnFile(path, [&] {
        StoredFile const file(path);
        std::unique_ptr<SqliteDatabase> const database = OpenModel(file);
        SingleReader reader(*database);
        std::vector<UnreadableObject> result;
        std::string failure;
        ddr_Model::RegisteredExtensions().Each(
            [&](cow_String const& extension, mdl_Extension const& prototype) {
                rfm_Table* const table = ExtensionTable(file, *database, prototype);
                if (!table) return;
                EachMap(file, *table, extension, [&](std::string const& collection, int map) {
                    EachEntry(file, *database, map,
                              [&](std::string const& key, unsigned typeId, int oid) {
                                  failure = "a name without an object";
                                  std::optional<cow_ErasedHandle> read;
                                  if (oid >= 0) read = reader.Read(typeId, oid, failure);
                                  if (!read)
                                      result.push_back({collection, key, failure});
                                  else if (readable)
                                      readable(collection, key, typeId, read->ErasedReferent());
                              });
                });
            });
        for (dbc_UnreferencedReport const& each : unreferenced)
            for (std::size_t row = 0; row < each.reached.size(); ++row)
                if (!each.reached[row] && !reader.Read(each.typeId, static_cast<int>(row), failure))
                    result.push_back({"", "", failure});
        return result;
    });
}

cow_ErasedHandle ReadNamed(std::string const& path, cow_String const& repository,
                           cow_String const& name, unsigned elementTypeId) {
    return OnFile(path, [&] {
        mdl_Extension const* const prototype = ddr_Model::RegisteredExtensions().Find(repository);
        if (!prototype)
            throw StoreError(path, "there is no repository " + std::string(repository.View()));
        StoredFile const file(path);
        std::unique_ptr<SqliteDatabase> const database = file.Open();
        rom_Transporter transporter(*database, StoredClasses());
        try {
            cow_ErasedHandle result = transporter.ReadMapElement(
                prototype->DynTypeId(), 0, cow_String("extension"), name, elementTypeId);
            file.CheckUnchanged();
            return result;
        } catch (nex_Exception const& exception) {
            FailRead(file, transporter, exception);
        }
    });
}

FileFacts ReadFacts(std::string const& path) {
    return OnFile(path, [&] {
        StoredFile const file(path);
        std::unique_ptr<SqliteDatabase> const database = SqliteDatabase::Open(
            path, file.Stamp().size,
            [](CatalogueEntry const&) { return std::optional<rfm_TableMetadata>(); });
        return FileFacts{file.Schema(), database->Writer()};
    });
}

}  // namespace nga
