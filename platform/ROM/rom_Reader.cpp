#include "rom_Reader.h"

#include <climits>
#include <cstring>
#include <exception>
#include <string>

#include "nex_TextException.h"

namespace {

constexpr char const* readerSource = "platform/ROM/rom_Reader";

[[noreturn]] void Fail(std::string const& text, int line) {
    atr_String message = atr_raw("%s");
    message.ReplaceNonTranslated(0, cow_String(text.c_str()));
    nex_TextException(message).Throw(readerSource, line);
}

char const* TagName(rfm_Value::Tag tag) {
    switch (tag) {
        case rfm_Value::Null:
            return "nothing";
        case rfm_Value::Int:
            return "an integer";
        case rfm_Value::Double:
            return "a real";
        case rfm_Value::Text:
            return "text";
        case rfm_Value::Bytes:
            return "bytes";
    }
    return "";
}

bool IsCollection(unsigned typeId) {
    return typeId == cls_ListTypeId || typeId == cls_MapTypeId ||
           typeId == rom_Layout::listEntryTypeId || typeId == rom_Layout::mapEntryTypeId;
}

}  // namespace

// ---- tables ----------------------------------------------------------------------------------

int rom_Reader::TableReader::Attribute(cls_FieldHandle const& field) const {
    if (!metadata) return -1;
    std::vector<cls_Attribute> const& attributes = metadata->Attributes();
    if (field.Index() >= 0 && static_cast<std::size_t>(field.Index()) < columnOfField.size()) {
        std::size_t const index = static_cast<std::size_t>(field.Index());
        cow_String const& registered = attributes[index].field.Name();
        if (registered.Text() == field.Name().Text() || registered == field.Name())
            return field.Index();
    }
    for (std::size_t i = 0; i < columnOfField.size(); ++i)
        if (attributes[i].field.Name() == field.Name()) return static_cast<int>(i);
    return -1;
}

rom_Reader::TableReader::Entry& rom_Reader::TableReader::ObjectOf(int oid) {
    int const number = oid / 64;
    if (number != lastNumber) {
        std::unique_ptr<Page>& page = pages[number];
        if (!page) page = std::make_unique<Page>();
        lastPage = page.get();
        lastNumber = number;
    }
    return lastPage->entries[oid % 64];
}

std::unique_ptr<rfm_Cursor> rom_Reader::TableReader::Acquire(int oid) {
    if (!table) Fail("A row is referred to in a table that is not there.", 60);
    // The cursor that stands just before the row reads it with one step.
    std::unique_ptr<rfm_Cursor> cursor;
    for (std::size_t i = free.size(); i-- > 0;) {
        if (free[i]->Oid() + 1 != oid && i > 0) continue;
        cursor = std::move(free[i]);
        free.erase(free.begin() + static_cast<std::ptrdiff_t>(i));
        break;
    }
    if (!cursor) {
        free.reserve(static_cast<std::size_t>(cursors) + 1);
        cursor = table->OpenCursor();
        ++cursors;
    }
    if (!cursor->Seek(oid)) {
        Release(std::move(cursor));
        Fail("Row " + std::to_string(oid) + " of table " + name.Text() +
                 " is referred to and does not exist.",
             67);
    }
    return cursor;
}

rom_Reader::TableReader& rom_Reader::TableFor(unsigned typeId) {
    TableReader*& recent = m_recent[typeId & 255];
    if (recent && recent->metadata && recent->metadata->TypeId() == typeId) return *recent;
    std::unique_ptr<TableReader>& known = m_tables[typeId];
    if (!known) {
        auto made = std::make_unique<TableReader>();
        made->table = m_transporter.Database().FindTable(typeId);
        made->metadata = m_transporter.Registrar().Find(typeId);
        if (made->table) {
            rfm_TableMetadata const& layout = made->table->Metadata();
            made->name = layout.Name();
            made->baseColumn = layout.Find("##BaseClassOID");
            made->uidColumn = layout.Find("##Uid");
            if (made->metadata && !IsCollection(typeId)) {
                for (cls_Attribute const& attribute : made->metadata->Attributes())
                    made->columnOfField.push_back(
                        layout.Find(attribute.type == cls_AttributeObject
                                        ? attribute.field.Name() + cow_String("#ClassID")
                                        : attribute.field.Name()));
            }
        }
        known = std::move(made);
    }
    recent = known.get();
    return *known;
}

