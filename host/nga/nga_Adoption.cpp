#include "nga_Adoption.h"

#include <algorithm>
#include <set>

#include "atr_NaturalOrder.h"
#include "cls_Codes.h"
#include "dbc_Failure.h"
#include "dbc_Utils.h"
#include "kbeC_ConnectorBehaviorOption.h"
#include "klcC_LoadCase.h"
#include "nga_ConnectorSection.h"
#include "nga_HostExtension.h"
#include "nga_SingleReader.h"
#include "nga_StoredFile.h"
#include "rom_Transporter.h"

namespace nga {

namespace {

constexpr char const recoveredSection[] = "recovered behaviors";
constexpr char const recoveredLoadCase[] = "recovered load case";

/// One row that is put together by the names of its columns.
class StoredRow {
public:
    explicit StoredRow(rfm_Table& table)
        : m_table(table), m_values(table.Metadata().Columns().size()) {}
    /// A row as it stands.
    StoredRow(rfm_Table& table, int oid) : StoredRow(table) {
        std::unique_ptr<rfm_Cursor> const cursor = table.OpenCursor();
        if (!cursor->Seek(oid))
            dbc_Fail("Row " + std::to_string(oid) + " of table " + table.Metadata().Name().Text() +
                     " is referred to and does not exist.");
        for (std::size_t i = 0; i < m_values.size(); ++i)
            Keep(i, cursor->Value(static_cast<int>(i)));
    }

    StoredRow& Int(char const* column, long long value) {
        return Set(column, rfm_Value::OfInt(value));
    }
    /// A number, or none.
    StoredRow& Set(char const* column, rfm_Value const& value) {
        Keep(Place(column), value);
        return *this;
    }
    StoredRow& Text(char const* column, std::string const& value) {
        return Set(column, rfm_Value::OfText(value.data(), static_cast<int>(value.size())));
    }
    StoredRow& Reference(std::string const& field, unsigned typeId, int oid) {
        return Int((field + "#ClassID").c_str(), typeId).Int((field + "#OID").c_str(), oid);
    }
    /// The identity of a row that is made now.
    StoredRow& Identity(std::string const& seed) {
        std::string const uid = dbc_Utils::UidOf(seed);
        return Set("##Uid", rfm_Value::OfBytes(uid.data(), static_cast<int>(uid.size())));
    }
    rfm_Value Value(char const* column) const { return m_values[Place(column)]; }

    int Append() { return m_table.Append(m_values.data()); }
    void Replace(int oid) { m_table.Replace(oid, m_values.data()); }

private:
    std::size_t Place(char const* column) const {
        return static_cast<std::size_t>(m_table.Metadata().Find(cow_String(column)));
    }
    // What the value points at lives no longer than the cursor or the caller's text.
    void Keep(std::size_t place, rfm_Value value) {
        if (value.tag == rfm_Value::Text || value.tag == rfm_Value::Bytes) {
            m_kept.emplace_back(std::make_unique<std::string>(
                static_cast<char const*>(value.bytes), static_cast<std::size_t>(value.length)));
            value.bytes = m_kept.back()->data();
        }
        m_values[place] = value;
    }

    rfm_Table& m_table;
    std::vector<rfm_Value> m_values;
    std::vector<std::unique_ptr<std::string>> m_kept;
};

rfm_Table& TableOf(rfm_Database& database, unsigned typeId) {
    rfm_Table* const table = database.FindTable(typeId);
    return table ? *table : database.CreateTable(rom_Layout::OfType(typeId, StoredClasses()));
}

/// The names of a repository, which an extension's row holds.
class RepositoryNames {
public:
    RepositoryNames(rfm_Database& database, unsigned extension, char const* field)
        : m_database(database), m_extension(extension), m_field(field) {
        m_isWhole = Read();
    }

    /// Whether the names could be read one and all. Written anew, a damaged one would be gone or
    /// look whole.
    bool IsWhole() const { return m_isWhole; }

    /// The name, or the first free one with a number behind it.
    std::string Free(std::string const& name, bool numbered) {
        if (!numbered && m_known.count(name) == 0) return name;
        while (m_known.count(name + " " + std::to_string(m_number)) != 0) ++m_number;
        return name + " " + std::to_string(m_number);
    }
    void Add(std::string const& name, unsigned typeId, int oid) {
        m_entries.push_back({name, rfm_Value::OfInt(typeId), rfm_Value::OfInt(oid)});
        m_known.insert(name);
    }

