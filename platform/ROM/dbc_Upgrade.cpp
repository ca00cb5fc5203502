#include "dbc_Upgrade.h"

#include "cls_MetadataRegistrar.h"
#include "dbc_DatabaseConverterHolder.h"
#include "dbc_Failure.h"
#include "mdl_Description.h"
#include "omi_Singleton.h"
#include "omu_PrimEnumBase.h"

namespace {

// Classes took new names between these two versions of the schema.
constexpr int lastBeforeRenames = 507;
constexpr int versionOfRenames = 811;

bool SameColumns(rfm_TableMetadata const& a, rfm_TableMetadata const& b) {
    if (a.ColumnCount() != b.ColumnCount()) return false;
    for (rfm_Column const& column : a.Columns()) {
        int const place = b.Find(column.name);
        if (place < 0 || b.Columns()[static_cast<std::size_t>(place)].kind != column.kind)
            return false;
    }
    return true;
}

bool SameTable(rfm_TableMetadata const& a, rfm_TableMetadata const& b) {
    return a.Version() == b.Version() && a.ParentTypeId() == b.ParentTypeId() &&
           a.Name() == b.Name() && SameColumns(a, b);
}

}  // namespace

dbc_Upgrade::dbc_Upgrade(rfm_Database& original, rfm_WorkDatabase& work,
                         cls_ClassRegistrar const& current, dbc_OldClassRegistrar const& oldClasses,
                         dbc_UpgradeOptions const& options)
    : m_current(current),
      m_registered(oldClasses),
      m_options(options),
      m_converter(original, work, current) {
    m_converter.Tables().progress = options.progress;
    m_converter.Tables().progressContext = options.progressContext;
}

dbc_UpgradeReport dbc_Upgrade::Run() {
    dbc_DatabaseConverterHolder::Running const running(m_converter);
    for (auto const& [typeId, table] : m_converter.Tables().All()) {
        if (!table->Exists()) continue;
        dbc_ClassReport& report = table->Report();
        report.name = table->Name();
        report.versions.push_back(table->Version());
        report.rowsIn = table->Storage()->RowCount();
    }
    Declare();
    m_converter.Tables().rowsExpected = RowsExpected();
    bool renamed = false;
    for (auto const& [version, step] : m_converter.Steps()) {
        if (IsAfterLast(version)) break;
        if (version > lastBeforeRenames && !renamed && !IsAfterLast(versionOfRenames)) {
            RenameTables();
            renamed = true;
        }
        RunStep(version, step);
    }
    bool const whole = m_options.lastVersion == 0;
    if (whole && !renamed) RenameTables();
    if (whole) BringToCurrent();
    // What a later step may still look into stays.
    if (whole || !IsAfterLast(versionOfRenames)) DropDeleted();
    if (!m_converter.Tables().Renames().empty())
        for (auto const& [typeId, table] : m_converter.Tables().All()) table->MapReferences();
    if (whole) Complete();
    FinishReport();
    return m_converter.Tables().Report();
}

// ---- declarations ------------------------------------------------------------------------------

