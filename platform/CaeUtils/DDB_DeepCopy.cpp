#include "DDB_DeepCopy.h"

#include <deque>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <variant>

#include "cls_MetadataRegistrar.h"
#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "cow_ErasedHandle.h"
#include "nex_TextException.h"
#include "omi_Singleton.h"

// Agents over records in memory: an object is written into a tree of records, one for each class
// level and each object reached, and read back from it. Nothing is recognised by its identity, so
// sharing is undone on the way in; and reading hands out new identities.

namespace {

struct Record;
using RecordPtr = std::unique_ptr<Record>;

struct Element {
    cow_String textKey;
    int intKey = 0;
    RecordPtr object;  // null for an element without a value
};

// What a field may hold. Values of collections of plain values stay in their own containers, which
// are shared only until the copy is detached below.
struct Record {
    unsigned typeId = 0;
    std::map<std::string, std::variant<int, double, bool, cow_String, char const*>> values;
    std::map<std::string, RecordPtr> objects;
    RecordPtr base;
    std::deque<Element> elements;  // growing moves none: an element is written where it stands
    cow_List<double> doubles;
    cow_List<int> ints;
    cow_Map<cow_String, float> floats;
    cow_2DArray<double> array{0, 0};
};

constexpr char const* deepCopySource = "platform/CaeUtils/DDB_DeepCopy";

[[noreturn]] void Fail(char const* message, int line) {
    nex_TextException(atr_raw(message)).Throw(deepCopySource, line);
}

// ---- writing ---------------------------------------------------------------------------------

class MemoryWriteAgent final : public cls_WriteAgent {
public:
    explicit MemoryWriteAgent(RecordPtr& slot) : m_slot(slot) {}

    void WriteNull(cls_FieldHandle const& field) override {
        m_slot->objects[field.Name().Text()] = nullptr;
    }
    void WriteString(cls_FieldHandle const& field, cow_String const& value) override {
        // The text is made anew: a deep copy shares no buffer with its source.
        m_slot->values[field.Name().Text()] = cow_String(value.Text(), value.Length());
    }
    void WriteLiteral(cls_FieldHandle const& field, char const* literal) override {
        m_slot->values[field.Name().Text()] = literal;
    }
    void WriteDouble(cls_FieldHandle const& field, double const& value) override {
        m_slot->values[field.Name().Text()] = value;
    }
    void WriteInt(cls_FieldHandle const& field, int const& value) override {
        m_slot->values[field.Name().Text()] = value;
    }
    void WriteBool(cls_FieldHandle const& field, bool const& value) override {
        m_slot->values[field.Name().Text()] = value;
    }
    cls_WriteListObj* OpenList(int) override;
    cls_WriteMapInt2Obj* OpenMapInt() override;
    cls_WriteMapString2Obj* OpenMapString() override;

    void WriteList(cow_List<double> const& values) override {
        for (int i = 0; i < values.Size(); ++i) m_slot->doubles.Append(values.UncheckedConstGet(i));
    }
    void WriteList(cow_List<int> const& values) override {
        for (int i = 0; i < values.Size(); ++i) m_slot->ints.Append(values.UncheckedConstGet(i));
    }
    void WriteMap(cow_Map<cow_String, float> const& values) override {
        cow_ConstMapIterator<cow_String, float> position(values);
        for (position.First(); !position.IsDone(); position.Next())
            m_slot->floats.Insert(
                cow_String(position.CurrentKey().Text(), position.CurrentKey().Length()),
                position.CurrentValue());
    }
    void WriteArray(cow_2DArray<double> const& values) override {
        cow_2DArray<double> copy(values.Rows(), values.Columns());
        for (int row = 0; row < values.Rows(); ++row)
            for (int column = 0; column < values.Columns(); ++column)
                copy.Get().Cell(row, column) = values.ConstGet().Cell(row, column);
        m_slot->array = copy;
    }