// ---- mementos --------------------------------------------------------------------------------

class rom_Reader::Memento final : public cls_MementoRead {
public:
    explicit Memento(rom_Reader& reader) : m_reader(reader) {}

    /// \p table null: nothing is stored, and every read gives its default.
    void Start(TableReader* table, int oid) {
        m_table = table;
        m_oid = oid;
        m_base = nullptr;
        if (table) m_cursor = table->Acquire(oid);
    }
    void Release() noexcept override {
        if (m_base) m_base->Release();
        m_base = nullptr;
        if (m_table) m_table->Release(std::move(m_cursor));
        m_table = nullptr;
        m_reader.m_mementos.emplace_back(this);
    }
    int Oid() const { return m_oid; }

    void ReadString(cow_String& result, cls_FieldHandle const& field,
                    cow_String const& absent) override {
        rfm_Value const value = Stored(field, rfm_Value::Text);
        result = value.tag == rfm_Value::Null ? absent : cow_String(value.text, value.length);
    }
    char const* ReadLiteral(cls_FieldHandle const& field) override {
        rfm_Value const value = Stored(field, rfm_Value::Text);
        return value.tag == rfm_Value::Null ? nullptr : value.text;
    }
    double ReadDouble(cls_FieldHandle const& field, double const& absent) override {
        rfm_Value const value = Stored(field, rfm_Value::Double);
        return value.tag == rfm_Value::Null ? absent : value.real;
    }
    int ReadInt(cls_FieldHandle const& field, int const& absent) override {
        rfm_Value const value = Stored(field, rfm_Value::Int);
        if (value.tag == rfm_Value::Null) return absent;
        if (value.integer < INT_MIN || value.integer > INT_MAX)
            Fail(Where(field) + " holds a number beyond 32 bits.", 147);
        return static_cast<int>(value.integer);
    }
    bool ReadBool(cls_FieldHandle const& field, bool const& absent) override {
        rfm_Value const value = Stored(field, rfm_Value::Int);
        if (value.tag == rfm_Value::Null) return absent;
        if (value.integer != 0 && value.integer != 1)
            Fail(Where(field) + " holds a number where a flag (0 or 1) was expected.", 154);
        return value.integer != 0;
    }
    cow_HandleBase const& ReadObject(cls_FieldHandle const& field, unsigned typeId) override {
        rfm_Value stored[2];
        Reference(field, stored);
        if (stored[1].tag == rfm_Value::Null) return m_reader.m_null;
        return m_reader.Referred(stored[0], stored[1], typeId, {this, &field, nullptr});
    }
    cls_MementoRead* FieldMemento(cls_FieldHandle const& field) override {
        rfm_Value stored[2];
        unsigned const expected = Reference(field, stored);
        if (stored[1].tag == rfm_Value::Null) return m_reader.Open(nullptr, -1);
        Origin const where{this, &field, nullptr};
        unsigned const typeId = m_reader.CheckedClass(stored[0], expected, where);
        return m_reader.OpenPart(m_reader.TableFor(typeId), CheckedOid(stored[1], where));
    }