void dbc_Upgrade::Declare() {
    for (dbc_OldClassRegistrar::Entry const& entry : m_registered.Entries()) {
        if (!(entry.mask & cls_DomainDatabase)) continue;
        dbc_OldClassVersion const& version = entry.holder->GetRef();
        cls_ClassRegistrar own;
        version.InitializeMetadata(own);
        for (cls_ClassMetadata const* metadata : own.Classes())
            m_oldClasses.push_back({&version, rom_Layout::OfClass(*metadata)});
        version.SchemaChanges(m_converter);
    }
    for (OldClass const& old : m_oldClasses) {
        int next = 0;
        for (auto const& [version, step] : m_converter.Steps()) {
            auto const declared = step.Classes().find(old.layout.TypeId());
            if (declared != step.Classes().end() &&
                declared->second.oldVersion == old.layout.Version())
                next = version;
        }
        m_converter.Layouts().Enter(old.layout, next);
    }
    for (OldClass const& old : m_oldClasses) {
        unsigned const typeId = old.layout.TypeId();
        dbc_WorkTable& table = m_converter.Tables().Of(typeId);
        // A class under a reused number or name is another one.
        if (!table.Exists() || LastVersion(typeId, table.Version()) != old.layout.Version())
            continue;
        int const deleted = m_converter.DeletedClasses().Size();
        int const named = m_converter.ClassNames().Size();
        old.version->ClassesToDelete(m_converter);
        old.version->ClassesToRename(m_converter);
        if (m_converter.DeletedClasses().Size() > deleted) {
            m_deleted.insert(typeId);
            table.isRetiring = true;
        }
        if (m_converter.ClassNames().Size() > named) m_renamed.push_back(&old);
        if (cls_ClassMetadata const* current = m_current.Find(typeId))
            if (!m_converter.Output().Registrar().Find(typeId))
                m_converter.Output().Registrar().CreateClassMD(
                    current->Name(), typeId, current->Version(), nullptr, current->ParentTypeId());
    }
}

int dbc_Upgrade::LastVersion(unsigned typeId, int version) const {
    // Steps rise, so one pass finds the whole chain.
    for (auto const& [target, step] : m_converter.Steps()) {
        auto const declared = step.Classes().find(typeId);
        if (declared != step.Classes().end() && declared->second.oldVersion == version)
            version = target;
    }
    return version;
}

long long dbc_Upgrade::RowsExpected() {
    long long expected = 0;
    for (auto const& [typeId, table] : m_converter.Tables().All()) {
        if (!table->Exists()) continue;
        long long const rows = table->Storage()->RowCount();
        int version = table->Version();
        unsigned steppedId = typeId;
        auto const walk = [&] {
            for (auto const& [target, step] : m_converter.Steps()) {
                auto const declared = step.Classes().find(steppedId);
                if (declared == step.Classes().end() || declared->second.oldVersion != version)
                    continue;
                version = target;
                expected += rows;
            }
        };
        walk();
        for (OldClass const* old : m_renamed) {
            if (old->layout.TypeId() != typeId) continue;
            steppedId = m_converter.Layouts().TypeIdOf(
                cow_String(*m_converter.ClassNames().ConstFind(old->layout.Name())));
            version = versionOfRenames;
            expected += rows;
            walk();
        }
        cls_ClassMetadata const* const current = m_current.Find(steppedId);
        if (current && current->Version() != version) expected += rows;
    }
    return expected;
}

// ---- steps -------------------------------------------------------------------------------------

void dbc_Upgrade::RunStep(int version, dbc_Converter const& step) {
    struct Applied {
        unsigned typeId;
        dbc_Converter::Class const* declared;
    };
    std::vector<Applied> applied;
    for (auto const& [typeId, declared] : step.Classes()) {
        dbc_WorkTable const& table = m_converter.Tables().Of(typeId);
        if (table.Exists() && table.Version() == declared.oldVersion)
            applied.push_back({typeId, &declared});
    }
    if (applied.empty()) return;
    m_converter.StartStep(version);
    for (Applied const& each : applied) {
        rfm_TableMetadata const* const layout = m_converter.Layouts().After(each.typeId, version);
        if (!layout)
            dbc_Fail("Class " + std::string(each.declared->name.Text()) +
                     " has no layout at version " + std::to_string(version) + ".");
        m_converter.Tables().Of(each.typeId).StartRewrite(*layout);
    }
    for (Applied const& each : applied) {
        dbc_WorkTable& table = m_converter.Tables().Of(each.typeId);
        table.Rewrite(each.declared->converter.Conversion());
        table.Report().versions.push_back(version);
    }
    for (Applied const& each : applied) {
        dbc_FinalizeFunction const finalize = each.declared->converter.Finalize();
        if (!finalize) continue;
        std::unique_ptr<dbc_TableRfm> const in = m_converter.Input().GetInputTable(each.typeId);
        finalize(*in, *m_converter.Output().GetOutputTable(each.typeId));
    }
    m_converter.EndStep();
}

