#pragma once

#include <cstddef>
#include <vector>

#include "mdl_FieldType.h"
#include "mdl_RuleVisitor.h"

class cls_ClassMetadata;
class cls_ClassRegistrar;

/// One described field, as its line in the class states it.
struct mdl_FieldRow {
    char const* name;    ///< schema name: persistent, never changes
    char const* script;  ///< script name
    std::size_t offset;
    mdl_FieldType const* type;
};

/// One field of a description: the row, and the handle under which it is registered.
class mdl_Field {
public:
    mdl_Field(int index, mdl_FieldRow const& row) : m_row(row), m_handle(index, row.name) {}

    char const* Name() const { return m_row.name; }
    char const* Script() const { return m_row.script; }
    mdl_FieldType const& Type() const { return *m_row.type; }
    cls_FieldHandle const& Handle() const { return m_handle; }
    void* At(void* object) const { return static_cast<char*>(object) + m_row.offset; }
    void const* At(void const* object) const {
        return static_cast<char const*>(object) + m_row.offset;
    }

private:
    mdl_FieldRow m_row;
    cls_FieldHandle m_handle;
};

/// What a class says of itself besides its fields.
struct mdl_ClassFacts {
    char const* name;  ///< persistent name
    unsigned typeId;
    int version;              ///< schema number at which the field list last changed
    unsigned parentTypeId;    ///< 1 for a class without a parent
    char const* constructor;  ///< script-side constructor; null for a class that scripts don't know
    std::size_t uidOffset;
    mdl_Description const* base;
    mdl_Module const* module;
    void (*rules)(void const* object, mdl_RuleVisitor& visitor);  ///< null: nothing to ask
    void* (*create)();                                            ///< null for an abstract class
    void* (*copy)(void const* object);
    void (*destroy)(void* object);
};

/// A class, described once: its facts and its table of fields. Everything generic — writing,
/// reading, registration, comparison, text forms, scripts — runs over this.
class mdl_Description {
public:
    mdl_Description(mdl_ClassFacts const& facts, mdl_FieldRow const* rows, int count);
    mdl_Description(mdl_Description const&) = delete;
    mdl_Description& operator=(mdl_Description const&) = delete;

    char const* Name() const { return m_facts.name; }
    unsigned TypeId() const { return m_facts.typeId; }
    int Version() const { return m_facts.version; }
    unsigned ParentTypeId() const { return m_facts.parentTypeId; }
    char const* Constructor() const { return m_facts.constructor; }
    mdl_Description const* Base() const { return m_facts.base; }
    mdl_Module const* Module() const { return m_facts.module; }
    bool IsAbstract() const { return m_facts.create == nullptr; }
    /// The fields of this class alone, in schema order.
    std::vector<mdl_Field> const& Fields() const { return m_fields; }
    /// The field of this class or a base, by its schema or its script name; null if there is none.
    mdl_Field const* FindField(char const* name) const;
    mdl_Field const* FindScript(char const* script) const;
    /// The fields of the bases, outermost first, then those of this class.
    std::vector<mdl_Field const*> AllFields() const;

    cls_Uid& Uid(void* object) const {
        return *reinterpret_cast<cls_Uid*>(static_cast<char*>(object) + m_facts.uidOffset);
    }
    void* Create() const { return m_facts.create(); }
    void* Copy(void const* object) const { return m_facts.copy(object); }
    void Destroy(void* object) const { m_facts.destroy(object); }
    void RunRules(void const* object, mdl_RuleVisitor& visitor) const {
        if (m_facts.rules) m_facts.rules(object, visitor);
    }
    bool HasRules() const { return m_facts.rules != nullptr; }

    /// The fields of this level to the record that \p visitor has started, and from it.
    void WriteFields(void const* object, cls_WriteVisitor const& visitor) const;
    void ReadFields(void* object, cls_ReadVisitor const& visitor) const;
    /// Whether all fields of all levels hold the same content; identities take no part.
    bool Same(void const* a, void const* b) const;

    /// The description of a registered class, by its TypeId; null for a class that has none.
    /// InitializeMetadata enters a class here, and whoever asks runs those that have not run yet.
    static mdl_Description const* Find(unsigned typeId);
    static mdl_Description const* FindByConstructor(char const* constructor);
    static void Enter(mdl_Description const& description);

private:
    mdl_ClassFacts m_facts;
    std::vector<mdl_Field> m_fields;
};

/// Registers a described class: its metadata object, its release function and its attributes.
void mdl_RegisterDescribed(cls_ClassRegistrar& registrar, cls_ClassMetadata* metadata,
                           void (*release)(cow_HandleBase*), mdl_Description const& description);