    cls_ReadListObj* OpenList() override;
    cls_ReadMapInt2Obj* OpenMapInt() override;
    cls_ReadMapString2Obj* OpenMapString() override;
    void ReadList(cow_List<double>& result) override {
        // Older databases have lists that were tables: their cells, row after row.
        bool const wasTable =
            m_table && Integer(rom_Layout::ListKind, INT_MAX) == cls_CollectionArray2DDouble;
        rfm_Value const data = Array(
            wasTable ? cls_CollectionArray2DDouble : cls_CollectionListDouble, sizeof(double));
        for (int i = 0; i < data.length / static_cast<int>(sizeof(double)); ++i) {
            double value;
            std::memcpy(&value, static_cast<char const*>(data.bytes) + i * 8, sizeof value);
            result.Append(value);
        }
    }
    void ReadList(cow_List<int>& result) override {
        rfm_Value const data = Array(cls_CollectionListInt, sizeof(int));
        for (int i = 0; i < data.length / static_cast<int>(sizeof(int)); ++i) {
            int value;
            std::memcpy(&value, static_cast<char const*>(data.bytes) + i * 4, sizeof value);
            result.Append(value);
        }
    }
    void ReadArray(cow_2DArray<double>& result) override {
        rfm_Value const data = Array(cls_CollectionArray2DDouble, sizeof(double));
        if (!m_table) return;
        long long const cells = data.length / static_cast<int>(sizeof(double));
        long long const columns = Integer(rom_Layout::ListColumns, INT_MAX);
        long long rows = 0;
        if (columns == 0) {
            if (cells != 0) Fail(Row() + " holds an array without columns that is not empty.", 196);
            rows = Integer(rom_Layout::ListCount, INT_MAX);
        } else {
            if (cells % columns != 0)
                Fail(Row() + " holds an array whose length its columns do not divide.", 200);
            rows = cells / columns;
        }
        cow_2DArray<double> array(static_cast<int>(rows), static_cast<int>(columns));
        if (data.length > 0)
            std::memcpy(array.Get().Data(), data.bytes, static_cast<std::size_t>(data.length));
        result = array;
    }
    void ReadMap(cow_Map<cow_String, float>& result) override;

    cls_Uid GetUid() override {
        rfm_Value const value =
            m_table && m_table->uidColumn >= 0 ? m_cursor->Value(m_table->uidColumn) : rfm_Value();
        if (value.tag == rfm_Value::Null) return cls_Uid::AllocateUid();
        if (value.tag != rfm_Value::Bytes || value.length != cls_Uid::byteCount)
            Fail(Row() + " has an identity that is not 16 bytes.", 217);
        unsigned char bytes[cls_Uid::byteCount];
        std::memcpy(bytes, value.bytes, sizeof bytes);
        return cls_Uid::FromBytes(bytes);
    }

    /// The entry of a map under a key; -1 if it has none.
    int EntryOf(cow_String const& key);

private:
    friend class rom_Reader;

    std::string Row() const {
        return "Row " + std::to_string(m_oid) + " of table " + m_table->name.Text();
    }
    std::string Where(cls_FieldHandle const& field) const {
        return Row() + ", field \"" + field.Name().Text() + "\",";
    }

    // A base's fields stand in the base level's row.
    Memento* Base() {
        if (m_base) return m_base;
        if (!m_table || m_table->baseColumn < 0 || !m_table->metadata) return nullptr;
        rfm_Value const oid = m_cursor->Value(m_table->baseColumn);
        if (oid.tag != rfm_Value::Int || oid.integer < 0 || oid.integer > INT_MAX) return nullptr;
        TableReader& base = m_reader.TableFor(m_table->metadata->ParentTypeId());
        if (!base.table) Fail(Row() + " has a base in a table that is not there.", 243);
        m_base = m_reader.OpenPart(base, static_cast<int>(oid.integer));
        return m_base;
    }