    /// Stores them all. The entries of a map stand together, so those that were there come to stand
    /// behind all others, and their former rows belong to nobody.
    void Store(std::string const& seed) {
        std::stable_sort(m_entries.begin(), m_entries.end(), [](Entry const& a, Entry const& b) {
            return strnatcmp(a.name.c_str(), b.name.c_str()) < 0;
        });
        rfm_Table& entries = TableOf(m_database, rom_Layout::mapEntryTypeId);
        for (int oid = m_first; oid < m_first + m_count; ++oid)
            StoredRow(entries, oid).Int("owner", -1).Replace(oid);
        rfm_Table& maps = TableOf(m_database, cls_MapTypeId);
        bool const isNew = m_map < 0;
        if (isNew) m_map = maps.RowCount();
        int const first = entries.RowCount();
        for (Entry const& each : m_entries)
            StoredRow(entries)
                .Int("owner", m_map)
                .Text("key", each.name)
                .Set("value#ClassID", each.typeId)
                .Set("value#OID", each.oid)
                .Append();
        int const count = static_cast<int>(m_entries.size());
        if (!isNew) {
            StoredRow(maps, m_map).Int("#First", first).Int("#Count", count).Replace(m_map);
            return;
        }
        StoredRow(maps)
            .Int("Target#Kind", cls_CollectionMapString)
            .Int("#First", first)
            .Int("#Count", count)
            .Identity(seed + ".names")
            .Append();
        rfm_Table& extensions = TableOf(m_database, m_extension);
        if (extensions.RowCount() > 0)
            StoredRow(extensions, 0).Reference(m_field, cls_MapTypeId, m_map).Replace(0);
        else
            StoredRow(extensions)
                .Reference(m_field, cls_MapTypeId, m_map)
                .Int("##BaseClassOID", -1)
                .Identity(seed + ".extension")
                .Append();
    }

private:
    struct Entry {
        std::string name;
        rfm_Value typeId;  ///< none of a name that leads to nothing
        rfm_Value oid;
    };

    bool Read() {
        rfm_Table* const table = m_database.FindTable(m_extension);
        if (!table || table->RowCount() == 0) return true;
        StoredRow const row(*table, 0);
        rfm_Value const map = row.Value((m_field + "#OID").c_str());
        if (map.tag == rfm_Value::Null) return true;
        rfm_Table& maps = TableOf(m_database, cls_MapTypeId);
        rfm_Table& entries = TableOf(m_database, rom_Layout::mapEntryTypeId);
        if (map.tag != rfm_Value::Int || map.integer < 0 || map.integer >= maps.RowCount())
            return false;
        m_map = static_cast<int>(map.integer);
        StoredRow const counts(maps, m_map);
        long long const first = counts.Value("#First").integer;
        long long const count = counts.Value("#Count").integer;
        if (first < 0 || count < 0 || first > entries.RowCount() ||
            count > entries.RowCount() - first)
            return false;
        m_first = static_cast<int>(first);
        m_count = static_cast<int>(count);
        for (int oid = m_first; oid < m_first + m_count; ++oid) {
            StoredRow const entry(entries, oid);
            rfm_Value const owner = entry.Value("owner");
            rfm_Value const key = entry.Value("key");
            rfm_Value const typeId = entry.Value("value#ClassID");
            rfm_Value const target = entry.Value("value#OID");
            if (owner.tag != rfm_Value::Int || owner.integer != m_map ||
                key.tag != rfm_Value::Text || !IsNumberOrNone(typeId) || !IsNumberOrNone(target))
                return false;
            m_entries.push_back(
                {std::string(key.text, static_cast<std::size_t>(key.length)), typeId, target});
            m_known.insert(m_entries.back().name);
        }
        return true;
    }
    static bool IsNumberOrNone(rfm_Value const& value) {
        return value.tag == rfm_Value::Int || value.tag == rfm_Value::Null;
    }

