#include "cls_ClassMetadata.h"

#include "cls_ReadVisitor.h"

cls_ClassMetadata::cls_ClassMetadata(cow_String const& name, unsigned typeId, int version,
                                     Constructor constructor, unsigned parentTypeId)
    : m_name(name),
      m_typeId(typeId),
      m_version(version),
      m_constructor(constructor),
      m_parentTypeId(parentTypeId) {}

cls_ClassMetadata::~cls_ClassMetadata() = default;

void cls_ClassMetadata::DBWrite(void const* object, cls_WriteVisitor const& visitor) const {
    if (m_write) m_write(object, visitor);
}

void cls_ClassMetadata::DeleteObject(void const* object) const {
    if (object && m_destroy) m_destroy(const_cast<void*>(object));
}

void (*cls_ClassMetadata::Destroyer() const)(void*) {
    return m_destroy ? m_destroy : [](void*) {};
}

void cls_ClassMetadata::DeleteCow(cow_HandleBase* handle) const {
    if (m_release) m_release(handle);
}

void* cls_ClassMetadata::Ctor(cls_ReadVisitor const& visitor) const {
    if (!m_constructor) return nullptr;
    cls_ReadVisitor own(visitor);
    return m_constructor(own);
}

bool cls_ClassMetadata::HasCtor() const { return m_constructor != nullptr; }

cls_ClassMetadata& cls_ClassMetadata::AddDtor(void (*release)(cow_HandleBase*)) {
    m_release = release;
    return *this;
}

cls_ClassMetadata& cls_ClassMetadata::AddAttribute(cls_FieldHandle const& field,
                                                   cls_AttributeType type, unsigned arg,
                                                   cls_CollectionType collection) {
    m_attributes.push_back({field, type, arg, collection});
    return *this;
}

cls_ClassMetadata& cls_ClassMetadata::AddTableExtentQuantum(int quantum) {
    m_quantum = quantum;
    return *this;
}

cls_ClassMetadata& cls_ClassMetadata::AddOperations(void (*write)(void const*,
                                                                  cls_WriteVisitor const&),
                                                    void (*destroy)(void*)) {
    m_write = write;
    m_destroy = destroy;
    return *this;
}

bool operator==(cls_ClassMetadata const& a, cls_ClassMetadata const& b) {
    if (a.Name() != b.Name() || a.TypeId() != b.TypeId() || a.Version() != b.Version() ||
        a.ParentTypeId() != b.ParentTypeId() || a.TableExtentQuantum() != b.TableExtentQuantum() ||
        a.Attributes().size() != b.Attributes().size())
        return false;
    for (std::size_t i = 0; i < a.Attributes().size(); ++i) {
        cls_Attribute const& x = a.Attributes()[i];
        cls_Attribute const& y = b.Attributes()[i];
        if (x.field.Index() != y.field.Index() || x.field.Name() != y.field.Name() ||
            x.type != y.type || x.arg != y.arg || x.collection != y.collection)
            return false;
    }
    return true;
}
