#include "nga_Store.h"

#include <climits>
#include <functional>

#include "mdl_Repository.h"
#include "nex_Exception.h"
#include "nga_SafeFile.h"
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

std::unique_ptr<ddr_Model> LoadModel(std::string const& path, FileStamp* stamp,
                                     std::string const& name) {
    return OnFile(path, [&] {
        StoredFile const file(path);
        std::string const given = name.empty() ? StemOf(path) : name;
        auto model = std::make_unique<ddr_Model>(cow_String(std::string_view(given)));
        {
            std::unique_ptr<SqliteDatabase> const database = file.Open();
            database->Tables();
            database->RequireUnique(rom_Layout::mapEntryTypeId, rom_Layout::MapEntryOwner,
                                    rom_Layout::MapEntryKey);
            rom_Transporter transporter(*database, StoredClasses());
            ddr_Model::RegisteredExtensions().Each(
                [&](cow_String const& name, mdl_Extension const& prototype) {
                    rfm_Table* const table = database->FindTable(prototype.DynTypeId());
                    if (!table || table->RowCount() == 0) return;
                    if (table->RowCount() > 1)
                        file.Fail("table " + std::string(table->Metadata().Name().View()) +
                                  " holds more than the one row of the model");
                    try {
                        cow_ErasedHandle const read = transporter.Read(prototype.DynTypeId(), 0);
                        auto const* extension =
                            static_cast<mdl_Extension const*>(read.ErasedReferent());
                        model->SetExtension(name, extension->Copy());
                    } catch (nex_Exception const& exception) {
                        FailRead(file, transporter, exception);
                    }
                });
        }
        file.CheckUnchanged();
        if (stamp) *stamp = file.Stamp();
        return model;
    });
}

namespace {

// The rows of a map from names, to which a field of an extension's row refers.
void EachEntry(rfm_Database& database, int map,
               std::function<void(std::string const&, unsigned, int)> const& each) {
    rfm_Table* const maps = database.FindTable(cls_MapTypeId);
    rfm_Table* const entries = database.FindTable(rom_Layout::mapEntryTypeId);
    if (!maps || !entries) return;
    std::unique_ptr<rfm_Cursor> const at = maps->OpenCursor();
    if (!at->Seek(map)) return;
    long long const first = at->Value(rom_Layout::MapFirst).integer;
    long long const count = at->Value(rom_Layout::MapCount).integer;
    std::unique_ptr<rfm_Cursor> const entry = entries->OpenCursor();
    for (long long row = first; row < first + count; ++row) {
        if (row < 0 || row > INT_MAX || !entry->Seek(static_cast<int>(row))) return;
        rfm_Value const key = entry->Value(rom_Layout::MapEntryKey);
        rfm_Value const typeId = entry->Value(rom_Layout::MapEntryClass);
        rfm_Value const oid = entry->Value(rom_Layout::MapEntryOid);
        if (key.tag != rfm_Value::Text || typeId.tag != rfm_Value::Int || oid.tag != rfm_Value::Int)
            continue;
        each(std::string(key.text, static_cast<std::size_t>(key.length)),
             static_cast<unsigned>(typeId.integer), static_cast<int>(oid.integer));
    }
}

}  // namespace

std::vector<UnreadableObject> FindUnreadable(std::string const& path,
                                             ReadableObject const& readable) {
    return OnFile(path, [&] {
        StoredFile const file(path);
        std::unique_ptr<SqliteDatabase> const database = file.Open();
        std::vector<UnreadableObject> result;
        ddr_Model::RegisteredExtensions().Each(
            [&](cow_String const& name, mdl_Extension const& prototype) {
                rfm_Table* const table = database->FindTable(prototype.DynTypeId());
                if (!table || table->RowCount() != 1) return;
                std::unique_ptr<rfm_Cursor> const row = table->OpenCursor();
                if (!row->Seek(0)) return;
                rfm_TableMetadata const& layout = table->Metadata();
                for (int i = 0; i + 1 < layout.ColumnCount(); ++i) {
                    std::string const column =
                        layout.Columns()[static_cast<std::size_t>(i)].name.Text();
                    std::size_t const ending = column.rfind("#ClassID");
                    rfm_Value const map = row->Value(i + 1);
                    if (ending == std::string::npos || map.tag != rfm_Value::Int ||
                        row->Value(i).integer != static_cast<long long>(cls_MapTypeId))
                        continue;
                    std::string field = column.substr(0, ending);
                    if (field == "extension") field = name.Text();
                    EachEntry(*database, static_cast<int>(map.integer),
                              [&](std::string const& key, unsigned typeId, int oid) {
                                  rom_Transporter transporter(*database, StoredClasses());
                                  std::optional<cow_ErasedHandle> read;
                                  try {
                                      read.emplace(transporter.Read(typeId, oid));
                                  } catch (nex_Exception const& failure) {
                                      std::string const place = transporter.FailedAt();
                                      result.push_back(
                                          {field, key,
                                           (place.empty() ? "" : place + ": ") + TextOf(failure)});
                                      return;
                                  }
                                  if (readable)
                                      readable(field, key, typeId, read->ErasedReferent());
                              });
                }
            });
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