    // The field's value at this level or a base's; null where nothing is stored.
    rfm_Value Stored(cls_FieldHandle const& field, rfm_Value::Tag expected) {
        for (Memento* level = this; level && level->m_table; level = level->Base()) {
            int const attribute = level->m_table->Attribute(field);
            if (attribute < 0) continue;
            int const column = level->ColumnOf(attribute);
            if (column < 0) return rfm_Value();
            rfm_Value const value = level->m_cursor->Value(column);
            if (value.tag != expected && value.tag != rfm_Value::Null)
                Fail(Where(field) + " holds " + TagName(value.tag) + " where " + TagName(expected) +
                         " was expected.",
                     256);
            return value;
        }
        return rfm_Value();
    }
    // The two values of a reference; returns the registered class of the field.
    unsigned Reference(cls_FieldHandle const& field, rfm_Value (&stored)[2]) {
        for (Memento* level = this; level && level->m_table; level = level->Base()) {
            int const attribute = level->m_table->Attribute(field);
            if (attribute < 0) continue;
            int const column = level->ColumnOf(attribute);
            if (column < 0) return 0;
            stored[1] = level->m_cursor->Value(column + 1);
            if (stored[1].tag == rfm_Value::Null) return 0;
            stored[0] = level->m_cursor->Value(column);
            return level->m_table->metadata->Attributes()[static_cast<std::size_t>(attribute)].arg;
        }
        return 0;
    }
    int ColumnOf(int attribute) const {
        return m_table->columnOfField[static_cast<std::size_t>(attribute)];
    }
    long long Integer(int column, long long most) {
        rfm_Value const value = m_cursor->Value(column);
        if (value.tag == rfm_Value::Null) return 0;
        if (value.tag != rfm_Value::Int || value.integer < 0 || value.integer > most)
            Fail(Row() + " has a count that is out of range.", 285);
        return value.integer;
    }
    rfm_Value Array(cls_CollectionType kind, std::size_t width) {
        if (!m_table) return rfm_Value();
        CheckKind(cls_ListTypeId, rom_Layout::ListKind, kind);
        rfm_Value const data = m_cursor->Value(rom_Layout::ListHandle);
        if (data.tag == rfm_Value::Null) return rfm_Value();
        if (data.tag != rfm_Value::Bytes || data.length % static_cast<int>(width) != 0)
            Fail(Row() + " holds an array that is damaged.", 294);
        return data;
    }
    void CheckKind(unsigned typeId, int column, cls_CollectionType kind) {
        if (!m_table->table || m_table->table->Metadata().TypeId() != typeId ||
            Integer(column, INT_MAX) != static_cast<long long>(kind))
            Fail(Row() + " holds another kind of collection than its field.", 300);
    }
    friend class ListReader;
    friend class MapReader;

    rom_Reader& m_reader;
    TableReader* m_table = nullptr;
    int m_oid = -1;
    std::unique_ptr<rfm_Cursor> m_cursor;
    Memento* m_base = nullptr;
};

// ---- collections -----------------------------------------------------------------------------

// The entries that are still to be read.
struct rom_Reader::Range {
    int next = 0;
    int end = 0;
};

class rom_Reader::ListReader final : public cls_ReadListObj {
public:
    explicit ListReader(Memento& memento) : m_reader(memento.m_reader) {
        if (!memento.m_table) return;
        memento.CheckKind(cls_ListTypeId, rom_Layout::ListKind, cls_CollectionList);
        m_owner = memento.m_oid;
        m_entries = &m_reader.TableFor(rom_Layout::listEntryTypeId);
        int const rows = m_entries->table ? m_entries->table->RowCount() : 0;
        m_range.next = static_cast<int>(memento.Integer(rom_Layout::ListFirst, rows));
        m_range.end = m_range.next +
                      static_cast<int>(memento.Integer(rom_Layout::ListCount, rows - m_range.next));
        m_size = m_range.end - m_range.next;
    }
    ~ListReader() override {
        if (m_cursor) m_entries->Release(std::move(m_cursor));
    }
    int Size() override { return m_size; }
    bool HasMore() override { return m_range.next < m_range.end; }
    cow_HandleBase const& NextObject(unsigned typeId) override {
        Step();
        rfm_Value const oid = m_cursor->Value(rom_Layout::ListEntryOid);
        if (oid.tag == rfm_Value::Null) return m_reader.m_null;
        return m_reader.Referred(m_cursor->Value(rom_Layout::ListEntryClass), oid, typeId,
                                 {nullptr, nullptr, "An element of a list"});
    }
    void ExpectByValue(unsigned typeId) override { m_byValue = typeId; }
    cls_MementoRead* NextMemento() override {
        Step();
        rfm_Value const oid = m_cursor->Value(rom_Layout::ListEntryOid);
        if (oid.tag == rfm_Value::Null) return m_reader.Open(nullptr, -1);
        Origin const where{nullptr, nullptr, "An element of a list"};
        unsigned const typeId =
            m_reader.CheckedClass(m_cursor->Value(rom_Layout::ListEntryClass), m_byValue, where);
        return m_reader.OpenPart(m_reader.TableFor(typeId), CheckedOid(oid, where));
    }

private:
    void Step() {
        if (m_cursor) m_entries->Release(std::move(m_cursor));
        m_cursor = m_entries->Acquire(m_range.next++);
        rfm_Value const owner = m_cursor->Value(rom_Layout::ListEntryOwner);
        if (owner.tag != rfm_Value::Int || owner.integer != m_owner)
            Fail("A list takes elements of another one.", 362);
    }

