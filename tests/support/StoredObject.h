#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "RecordingWriteAgent.h"
#include "cls_ReadVisitor.h"
#include "cow_ErasedHandle.h"

namespace nga_test {

/// A stored object as a test sets it up, and the lines of what a read constructor asked of it. What
/// is not set is missing from the record.
class StoredObject {
public:
    struct Element {
        std::string key;
        int number = 0;
        std::shared_ptr<cow_ErasedHandle> object;  ///< for a reference
        std::shared_ptr<StoredObject> value;       ///< for an element by value
    };

    /// The visitor over it, which counts as one of its mementos until it goes.
    cls_MementoRead* Memento();
    StoredObject& Field(std::string const& name) {
        std::shared_ptr<StoredObject>& field = fields[name];
        if (!field) field = std::make_shared<StoredObject>();
        return *field;
    }
    /// Refers to an object, which it takes over.
    template <class T>
    void Refer(std::string const& name, T* object) {
        objects[name] = Erased(object);
    }
    template <class T>
    static std::shared_ptr<cow_ErasedHandle> Erased(T* object) {
        return std::make_shared<cow_ErasedHandle>(object, cow_ErasedDestroy<T>);
    }

    std::map<std::string, int> ints;
    std::map<std::string, double> doubles;
    std::map<std::string, bool> bools;
    std::map<std::string, std::string> texts;
    std::map<std::string, std::shared_ptr<StoredObject>> fields;
    std::map<std::string, std::shared_ptr<cow_ErasedHandle>> objects;
    std::vector<Element> elements;
    cow_List<double> doubleList;
    cow_List<int> intList;
    cow_Map<cow_String, float> floats;
    cow_2DArray<double> array{0, 0};
    cls_Uid uid = cls_Uid::AllocateUid();

    std::string lines;
    int liveMementos = 0;
};

class StoredMemento final : public cls_MementoRead {
public:
    explicit StoredMemento(StoredObject& object) : m_object(object) { ++object.liveMementos; }

    void ReadString(cow_String& result, cls_FieldHandle const& field,
                    cow_String const& absent) override {
        Line("text " + NameOf(field) + " or '" + absent.Text() + "'");
        auto const found = m_object.texts.find(field.Name().Text());
        result = found == m_object.texts.end() ? absent : cow_String(found->second.c_str());
    }
    double ReadDouble(cls_FieldHandle const& field, double const& absent) override {
        Line("double " + NameOf(field) + " or " + Number(absent));
        return Get(m_object.doubles, field, absent);
    }
    int ReadInt(cls_FieldHandle const& field, int const& absent) override {
        Line("int " + NameOf(field) + " or " + std::to_string(absent));
        return Get(m_object.ints, field, absent);
    }
    bool ReadBool(cls_FieldHandle const& field, bool const& absent) override {
        Line("bool " + NameOf(field) + " or " + (absent ? "true" : "false"));
        return Get(m_object.bools, field, absent);
    }
    char const* ReadLiteral(cls_FieldHandle const& field) override {
        Line("literal " + NameOf(field));
        auto const found = m_object.texts.find(field.Name().Text());
        return found == m_object.texts.end() ? nullptr : found->second.c_str();
    }
    cow_HandleBase const& ReadObject(cls_FieldHandle const& field, unsigned typeId) override {
        Line("object " + NameOf(field) + " " + Hex(typeId));
        return *Referred(m_object.objects[field.Name().Text()]);
    }
    cls_ReadListObj* OpenList() override;
    cls_ReadMapInt2Obj* OpenMapInt() override;
    cls_ReadMapString2Obj* OpenMapString() override;
    void ReadList(cow_List<double>& result) override { result = m_object.doubleList; }
    void ReadList(cow_List<int>& result) override { result = m_object.intList; }
    void ReadMap(cow_Map<cow_String, float>& result) override { result = m_object.floats; }
    void ReadArray(cow_2DArray<double>& result) override { result = m_object.array; }
    cls_Uid GetUid() override {
        Line("uid");
        return m_object.uid;
    }
    cls_MementoRead* FieldMemento(cls_FieldHandle const& field) override {
        Line("field " + NameOf(field));
        return m_object.Field(field.Name().Text()).Memento();
    }
    void Release() noexcept override {
        --m_object.liveMementos;
        delete this;
    }

    static std::shared_ptr<cow_ErasedHandle> const& Referred(
        std::shared_ptr<cow_ErasedHandle>& object) {
        if (!object) object = std::make_shared<cow_ErasedHandle>(nullptr, [](void*) {});
        return object;
    }

private:
    template <class T>
    static T Get(std::map<std::string, T> const& values, cls_FieldHandle const& field,
                 T const& absent) {
        auto const found = values.find(field.Name().Text());
        return found == values.end() ? absent : found->second;
    }
    void Line(std::string const& line) { m_object.lines += line + "\n"; }

    StoredObject& m_object;
};

inline cls_MementoRead* StoredObject::Memento() { return new StoredMemento(*this); }

/// The reader of any kind of collection, over the elements of one stored object.
template <class Base>
class StoredElements : public Base {
public:
    explicit StoredElements(StoredObject& object) : m_object(object) {}
    ~StoredElements() override { m_object.lines += "reader deleted\n"; }
    bool HasMore() override { return m_next < m_object.elements.size(); }

protected:
    StoredObject::Element& Current() { return m_object.elements[m_next]; }
    cow_HandleBase const& Take(unsigned typeId) {
        m_object.lines += "element " + Hex(typeId) + "\n";
        return *StoredMemento::Referred(m_object.elements[m_next++].object);
    }
    StoredObject& m_object;
    std::size_t m_next = 0;
};

class StoredList final : public StoredElements<cls_ReadListObj> {
public:
    using StoredElements::StoredElements;
    int Size() override { return static_cast<int>(m_object.elements.size()); }
    cow_HandleBase const& NextObject(unsigned typeId) override { return Take(typeId); }
    void ExpectByValue(unsigned) override {}
    cls_MementoRead* NextMemento() override {
        m_object.lines += "element by value\n";
        return m_object.elements[m_next++].value->Memento();
    }
};
class StoredNames final : public StoredElements<cls_ReadMapString2Obj> {
public:
    using StoredElements::StoredElements;
    void Key(cow_String& result) override { result = cow_String(Current().key.c_str()); }
    cow_HandleBase const& Value(unsigned typeId) override { return Take(typeId); }
};
class StoredNumbers final : public StoredElements<cls_ReadMapInt2Obj> {
public:
    using StoredElements::StoredElements;
    int Key() override { return Current().number; }
    cow_HandleBase const& Value(unsigned typeId) override { return Take(typeId); }
};

inline cls_ReadListObj* StoredMemento::OpenList() { return new StoredList(m_object); }
inline cls_ReadMapInt2Obj* StoredMemento::OpenMapInt() { return new StoredNumbers(m_object); }
inline cls_ReadMapString2Obj* StoredMemento::OpenMapString() { return new StoredNames(m_object); }

}  // namespace nga_test