    int StartWrite(unsigned typeId, cls_Uid const&) override {
        m_slot = std::make_unique<Record>();
        m_slot->typeId = typeId;
        return 1;
    }
    void CheckCollectionType(cls_CollectionType) override {}
    cls_WriteAgent* BaseAgent(unsigned) override { return new MemoryWriteAgent(m_slot->base); }
    cls_WriteAgent* FieldAgent(cls_FieldHandle const& field, cow_HandleBase const*) override {
        return new MemoryWriteAgent(m_slot->objects[field.Name().Text()]);
    }
    void End() noexcept override { delete this; }

private:
    RecordPtr& m_slot;
};

template <class Base, class... Key>
class CollectionWriter : public Base {
public:
    explicit CollectionWriter(std::deque<Element>& elements) : m_elements(elements) {}
    bool MustDelete() const override { return true; }
    void WriteNull(unsigned, Key... key) override { Add(key...); }
    cls_WriteAgent* ElementAgent(Key... key) override {
        return new MemoryWriteAgent(Add(key...).object);
    }

private:
    Element& Add() { return m_elements.emplace_back(); }
    Element& Add(cow_String const& key) {
        Element& element = m_elements.emplace_back();
        element.textKey = cow_String(key.Text(), key.Length());
        return element;
    }
    Element& Add(int key) {
        Element& element = m_elements.emplace_back();
        element.intKey = key;
        return element;
    }

    std::deque<Element>& m_elements;
};

cls_WriteListObj* MemoryWriteAgent::OpenList(int) {
    return new CollectionWriter<cls_WriteListObj>(m_slot->elements);
}
cls_WriteMapInt2Obj* MemoryWriteAgent::OpenMapInt() {
    return new CollectionWriter<cls_WriteMapInt2Obj, int>(m_slot->elements);
}
cls_WriteMapString2Obj* MemoryWriteAgent::OpenMapString() {
    return new CollectionWriter<cls_WriteMapString2Obj, cow_String const&>(m_slot->elements);
}

// ---- reading ---------------------------------------------------------------------------------

// Keeps the handles that read objects are shared from until the copy is complete.
struct Reading {
    cls_ClassRegistrar const& registrar;
    std::list<cow_ErasedHandle> handles;

    cow_HandleBase const& Object(Record* record);
};

class MemoryMemento final : public cls_MementoRead {
public:
    MemoryMemento(Reading& reading, Record* record) : m_reading(reading), m_record(record) {}

    void ReadString(cow_String& result, cls_FieldHandle const& field,
                    cow_String const& absent) override {
        auto const* value = Find<cow_String>(field);
        result = value ? *value : absent;
    }
    double ReadDouble(cls_FieldHandle const& field, double const& absent) override {
        auto const* value = Find<double>(field);
        return value ? *value : absent;
    }
    int ReadInt(cls_FieldHandle const& field, int const& absent) override {
        auto const* value = Find<int>(field);
        return value ? *value : absent;
    }
    bool ReadBool(cls_FieldHandle const& field, bool const& absent) override {
        auto const* value = Find<bool>(field);
        return value ? *value : absent;
    }
    char const* ReadLiteral(cls_FieldHandle const& field) override {
        if (auto const* literal = Find<char const*>(field)) return *literal;
        auto const* text = Find<cow_String>(field);
        return text ? text->Text() : nullptr;
    }
    cow_HandleBase const& ReadObject(cls_FieldHandle const& field, unsigned) override {
        return m_reading.Object(Child(field));
    }
    cls_ReadListObj* OpenList() override;
    cls_ReadMapInt2Obj* OpenMapInt() override;
    cls_ReadMapString2Obj* OpenMapString() override;
    void ReadList(cow_List<double>& result) override {
        if (m_record) result = m_record->doubles;
    }
    void ReadList(cow_List<int>& result) override {
        if (m_record) result = m_record->ints;
    }
    void ReadMap(cow_Map<cow_String, float>& result) override {
        if (m_record) result = m_record->floats;
    }
    void ReadArray(cow_2DArray<double>& result) override {
        if (m_record) result = m_record->array;
    }
    cls_Uid GetUid() override { return cls_Uid::AllocateUid(); }
    cls_MementoRead* FieldMemento(cls_FieldHandle const& field) override {
        return new MemoryMemento(m_reading, Child(field));
    }
    void Release() noexcept override { delete this; }

private:
    // A base's fields stand in the base level's record.
    template <class T>
    T const* Find(cls_FieldHandle const& field) const {
        for (Record const* level = m_record; level; level = level->base.get()) {
            auto found = level->values.find(field.Name().Text());
            if (found != level->values.end()) return std::get_if<T>(&found->second);
        }
        return nullptr;
    }
    Record* Child(cls_FieldHandle const& field) const {
        for (Record const* level = m_record; level; level = level->base.get()) {
            auto found = level->objects.find(field.Name().Text());
            if (found != level->objects.end()) return found->second.get();
        }
        return nullptr;
    }