    rom_Reader& m_reader;
    TableReader* m_entries = nullptr;
    std::unique_ptr<rfm_Cursor> m_cursor;
    Range m_range;
    int m_size = 0;
    int m_owner = -1;
    unsigned m_byValue = 0;
};

class rom_Reader::MapReader final : public cls_ReadMapString2Obj, public cls_ReadMapInt2Obj {
public:
    MapReader(Memento& memento, cls_CollectionType kind) : m_reader(memento.m_reader) {
        if (!memento.m_table) return;
        memento.CheckKind(cls_MapTypeId, rom_Layout::MapKind, kind);
        m_owner = memento.m_oid;
        m_entries = &m_reader.TableFor(rom_Layout::mapEntryTypeId);
        int const rows = m_entries->table ? m_entries->table->RowCount() : 0;
        m_range.next = static_cast<int>(memento.Integer(rom_Layout::MapFirst, rows));
        m_range.end = m_range.next +
                      static_cast<int>(memento.Integer(rom_Layout::MapCount, rows - m_range.next));
    }
    ~MapReader() override {
        if (m_cursor) m_entries->Release(std::move(m_cursor));
    }
    bool HasMore() override { return m_range.next < m_range.end; }
    void Key(cow_String& result) override {
        rfm_Value const key = At(rom_Layout::MapEntryKey);
        if (key.tag != rfm_Value::Text) Fail("A map by text has a key that is no text.", 392);
        result = cow_String(key.text, key.length);
    }
    int Key() override {
        rfm_Value const key = At(rom_Layout::MapEntryKey);
        if (key.tag != rfm_Value::Int || key.integer < INT_MIN || key.integer > INT_MAX)
            Fail("A map by integers has a key that is no integer.", 398);
        return static_cast<int>(key.integer);
    }
    float Number() {
        rfm_Value const number = At(rom_Layout::MapEntryValue);
        if (number.tag != rfm_Value::Double) Fail("A map of numbers lacks a number.", 403);
        ++m_range.next;
        return static_cast<float>(number.real);
    }
    cow_HandleBase const& Value(unsigned typeId) override {
        rfm_Value const oid = At(rom_Layout::MapEntryOid);
        rfm_Value const classId = m_cursor->Value(rom_Layout::MapEntryClass);
        ++m_range.next;
        if (oid.tag == rfm_Value::Null) return m_reader.m_null;
        return m_reader.Referred(classId, oid, typeId, {nullptr, nullptr, "An element of a map"});
    }

private:
    rfm_Value At(int column) {
        if (!m_cursor || m_cursor->Oid() != m_range.next) {
            if (m_cursor) m_entries->Release(std::move(m_cursor));
            m_cursor = m_entries->Acquire(m_range.next);
            rfm_Value const owner = m_cursor->Value(rom_Layout::MapEntryOwner);
            if (owner.tag != rfm_Value::Int || owner.integer != m_owner)
                Fail("A map takes elements of another one.", 422);
        }
        return m_cursor->Value(column);
    }

    rom_Reader& m_reader;
    TableReader* m_entries = nullptr;
    std::unique_ptr<rfm_Cursor> m_cursor;
    Range m_range;
    int m_owner = -1;
};

cls_ReadListObj* rom_Reader::Memento::OpenList() { return new ListReader(*this); }
cls_ReadMapInt2Obj* rom_Reader::Memento::OpenMapInt() {
    return new MapReader(*this, cls_CollectionMapInt);
}
cls_ReadMapString2Obj* rom_Reader::Memento::OpenMapString() {
    return new MapReader(*this, cls_CollectionMapString);
}