    bool m_isWhole;
    rfm_Database& m_database;
    unsigned m_extension;
    std::string m_field;
    int m_map = -1;
    int m_first = 0;
    int m_count = 0;
    int m_number = 1;
    std::vector<Entry> m_entries;
    std::set<std::string> m_known;
};

template <class Do>
void EachRow(dbc_UnreferencedReport const& report, Do work) {
    for (std::size_t row = 0; row < report.reached.size(); ++row)
        if (!report.reached[row]) work(static_cast<int>(row));
}

/// What the list has of a kind and can be read. An object that cannot be would keep the whole
/// document from being read once a name leads to it.
std::vector<dbc_UnreferencedReport> ReadableOf(rfm_Database& database,
                                               dbc_References const& references, unsigned kind) {
    std::vector<dbc_UnreferencedReport> result;
    SingleReader reader(database);
    std::string ignored;
    for (dbc_UnreferencedReport const& each : references.unreferenced) {
        if (!StoredClasses().IsParent(each.typeId, kind)) continue;
        dbc_UnreferencedReport readable{each.typeId, each.className, 0, 0, {}};
        readable.reached.assign(each.reached.size(), true);
        EachRow(each, [&](int oid) {
            if (!reader.Read(each.typeId, oid, ignored)) return;
            if (readable.rows++ == 0) readable.firstRow = oid;
            readable.reached[static_cast<std::size_t>(oid)] = false;
        });
        if (readable.rows > 0) result.push_back(std::move(readable));
    }
    return result;
}

/// Takes out of the list what got a name.
void Strike(dbc_References& references, std::vector<dbc_UnreferencedReport> const& named) {
    for (dbc_UnreferencedReport const& each : named)
        for (dbc_UnreferencedReport& listed : references.unreferenced) {
            if (listed.typeId != each.typeId) continue;
            EachRow(each, [&](int oid) { listed.reached[static_cast<std::size_t>(oid)] = true; });
            listed.rows = 0;
            EachRow(listed, [&](int oid) {
                if (listed.rows++ == 0) listed.firstRow = oid;
            });
        }
    std::erase_if(references.unreferenced,
                  [](dbc_UnreferencedReport const& each) { return each.rows == 0; });
}

// What new rows take their identities from: that of the first object.
std::string SeedOf(rfm_Database& database, dbc_UnreferencedReport const& report) {
    StoredRow const first(*database.FindTable(report.typeId), report.firstRow);
    rfm_Value const uid = first.Value("##Uid");
    std::string seed = report.className + " " + std::to_string(report.firstRow);
    if (uid.tag == rfm_Value::Bytes)
        seed.assign(static_cast<char const*>(uid.bytes), static_cast<std::size_t>(uid.length));
    return seed;
}

bool AdoptBehaviors(rfm_Database& database, std::vector<dbc_UnreferencedReport> const& behaviors,
                    std::vector<Adopted>& adopted) {
    RepositoryNames names(database, nga_CSWrapper::TypeId(), "extension");
    if (!names.IsWhole()) return false;
    std::string const seed = SeedOf(database, behaviors.front()) + ".section";
    rfm_Table& entries = TableOf(database, rom_Layout::listEntryTypeId);
    rfm_Table& lists = TableOf(database, cls_ListTypeId);
    int const list = lists.RowCount();
    int const first = entries.RowCount();
    std::string const name = names.Free(recoveredSection, false);
    for (dbc_UnreferencedReport const& each : behaviors) {
        EachRow(each, [&](int oid) {
            StoredRow(entries).Int("owner", list).Reference("value", each.typeId, oid).Append();
        });
        adopted.push_back(
            {each.className, each.rows, nga_ConnectorSection::sectionRepositoryCmd().Text(), name});
    }
    StoredRow(lists)
        .Int("Target#Kind", cls_CollectionList)
        .Int("#First", first)
        .Int("#Count", entries.RowCount() - first)
        .Identity(seed + ".options")
        .Append();
    int const section = StoredRow(TableOf(database, nga_ConnectorSection::TypeId()))
                            .Reference("options", cls_ListTypeId, list)
                            .Int("stateVariables", 0)
                            .Int("##BaseClassOID", -1)
                            .Identity(seed)
                            .Append();
    names.Add(name, nga_ConnectorSection::TypeId(), section);
    names.Store(seed);
    return true;
}

bool AdoptLoadCases(rfm_Database& database, std::vector<dbc_UnreferencedReport> const& loadCases,
                    std::vector<Adopted>& adopted) {
    std::string const collection = klcC_LoadCase::loadCaseCmd().Text();
    RepositoryNames names(database, HostExtension::TypeId(), collection.c_str());
    if (!names.IsWhole()) return false;
    for (dbc_UnreferencedReport const& each : loadCases) {
        std::string firstName;
        EachRow(each, [&](int oid) {
            std::string const name = names.Free(recoveredLoadCase, true);
            names.Add(name, each.typeId, oid);
            if (firstName.empty()) firstName = name;
        });
        adopted.push_back({each.className, each.rows, collection, firstName});
    }
    names.Store(SeedOf(database, loadCases.front()) + ".loadCases");
    return true;
}

}  // namespace

std::vector<Adopted> Adopt(rfm_Database& database, dbc_References& references) {
    std::vector<Adopted> adopted;
    auto const behaviors = ReadableOf(database, references, kbeC_ConnectorBehaviorOption::TypeId());
    if (!behaviors.empty() && AdoptBehaviors(database, behaviors, adopted))
        Strike(references, behaviors);
    auto const loadCases = ReadableOf(database, references, klcC_LoadCase::TypeId());
    if (!loadCases.empty() && AdoptLoadCases(database, loadCases, adopted))
        Strike(references, loadCases);
    return adopted;
}

}  // namespace nga
