#include "rom_Writer.h"

#include <bit>
#include <cstring>

#include "cls_WriteVisitor.h"
#include "nex_TextException.h"

static_assert(std::endian::native == std::endian::little,
              "arrays are stored little-endian and written as they lie in memory");

namespace {

constexpr char const* writerSource = "platform/ROM/rom_Writer";
constexpr int kInProgress = -2;

[[noreturn]] void Fail(char const* text, cow_String const& name, int line) {
    atr_String message = atr_raw(text);
    message.ReplaceNonTranslated(0, name);
    nex_TextException(message).Throw(writerSource, line);
}

}  // namespace

// ---- tables ----------------------------------------------------------------------------------

int rom_Writer::TableWriter::Attribute(cls_FieldHandle const& field) const {
    if (field.Index() >= 0 && static_cast<std::size_t>(field.Index()) < columnOfField.size()) {
        std::size_t const index = static_cast<std::size_t>(field.Index());
        cow_String const& registered = metadata->Attributes()[index].field.Name();
        if (registered.Text() == field.Name().Text() || registered == field.Name())
            return field.Index();
    }
    // The frame's own fields bear no index.
    if (metadata) {
        for (std::size_t i = 0; i < columnOfField.size(); ++i)
            if (metadata->Attributes()[i].field.Name() == field.Name()) return static_cast<int>(i);
    }
    Fail("A field \"%s\" was written that its class does not have.", field.Name(), 40);
}

rom_Writer::TableWriter& rom_Writer::TableFor(unsigned typeId) {
    TableWriter*& recent = m_recent[typeId & 255];
    if (recent && recent->layout.TypeId() == typeId) return *recent;
    std::unique_ptr<TableWriter>& known = m_tables[typeId];
    if (!known) {
        cls_ClassRegistrar const& registrar = m_transporter.Registrar();
        known = std::make_unique<TableWriter>(rom_Layout::OfType(typeId, registrar));
        bool const collection = typeId == cls_ListTypeId || typeId == cls_MapTypeId ||
                                typeId == rom_Layout::listEntryTypeId ||
                                typeId == rom_Layout::mapEntryTypeId;
        known->metadata = collection ? nullptr : registrar.Find(typeId);
        if (known->metadata) {
            int column = 0;
            for (cls_Attribute const& attribute : known->metadata->Attributes()) {
                known->columnOfField.push_back(column);
                column += attribute.type == cls_AttributeObject ? 2 : 1;
            }
        }
        known->baseColumn = known->layout.Find("##BaseClassOID");
        known->uidColumn = known->layout.Find("##Uid");
    }
    recent = known.get();
    return *known;
}

int rom_Writer::Append(TableWriter& table, rfm_Value const* values) {
    if (!table.table) {
        rfm_Database& database = m_transporter.Database();
        table.table = database.FindTable(table.layout.TypeId());
        if (!table.table) table.table = &database.CreateTable(table.layout);
    }
    return table.table->Append(values);
}

// ---- agents ----------------------------------------------------------------------------------