void dbc_Upgrade::StartTarget(unsigned typeId, std::string const& source) {
    dbc_WorkTable const& table = m_converter.Tables().Of(typeId);
    if (table.Exists() && table.Storage()->RowCount() > 0)
        dbc_Fail("The database holds table " + table.Name() + " and table " + source +
                 ", whose rows it should get.");
    rfm_TableMetadata const* const layout = m_converter.Layouts().InForce(typeId, versionOfRenames);
    if (!layout) return;
    if (table.Exists()) {
        if (table.Version() == layout->Version()) return;
        // Of a later version it would keep its rows from the steps that lead there.
        m_converter.Tables().Drop(typeId);
    }
    dbc_WorkTable& made = m_converter.Tables().Of(typeId);
    made.Report().versions.clear();
    made.Create(*layout);
}

void dbc_Upgrade::RenameTables() {
    if (m_renamed.empty()) return;
    std::vector<std::pair<unsigned, unsigned>> renames;
    for (OldClass const* old : m_renamed) {
        unsigned const oldId = old->layout.TypeId();
        cow_String const newName(*m_converter.ClassNames().ConstFind(old->layout.Name()));
        unsigned const newId = m_converter.Layouts().TypeIdOf(newName);
        StartTarget(newId, old->layout.Name().Text());
        renames.emplace_back(oldId, newId);
    }
    m_converter.StartStep(versionOfRenames);
    for (OldClass const* old : m_renamed) old->version->TablesToRename(m_converter);
    m_converter.EndStep();
    for (std::size_t i = 0; i < renames.size(); ++i) {
        auto const [oldId, newId] = renames[i];
        m_converter.Tables().Rename(oldId, newId);
        m_converter.Tables().Of(oldId).Report().newName = m_converter.Tables().Of(newId).Name();
    }
}

bool dbc_Upgrade::HasSteps(unsigned typeId) const {
    for (auto const& [target, step] : m_converter.Steps())
        if (step.Classes().count(typeId) != 0) return true;
    return false;
}

bool dbc_Upgrade::IsReached(unsigned typeId, int version) const {
    auto const step = m_converter.Steps().find(version);
    return step != m_converter.Steps().end() && step->second.Classes().count(typeId) != 0;
}

void dbc_Upgrade::BringToCurrent() {
    std::vector<std::pair<dbc_WorkTable*, rfm_TableMetadata const*>> behind;
    for (auto const& [typeId, table] : m_converter.Tables().All()) {
        if (!table->Exists() || IsDeleted(typeId)) continue;
        rfm_TableMetadata const* const current = m_converter.Layouts().Current(typeId);
        if (current && !SameTable(table->Storage()->Metadata(), *current))
            behind.emplace_back(table.get(), current);
    }
    if (behind.empty()) return;
    m_converter.StartStep(0);
    for (auto const& [table, layout] : behind) {
        if (HasSteps(table->TypeId()) && !IsReached(table->TypeId(), table->Version()))
            table->Report()
                .notes["no step leads on from version " + std::to_string(table->Version()) +
                       ", so only fields of the same name are carried"] = {
                table->Storage()->RowCount(), 0};
        table->StartRewrite(*layout);
    }
    for (auto const& [table, layout] : behind) {
        table->Rewrite(nullptr);
        if (table->Report().versions.back() != layout->Version())
            table->Report().versions.push_back(layout->Version());
    }
    m_converter.EndStep();
}

void dbc_Upgrade::DropDeleted() {
    for (unsigned typeId : m_deleted) {
        dbc_WorkTable& table = m_converter.Tables().Of(typeId);
        table.Report().retired = true;
        // What was copied to another class was counted then.
        if (m_converter.Tables().Renames().count(typeId) == 0) table.CountRetired();
        m_converter.Tables().Drop(typeId);
    }
}

// ---- completion --------------------------------------------------------------------------------