void rom_Reader::Memento::ReadMap(cow_Map<cow_String, float>& result) {
    MapReader reader(*this, cls_CollectionMapString2Float);
    while (reader.HasMore()) {
        cow_String key;
        reader.Key(key);
        result.Insert(key, reader.Number());
    }
}

int rom_Reader::Memento::EntryOf(cow_String const& key) {
    CheckKind(cls_MapTypeId, rom_Layout::MapKind, cls_CollectionMapString);
    TableReader& entries = m_reader.TableFor(rom_Layout::mapEntryTypeId);
    if (!entries.table) return -1;
    return entries.table->FindRow(rom_Layout::MapEntryOwner, m_oid, rom_Layout::MapEntryKey, key);
}

// ---- the reader ------------------------------------------------------------------------------

rom_Reader::rom_Reader(rom_Transporter& transporter)
    : m_transporter(transporter), m_recent(256, nullptr), m_null(nullptr, [](void*) {}) {}

rom_Reader::~rom_Reader() = default;

rom_Reader::Memento* rom_Reader::Open(TableReader* table, int oid) {
    if (m_mementos.empty()) {
        m_mementos.reserve(++m_mementosMade);
        m_mementos.push_back(std::make_unique<Memento>(*this));
    }
    Memento* const memento = m_mementos.back().get();
    memento->Start(table, oid);
    m_mementos.back().release();
    m_mementos.pop_back();
    return memento;
}

rom_Reader::Memento* rom_Reader::OpenPart(TableReader& table, int oid) {
    // Only of a row that is there: a damaged number may be any.
    Memento* const memento = Open(&table, oid);
    try {
        table.NoteReferred(oid);
    } catch (...) {
        memento->Release();
        throw;
    }
    return memento;
}

unsigned rom_Reader::CheckedClass(rfm_Value const& stored, unsigned expected, Origin const& where) {
    // A reference whose class has no value refers to the field's registered class.
    if (stored.tag == rfm_Value::Null) return expected;
    if (stored.tag != rfm_Value::Int || stored.integer < 0 || stored.integer > UINT_MAX)
        Fail(TextOf(where) + " refers to no class.", 477);
    unsigned const typeId = static_cast<unsigned>(stored.integer);
    if (!m_transporter.Registrar().IsParent(typeId, expected))
        Fail(TextOf(where) + " refers to an object of a class that it cannot hold.", 481);
    return typeId;
}

cow_HandleBase const& rom_Reader::Referred(rfm_Value const& typeId, rfm_Value const& oid,
                                           unsigned expected, Origin const& where) {
    unsigned const classId = CheckedClass(typeId, expected, where);
    int const row = CheckedOid(oid, where);
    cow_HandleBase const& object = Object(classId, row);
    TableFor(classId).NoteReferred(row);
    return object;
}

int rom_Reader::CheckedOid(rfm_Value const& stored, Origin const& where) {
    if (stored.tag != rfm_Value::Int || stored.integer < 0 || stored.integer > INT_MAX)
        Fail(TextOf(where) + " refers to no row number.", 489);
    return static_cast<int>(stored.integer);
}

std::string rom_Reader::TextOf(Origin const& where) {
    return where.memento ? where.memento->Where(*where.field) : where.text;
}