class rom_Writer::Agent final : public cls_WriteAgent,
                                private cls_WriteListObj,
                                private cls_WriteMapInt2Obj,
                                private cls_WriteMapString2Obj {
public:
    explicit Agent(rom_Writer& writer) : m_writer(writer) {}

    // Where this agent's row is to be referred to from.
    void BeRoot() {
        Reset(Place::Root, nullptr, 0);
        m_level = 1;
    }
    void BeBase(Agent* parent) { Reset(Place::Base, parent, parent->m_table->baseColumn); }
    void BeField(Agent* parent, int column, cls_CollectionType declared, bool byHandle) {
        Reset(Place::Field, parent, column);
        m_declared = declared;
        if (byHandle) ++m_level;
    }
    void BeElement(Agent* parent, int index) {
        Reset(Place::Element, parent, index);
        ++m_level;
    }

    void WriteNull(cls_FieldHandle const& field) override {
        int const column = m_table->Column(field);
        At(column) = rfm_Value();
        At(column + 1) = rfm_Value();
    }
    void WriteString(cls_FieldHandle const& field, cow_String const& value) override {
        m_texts.push_back(value);
        At(m_table->Column(field)) = rfm_Value::OfText(value.Text(), value.Length());
    }
    void WriteLiteral(cls_FieldHandle const& field, char const* literal) override {
        At(m_table->Column(field)) =
            rfm_Value::OfText(literal, static_cast<int>(std::strlen(literal)));
    }
    void WriteDouble(cls_FieldHandle const& field, double const& value) override {
        At(m_table->Column(field)) = rfm_Value::OfDouble(value);
    }
    void WriteInt(cls_FieldHandle const& field, int const& value) override {
        At(m_table->Column(field)) = rfm_Value::OfInt(value);
    }
    void WriteBool(cls_FieldHandle const& field, bool const& value) override {
        At(m_table->Column(field)) = rfm_Value::OfInt(value ? 1 : 0);
    }

    cls_WriteListObj* OpenList(int) override { return this; }
    cls_WriteMapInt2Obj* OpenMapInt() override { return this; }
    cls_WriteMapString2Obj* OpenMapString() override { return this; }

    void WriteList(cow_List<double> const& values) override {
        KeepArray(values, static_cast<int>(sizeof(double)));
    }
    void WriteList(cow_List<int> const& values) override {
        KeepArray(values, static_cast<int>(sizeof(int)));
    }
    void WriteArray(cow_2DArray<double> const& values) override {
        // The array is its object's, which lives until this record is complete.
        At(rom_Layout::ListHandle) =
            rfm_Value::OfBytes(values.Data(), values.Size() * static_cast<int>(sizeof(double)));
        At(rom_Layout::ListColumns) = rfm_Value::OfInt(values.Columns());
        // Rows without columns leave no trace in the data.
        if (values.Columns() == 0 && values.Rows() > 0)
            At(rom_Layout::ListCount) = rfm_Value::OfInt(values.Rows());
    }
    void WriteMap(cow_Map<cow_String, float> const& values) override {
        cow_ConstMapIterator<cow_String, float> position(values);
        for (bool more = position.First(); more; more = position.Next()) {
            Entry& entry = m_entries.emplace_back();
            entry.textKey = position.CurrentKey();
            entry.number = position.CurrentValue();
        }
    }

    int StartWrite(unsigned typeId, cls_Uid const& uid) override {
        if (m_writer.m_failure) std::rethrow_exception(m_writer.m_failure);
        m_table = &m_writer.TableFor(typeId);
        // What could not be read back is not written.
        if (m_level > rom_Transporter::maxDepth)
            Fail("An object of class %s is nested deeper than can be stored.",
                 m_table->layout.Name(), 135);
        m_uid = uid;
        m_values.assign(m_table->layout.Columns().size(), rfm_Value());
        bool isNew;
        int const oid = m_table->written.At(uid, kInProgress, isNew);
        if (!isNew) {
            if (oid == kInProgress)
                Fail("An object of class %s holds itself.", m_table->layout.Name(), 139);
            m_repeatedOid = oid;
            Refer(oid);
            return 0;
        }
        m_started = true;
        if (m_table->baseColumn >= 0) At(m_table->baseColumn) = rfm_Value::OfInt(-1);
        return 1;
    }
    void CheckCollectionType(cls_CollectionType collection) override {
        if (m_declared != collection)
            Fail("A collection was written to a field that holds another kind (%s).",
                 m_parent && m_parent->m_table ? m_parent->m_table->layout.Name() : cow_String(),
                 151);
        m_collection = collection;
    }

    cls_WriteAgent* BaseAgent(unsigned) override {
        Agent* const agent = m_writer.Next();
        agent->BeBase(this);
        return agent;
    }
    cls_WriteAgent* FieldAgent(cls_FieldHandle const& field,
                               cow_HandleBase const* handle) override {
        std::size_t const attribute = static_cast<std::size_t>(m_table->Attribute(field));
        Agent* const agent = m_writer.Next();
        agent->BeField(this, m_table->columnOfField[attribute],
                       m_table->metadata->Attributes()[attribute].collection, handle != nullptr);
        return agent;
    }

    void End() noexcept override {
        bool const complete =
            !m_writer.m_failure && std::uncaught_exceptions() <= m_writer.m_uncaught;
        if (complete && (m_started || m_collection != cls_CollectionNone)) {
            try {
                Complete();
            } catch (...) {
                m_writer.m_failure = std::current_exception();
            }
        }
        --m_writer.m_depth;
    }

private:
    enum class Place { Root, Base, Field, Element };
    struct Entry {
        cow_String textKey;
        int intKey = 0;
        Reference reference;
        float number = 0;
    };

    void Reset(Place place, Agent* parent, int column) {
        m_place = place;
        m_parent = parent;
        m_column = column;
        m_level = parent ? parent->m_level : 0;
        m_table = nullptr;
        m_started = false;
        m_repeatedOid = -1;
        m_declared = cls_CollectionNone;
        m_collection = cls_CollectionNone;
        m_texts.clear();
        m_entries.clear();
    }

    rfm_Value& At(int column) { return m_values[static_cast<std::size_t>(column)]; }

    // Tells whoever refers to this row where it stands.
    void Refer(int oid) {
        unsigned const typeId = m_table->layout.TypeId();
        switch (m_place) {
            case Place::Root:
                m_writer.m_root = {typeId, oid};
                break;
            case Place::Base:
                m_parent->At(m_column) = rfm_Value::OfInt(oid);
                break;
            case Place::Field:
                m_parent->At(m_column) = rfm_Value::OfInt(typeId);
                m_parent->At(m_column + 1) = rfm_Value::OfInt(oid);
                break;
            case Place::Element:
                m_parent->m_entries[static_cast<std::size_t>(m_column)].reference = {typeId, oid};
                break;
        }
    }

    template <class T>
    void KeepArray(cow_List<T> const& values, int width) {
        m_bytes.resize(static_cast<std::size_t>(values.Size()) * static_cast<std::size_t>(width));
        for (int i = 0; i < values.Size(); ++i) {
            T const value = values.UncheckedConstGet(i);
            std::memcpy(m_bytes.data() + i * width, &value, sizeof value);
        }
        At(rom_Layout::ListHandle) = rfm_Value::OfBytes(m_bytes.data(), values.Size() * width);
        At(rom_Layout::ListColumns) = rfm_Value::OfInt(1);
    }

    void Complete() {
        unsigned char uid[cls_Uid::byteCount];
        m_uid.ToBytes(uid);
        At(m_table->uidColumn) = rfm_Value::OfBytes(uid, cls_Uid::byteCount);
        if (m_collection != cls_CollectionNone) {
            bool const map = m_table->layout.TypeId() == cls_MapTypeId;
            At(map ? static_cast<int>(rom_Layout::MapKind)
                   : static_cast<int>(rom_Layout::ListKind)) = rfm_Value::OfInt(m_collection);
            if (m_collection < cls_CollectionListDouble ||
                m_collection == cls_CollectionMapString2Float)
                AppendEntries(map);
        }
        if (m_started) {
            int const oid = m_writer.Append(*m_table, m_values.data());
            bool isNew;
            m_table->written.At(m_uid, oid, isNew) = oid;
            Refer(oid);
        } else {
            m_table->table->Replace(m_repeatedOid, m_values.data());
        }
    }

    void AppendEntries(bool map) {
        TableWriter& entries =
            m_writer.TableFor(map ? rom_Layout::mapEntryTypeId : rom_Layout::listEntryTypeId);
        int const owner =
            m_started ? (m_table->table ? m_table->table->RowCount() : 0) : m_repeatedOid;
        long long const rangeKey = (static_cast<long long>(owner) << 1) | (map ? 1 : 0);
        std::size_t const width = entries.layout.Columns().size();
        rfm_Value row[5];
        if (auto former = m_writer.m_ranges.find(rangeKey); former != m_writer.m_ranges.end()) {
            // What an earlier write left belongs to nobody now.
            for (std::size_t i = 0; i < width; ++i) row[i] = rfm_Value();
            row[0] = rfm_Value::OfInt(-1);
            for (int i = 0; i < former->second.count; ++i)
                entries.table->Replace(former->second.first + i, row);
        }
        int first = 0;
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            Entry const& entry = m_entries[i];
            rfm_Value const reference[2] = {
                entry.reference.oid < 0 ? rfm_Value() : rfm_Value::OfInt(entry.reference.typeId),
                entry.reference.oid < 0 ? rfm_Value() : rfm_Value::OfInt(entry.reference.oid)};
            row[0] = rfm_Value::OfInt(owner);
            if (map) {
                row[rom_Layout::MapEntryKey] =
                    m_collection == cls_CollectionMapInt
                        ? rfm_Value::OfInt(entry.intKey)
                        : rfm_Value::OfText(entry.textKey.Text(), entry.textKey.Length());
                row[rom_Layout::MapEntryClass] = reference[0];
                row[rom_Layout::MapEntryOid] = reference[1];
                row[rom_Layout::MapEntryValue] =
                    m_collection == cls_CollectionMapString2Float
                        ? rfm_Value::OfDouble(static_cast<double>(entry.number))
                        : rfm_Value();
            } else {
                row[rom_Layout::ListEntryClass] = reference[0];
                row[rom_Layout::ListEntryOid] = reference[1];
            }
            int const oid = m_writer.Append(entries, row);
            if (i == 0) first = oid;
        }
        int const count = static_cast<int>(m_entries.size());
        At(map ? static_cast<int>(rom_Layout::MapFirst) : static_cast<int>(rom_Layout::ListFirst)) =
            rfm_Value::OfInt(first);
        At(map ? static_cast<int>(rom_Layout::MapCount) : static_cast<int>(rom_Layout::ListCount)) =
            rfm_Value::OfInt(count);
        if (m_collection != cls_CollectionMapString2Float)
            m_writer.m_ranges[rangeKey] = {first, count};
    }

    // ---- the elements of this agent's collection ----
    bool MustDelete() const override { return false; }
    void WriteNull(unsigned) override { m_entries.emplace_back(); }
    void WriteNull(unsigned, cow_String const& key) override {
        m_entries.emplace_back().textKey = key;
    }
    void WriteNull(unsigned, int key) override { m_entries.emplace_back().intKey = key; }
    cls_WriteAgent* ElementAgent() override {
        m_entries.emplace_back();
        return LastElement();
    }
    cls_WriteAgent* ElementAgent(cow_String const& key) override {
        m_entries.emplace_back().textKey = key;
        return LastElement();
    }
    cls_WriteAgent* ElementAgent(int key) override {
        m_entries.emplace_back().intKey = key;
        return LastElement();
    }
    Agent* LastElement() {
        Agent* const agent = m_writer.Next();
        agent->BeElement(this, static_cast<int>(m_entries.size()) - 1);
        return agent;
    }

    rom_Writer& m_writer;
    Place m_place = Place::Root;
    Agent* m_parent = nullptr;
    int m_level = 0;   // how many objects hold this one, itself included
    int m_column = 0;  // of the reference in the parent's row, or the element's index
    TableWriter* m_table = nullptr;
    cls_Uid m_uid;
    bool m_started = false;
    int m_repeatedOid = -1;
    cls_CollectionType m_declared = cls_CollectionNone;
    cls_CollectionType m_collection = cls_CollectionNone;
    std::vector<rfm_Value> m_values;
    std::vector<cow_String> m_texts;  // keeps text alive until the row is complete
    std::vector<char> m_bytes;
    std::vector<Entry> m_entries;
};

// ---- the writer ------------------------------------------------------------------------------

rom_Writer::rom_Writer(rom_Transporter& transporter)
    : m_transporter(transporter), m_recent(256, nullptr) {}

rom_Writer::~rom_Writer() = default;

rom_Writer::Agent* rom_Writer::Next() {
    if (m_depth == m_agents.size()) m_agents.push_back(std::make_unique<Agent>(*this));
    return m_agents[m_depth++].get();
}

int rom_Writer::Write(void const* object, cls_ClassMetadata const& metadata) {
    m_root = Reference();
    m_failure = nullptr;
    m_depth = 0;
    m_uncaught = std::uncaught_exceptions();
    Agent* const root = Next();
    root->BeRoot();
    {
        cls_WriteVisitor const visitor(root);
        metadata.DBWrite(object, visitor);
    }
    if (m_failure) std::rethrow_exception(m_failure);
    return m_root.oid;
}