void dbc_Upgrade::Complete() {
    for (auto const& [typeId, table] : m_converter.Tables().All())
        if (table->Exists() && table->Touched()) CompleteTable(*table);
}

namespace {

/// What a column reads as where it has no value, and the class would have it otherwise.
struct Default {
    int column;
    std::string field;
    std::string literal;  ///< of an enumeration
};

// A class of which there are objects, with the fields of that one; null if there is none.
mdl_Description const* ConcreteOf(mdl_Description const& description,
                                  cls_ClassRegistrar const& current) {
    if (!description.IsAbstract()) return &description;
    for (cls_ClassMetadata const* metadata : current.Classes()) {
        mdl_Description const* const other = mdl_Description::Find(metadata->TypeId());
        if (!other || other->IsAbstract()) continue;
        for (mdl_Description const* base = other->Base(); base; base = base->Base())
            if (base->TypeId() == description.TypeId()) return other;
    }
    return nullptr;
}

std::vector<Default> DefaultsOf(mdl_Description const& description, rfm_TableMetadata const& layout,
                                cls_ClassRegistrar const& current) {
    std::vector<Default> result;
    mdl_Description const* const concrete = ConcreteOf(description, current);
    if (!concrete) return result;
    void* const object = concrete->Create();
    struct Owner {
        mdl_Description const& description;
        void* object;
        ~Owner() { description.Destroy(object); }
    } const owner{*concrete, object};
    for (mdl_Field const& field : description.Fields()) {
        int const column = layout.Find(cow_String(field.Name()));
        if (column < 0) continue;
        void const* const value = field.At(static_cast<void const*>(object));
        switch (field.Type().Kind()) {
            case mdl_FieldKind::Enum:
                for (omu_EnumRow const* row = field.Type().Rows(); row->literal; ++row)
                    if (row->value == field.Type().Number(value)) {
                        result.push_back({column, field.Name(), row->literal});
                        break;
                    }
                break;
            case mdl_FieldKind::Int:
                if (*static_cast<int const*>(value) != 0)
                    result.push_back({column, field.Name(), ""});
                break;
            case mdl_FieldKind::Bool:
                if (*static_cast<bool const*>(value)) result.push_back({column, field.Name(), ""});
                break;
            case mdl_FieldKind::Double:
                if (*static_cast<double const*>(value) != 0.0)
                    result.push_back({column, field.Name(), ""});
                break;
            default:
                break;
        }
    }
    return result;
}

}  // namespace

void dbc_Upgrade::CompleteTable(dbc_WorkTable& table) {
    mdl_Description const* const description = mdl_Description::Find(table.TypeId());
    if (!description) return;
    rfm_Table& storage = *table.Storage();
    std::vector<Default> defaults = DefaultsOf(*description, storage.Metadata(), m_current);
    for (Default const& each : defaults)
        if (long long const zeros = table.Zeros(each.field); zeros > 0 && each.literal.empty())
            table.Report().missing[each.field] += zeros;
    std::vector<long long> const& unset = table.Unset();
    if (unset.size() == storage.Metadata().Columns().size())
        std::erase_if(defaults, [&](Default const& each) {
            return unset[static_cast<std::size_t>(each.column)] == 0;
        });
    if (defaults.empty()) return;
    dbc_ClassReport& report = table.Report();
    std::vector<rfm_Value> values(storage.Metadata().Columns().size());
    int const rows = storage.RowCount();
    std::unique_ptr<rfm_Cursor> cursor = storage.OpenCursor();
    for (int oid = 0; oid < rows; ++oid) {
        if (!cursor->Seek(oid)) continue;
        bool changes = false;
        for (Default const& each : defaults) {
            rfm_Value const value = cursor->Value(each.column);
            bool const enumeration = !each.literal.empty();
            if (value.tag != rfm_Value::Null &&
                !(enumeration && value.tag == rfm_Value::Text && value.length == 0))
                continue;
            if (enumeration && m_options.complete) {
                ++report.defaulted[each.field];
                changes = true;
            } else {
                ++report.missing[each.field];
            }
        }
        if (changes)
            table.CompleteRow(oid, *cursor, values, [&](std::vector<rfm_Value>& row) {
                for (Default const& each : defaults) {
                    rfm_Value& value = row[static_cast<std::size_t>(each.column)];
                    if (!each.literal.empty() &&
                        (value.tag == rfm_Value::Null ||
                         (value.tag == rfm_Value::Text && value.length == 0)))
                        value = rfm_Value::OfText(each.literal.data(),
                                                  static_cast<int>(each.literal.size()));
                }
            });
    }
}