    Reading& m_reading;
    Record* m_record;
};

cow_HandleBase const& Reading::Object(Record* record) {
    if (!record) return handles.emplace_back(nullptr, [](void*) {});
    cls_ClassMetadata const* metadata = registrar.Find(record->typeId);
    if (!metadata || !metadata->HasCtor())
        Fail("A class that cannot be rebuilt in memory stands in a deep copy.", __LINE__);
    cls_ReadVisitor const visitor(new MemoryMemento(*this, record));
    // The handle owns the object before the list makes room for it.
    cow_ErasedHandle const fresh(metadata->Ctor(visitor), metadata->Destroyer());
    return handles.emplace_back(fresh);
}

template <class Base>
class ElementReader : public Base {
public:
    ElementReader(Reading& reading, Record* record) : m_reading(reading), m_record(record) {}
    bool HasMore() override { return m_record && m_next < m_record->elements.size(); }

protected:
    Element& Current() { return m_record->elements[m_next]; }
    Reading& m_reading;
    Record* m_record;
    std::size_t m_next = 0;
};

class ListReader final : public ElementReader<cls_ReadListObj> {
public:
    using ElementReader::ElementReader;
    int Size() override { return m_record ? static_cast<int>(m_record->elements.size()) : 0; }
    cow_HandleBase const& NextObject(unsigned) override {
        return m_reading.Object(m_record->elements[m_next++].object.get());
    }
    void ExpectByValue(unsigned) override {}
    cls_MementoRead* NextMemento() override {
        return new MemoryMemento(m_reading, m_record->elements[m_next++].object.get());
    }
};

class StringMapReader final : public ElementReader<cls_ReadMapString2Obj> {
public:
    using ElementReader::ElementReader;
    void Key(cow_String& result) override { result = Current().textKey; }
    cow_HandleBase const& Value(unsigned) override {
        return m_reading.Object(m_record->elements[m_next++].object.get());
    }
};

class IntMapReader final : public ElementReader<cls_ReadMapInt2Obj> {
public:
    using ElementReader::ElementReader;
    int Key() override { return Current().intKey; }
    cow_HandleBase const& Value(unsigned) override {
        return m_reading.Object(m_record->elements[m_next++].object.get());
    }
};

cls_ReadListObj* MemoryMemento::OpenList() { return new ListReader(m_reading, m_record); }
cls_ReadMapInt2Obj* MemoryMemento::OpenMapInt() { return new IntMapReader(m_reading, m_record); }
cls_ReadMapString2Obj* MemoryMemento::OpenMapString() {
    return new StringMapReader(m_reading, m_record);
}

}  // namespace

void* DDB_DeepCopyErased(void const* object, unsigned typeId) {
    if (!object) return nullptr;
    cls_ClassRegistrar const& registrar =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainMemory);
    cls_ClassMetadata const* metadata = registrar.Find(typeId);
    if (!metadata || !metadata->HasCtor())
        Fail("A class that cannot be rebuilt in memory was asked for a deep copy.", __LINE__);
    RecordPtr record;
    {
        cls_WriteVisitor visitor(new MemoryWriteAgent(record));
        metadata->DBWrite(object, visitor);
    }
    Reading reading{registrar, {}};
    cls_ReadVisitor const visitor(new MemoryMemento(reading, record.get()));
    return metadata->Ctor(visitor);
}
