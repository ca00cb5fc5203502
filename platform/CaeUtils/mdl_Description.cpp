#include "mdl_Description.h"

#include <cstring>
#include <map>

#include "cls_MetadataRegistrar.h"
#include "mdl_Interruption.h"
#include "omi_Singleton.h"

mdl_Description::mdl_Description(mdl_ClassFacts const& facts, mdl_FieldRow const* rows, int count)
    : m_facts(facts) {
    m_fields.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) m_fields.emplace_back(i, rows[i]);
}

mdl_Field const* mdl_Description::FindField(char const* name) const {
    for (mdl_Field const& field : m_fields)
        if (std::strcmp(field.Name(), name) == 0) return &field;
    return m_facts.base ? m_facts.base->FindField(name) : nullptr;
}

mdl_Field const* mdl_Description::FindScript(char const* script) const {
    for (mdl_Field const& field : m_fields)
        if (std::strcmp(field.Script(), script) == 0) return &field;
    return m_facts.base ? m_facts.base->FindScript(script) : nullptr;
}

std::vector<mdl_Field const*> mdl_Description::AllFields() const {
    std::vector<mdl_Field const*> fields;
    if (m_facts.base) fields = m_facts.base->AllFields();
    for (mdl_Field const& field : m_fields) fields.push_back(&field);
    return fields;
}

void mdl_Description::WriteFields(void const* object, cls_WriteVisitor const& visitor) const {
    mdl_Interruption::Poll();
    for (mdl_Field const& field : m_fields)
        field.Type().Write(field.At(object), visitor, field.Handle());
}

void mdl_Description::ReadFields(void* object, cls_ReadVisitor const& visitor) const {
    mdl_Interruption::Poll();
    for (mdl_Field const& field : m_fields)
        field.Type().Read(field.At(object), visitor, field.Handle());
}

bool mdl_Description::Same(void const* a, void const* b) const {
    if (a == b) return true;
    if (m_facts.base && !m_facts.base->Same(a, b)) return false;
    for (mdl_Field const& field : m_fields)
        if (!field.Type().Same(field.At(a), field.At(b))) return false;
    return true;
}

namespace {

// Entered as a metadata domain runs the functions of its classes.
std::map<unsigned, mdl_Description const*>& Directory() {
    static std::map<unsigned, mdl_Description const*> directory;
    return directory;
}

// A domain runs its functions when somebody first asks for it, so that nothing may have entered
// yet. Costs three comparisons once all have run.
void EnterRegistered() {
    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    for (cls_MetadataDomain domain : {cls_DomainMemory, cls_DomainLibrary, cls_DomainDatabase})
        registrar.Domain(domain);
}

}  // namespace

mdl_Description const* mdl_Description::Find(unsigned typeId) {
    auto found = Directory().find(typeId);
    if (found == Directory().end()) {
        EnterRegistered();
        found = Directory().find(typeId);
    }
    return found == Directory().end() ? nullptr : found->second;
}

mdl_Description const* mdl_Description::FindByConstructor(char const* constructor) {
    EnterRegistered();
    for (auto const& [typeId, description] : Directory())
        if (description->Constructor() && std::strcmp(description->Constructor(), constructor) == 0)
            return description;
    return nullptr;
}

void mdl_Description::Enter(mdl_Description const& description) {
    Directory()[description.TypeId()] = &description;
}

void mdl_RegisterDescribed(cls_ClassRegistrar& registrar, cls_ClassMetadata* metadata,
                           void (*release)(cow_HandleBase*), mdl_Description const& description) {
    mdl_Description::Enter(description);
    cls_ClassMetadata& registered = registrar.AddClassMD(metadata).AddDtor(release);
    for (mdl_Field const& field : description.Fields())
        registered.AddAttribute(field.Handle(), field.Type().Code(), field.Type().Arg(),
                                field.Type().Collection());
}