// ---- the account -------------------------------------------------------------------------------

void dbc_Upgrade::FinishReport() {
    dbc_UpgradeReport& report = m_converter.Tables().Report();
    for (auto& [typeId, each] : report.classes) {
        // What a row has elsewhere now, it did not lose.
        for (auto const& [field, rows] : each.taken) {
            auto const dropped = each.dropped.find(field);
            if (dropped != each.dropped.end() && (dropped->second -= rows) <= 0)
                each.dropped.erase(dropped);
        }
        for (auto const& [names, rows] : each.renamed) {
            auto const filled = each.filled.find(names.second);
            if (filled != each.filled.end() && (filled->second -= rows) <= 0)
                each.filled.erase(filled);
        }
    }
    for (auto const& [typeId, table] : m_converter.Tables().All()) {
        if (!table->Exists()) continue;
        dbc_ClassReport& each = table->Report();
        rfm_TableMetadata const& layout = table->Storage()->Metadata();
        each.rowsOut = table->Storage()->RowCount();
        if (each.versions.size() > 1 && each.versions.back() != layout.Version())
            each.versions.push_back(layout.Version());
        // What a step filled and a later one dropped, nobody had and nobody has.
        std::erase_if(each.filled, [&](auto const& filled) {
            return layout.Find(cow_String(filled.first.c_str())) < 0 &&
                   layout.Find(cow_String((filled.first + "#OID").c_str())) < 0;
        });
    }
}

namespace {

/// One field of a table that refers to rows.
struct Reference {
    int classColumn;  ///< -1: always the registered class
    int oidColumn;
    unsigned registered;
    dbc_DanglingReport report;
};

std::vector<Reference> ReferencesOf(rfm_TableMetadata const& layout,
                                    cls_ClassRegistrar const& current) {
    std::vector<Reference> references;
    cls_ClassMetadata const* const metadata = current.Find(layout.TypeId());
    for (int i = 0; i < layout.ColumnCount(); ++i) {
        std::string const column(layout.Columns()[static_cast<std::size_t>(i)].name.View());
        if (column == "##BaseClassOID" && current.Find(layout.ParentTypeId()))
            references.push_back(
                {-1, i, layout.ParentTypeId(), {layout.Name().Text(), column, 0, 0}});
        if (column.size() < 5 || column.compare(column.size() - 4, 4, "#OID") != 0) continue;
        std::string const field = column.substr(0, column.size() - 4);
        int const classColumn = layout.Find(cow_String((field + "#ClassID").c_str()));
        if (classColumn < 0) continue;
        unsigned registered = 0;
        if (metadata)
            for (cls_Attribute const& attribute : metadata->Attributes())
                if (attribute.field.Name() == cow_String(field.c_str())) registered = attribute.arg;
        references.push_back({classColumn, i, registered, {layout.Name().Text(), field, 0, 0}});
    }
    return references;
}

/// Which entries are some collection's: those of one that something refers to, in its range.
class EntryOwners {
public:
    EntryOwners(rfm_Table* collections, std::vector<bool> const& reached) : m_reached(reached) {
        if (!collections) return;
        rfm_TableMetadata const& layout = collections->Metadata();
        m_firstColumn = layout.Find("#First");
        m_countColumn = layout.Find("#Count");
        m_cursor = collections->OpenCursor();
    }