cow_HandleBase const& rom_Reader::Object(unsigned typeId, int oid) {
    TableReader& table = TableFor(typeId);
    if (!table.table || !table.metadata || !table.metadata->HasCtor()) {
        cow_String const name =
            table.metadata ? table.metadata->Name() : cow_String(static_cast<int>(typeId));
        Fail(std::string("An object of class ") + name.Text() +
                 " is referred to, and the store has no table of it.",
             500);
    }
    TableReader::Entry& entry = table.ObjectOf(oid);
    if (entry.handle) return *entry.handle;
    if (entry.reading)
        Fail("Row " + std::to_string(oid) + " of table " + table.name.Text() +
                 " is part of a circle of references.",
             507);
    if (m_depth >= rom_Transporter::maxDepth)
        Fail("Row " + std::to_string(oid) + " of table " + table.name.Text() +
                 " is nested deeper than " + std::to_string(rom_Transporter::maxDepth) + " levels.",
             512);
    // On every way out; a failure notes the place, innermost first.
    struct Reading {
        rom_Reader& reader;
        TableReader& table;
        TableReader::Entry& entry;
        int oid;
        int uncaught = std::uncaught_exceptions();
        ~Reading() {
            entry.reading = false;
            --reader.m_depth;
            if (std::uncaught_exceptions() > uncaught) reader.NoteFailure(table, oid);
        }
    };
    ++m_depth;
    Reading const reading{*this, table, entry, oid};
    entry.reading = true;
    cls_ReadVisitor const visitor(Open(&table, oid));
    // The handle owns the object also where it cannot be made.
    entry.handle.emplace(table.metadata->Ctor(visitor), table.metadata->Destroyer());
    return *entry.handle;
}

std::vector<rom_Transporter::Unreferenced> rom_Reader::Unreferenced() {
    std::vector<rom_Transporter::Unreferenced> found;
    for (rfm_Table* stored : m_transporter.Database().Tables()) {
        unsigned const typeId = stored->Metadata().TypeId();
        TableReader& table = TableFor(typeId);
        if (!table.metadata || !table.metadata->HasCtor() || IsCollection(typeId)) continue;
        for (int oid = 0, rows = stored->RowCount(); oid < rows; ++oid)
            if (!table.IsReferred(oid) && !table.IsRead(oid))
                found.push_back({typeId, oid, std::nullopt, std::string()});
    }
    for (rom_Transporter::Unreferenced& each : found) {
        m_failedAt.clear();
        try {
            each.object.emplace(
                static_cast<cow_ErasedHandle const&>(Object(each.typeId, each.oid)));
        } catch (nex_Exception const& failure) {
            // What the frame raises names its place itself.
            std::string const text(failure.AsString().View());
            std::string const place = "row " + std::to_string(each.oid) + " of table " +
                                      TableFor(each.typeId).name.Text();
            each.failure = place + ": ";
            if (m_failedAt != place && text.find("table ") == std::string::npos)
                each.failure += m_failedAt + ": ";
            each.failure += text;
        }
    }
    m_failedAt.clear();
    // Reading one may have come to another that was listed before it.
    std::erase_if(found, [&](rom_Transporter::Unreferenced const& each) {
        return TableFor(each.typeId).IsReferred(each.oid);
    });
    return found;
}

void rom_Reader::NoteFailure(TableReader const& table, int oid) noexcept {
    if (!m_failedAt.empty()) return;
    try {
        m_failedAt = "row " + std::to_string(oid) + " of table " + table.name.Text();
    } catch (...) {
        // Without memory the failure stands without its place.
    }
}

cow_HandleBase const& rom_Reader::MapElement(unsigned typeId, int oid, cow_String const& field,
                                             cow_String const& key, unsigned elementTypeId) {
    TableReader& owner = TableFor(typeId);
    if (!owner.table) return m_null;
    cls_ReadVisitor const visitor(Open(&owner, oid));
    // The frame's own maps are fields without a number.
    cls_ReadVisitor const map(visitor, cls_FieldHandle(-1, field));
    auto& memento = static_cast<Memento&>(map.Memento());
    if (memento.Oid() < 0) return m_null;
    int const row = memento.EntryOf(key);
    if (row < 0) return m_null;
    TableReader& entries = TableFor(rom_Layout::mapEntryTypeId);
    std::unique_ptr<rfm_Cursor> cursor = entries.Acquire(row);
    rfm_Value const classId = cursor->Value(rom_Layout::MapEntryClass);
    rfm_Value const elementOid = cursor->Value(rom_Layout::MapEntryOid);
    entries.Release(std::move(cursor));
    if (elementOid.tag == rfm_Value::Null) return m_null;
    return Referred(classId, elementOid, elementTypeId, {nullptr, nullptr, "An element of a map"});
}