    bool Hold(int entry, rfm_Cursor& entries) {
        rfm_Value const owner = entries.Value(0);
        if (owner.tag != rfm_Value::Int || owner.integer < 0 ||
            owner.integer >= static_cast<long long>(m_reached.size()) ||
            !m_reached[static_cast<std::size_t>(owner.integer)])
            return false;
        if (owner.integer != m_owner) {
            m_owner = owner.integer;
            bool const found = m_cursor && m_cursor->Seek(static_cast<int>(m_owner));
            m_first = found ? m_cursor->Value(m_firstColumn).integer : 0;
            m_count = found ? m_cursor->Value(m_countColumn).integer : 0;
        }
        return entry >= m_first && entry - m_first < m_count;
    }

private:
    static_assert(rom_Layout::ListEntryOwner == 0 && rom_Layout::MapEntryOwner == 0);

    std::vector<bool> const& m_reached;
    std::unique_ptr<rfm_Cursor> m_cursor;
    int m_firstColumn = 0, m_countColumn = 0;
    long long m_owner = -1, m_first = 0, m_count = 0;
};

}  // namespace

dbc_References dbc_Upgrade::LookAtReferences(rfm_Database& database,
                                             cls_ClassRegistrar const& current) {
    std::map<unsigned, std::vector<bool>> reached;
    for (rfm_Table* table : database.Tables())
        reached[table->Metadata().TypeId()].resize(static_cast<std::size_t>(table->RowCount()));
    dbc_References result;
    auto const look = [&](rfm_Table* table, EntryOwners* owners) {
        std::vector<Reference> references = ReferencesOf(table->Metadata(), current);
        if (references.empty()) return;
        std::unique_ptr<rfm_Cursor> const cursor = table->OpenCursor();
        for (int oid = 0, rows = table->RowCount(); oid < rows; ++oid) {
            if (!cursor->Seek(oid)) continue;
            if (owners && !owners->Hold(oid, *cursor)) continue;
            for (Reference& each : references) {
                rfm_Value const number = cursor->Value(each.oidColumn);
                if (number.tag != rfm_Value::Int) continue;
                bool const isBase = each.classColumn < 0;
                if (isBase && number.integer < 0) continue;
                rfm_Value const classId = isBase ? rfm_Value() : cursor->Value(each.classColumn);
                auto const target = reached.find(classId.tag == rfm_Value::Int
                                                     ? static_cast<unsigned>(classId.integer)
                                                     : each.registered);
                if (target != reached.end() && number.integer >= 0 &&
                    number.integer < static_cast<long long>(target->second.size()))
                    target->second[static_cast<std::size_t>(number.integer)] = true;
                else if (each.report.rows++ == 0)
                    each.report.firstRow = oid;
            }
        }
        for (Reference const& each : references)
            if (each.report.rows > 0) result.dangling.push_back(each.report);
    };
    for (rfm_Table* table : database.Tables()) {
        unsigned const typeId = table->Metadata().TypeId();
        if (typeId != rom_Layout::listEntryTypeId && typeId != rom_Layout::mapEntryTypeId)
            look(table, nullptr);
    }
    for (auto const& [entryId, ownerId] :
         {std::pair(rom_Layout::listEntryTypeId, unsigned{cls_ListTypeId}),
          std::pair(rom_Layout::mapEntryTypeId, unsigned{cls_MapTypeId})})
        if (rfm_Table* const entries = database.FindTable(entryId)) {
            EntryOwners owners(database.FindTable(ownerId), reached[ownerId]);
            look(entries, &owners);
        }
    for (auto& [typeId, rows] : reached) {
        cls_ClassMetadata const* const metadata = current.Find(typeId);
        if (!metadata || !metadata->HasCtor()) continue;
        dbc_UnreferencedReport report{typeId, metadata->Name().Text(), 0, 0, {}};
        for (std::size_t row = 0; row < rows.size(); ++row)
            if (!rows[row] && report.rows++ == 0) report.firstRow = static_cast<int>(row);
        if (report.rows == 0) continue;
        report.reached = std::move(rows);
        result.unreferenced.push_back(std::move(report));
    }
    return result;
}
