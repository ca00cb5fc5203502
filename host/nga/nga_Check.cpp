#include "nga_Check.h"

#include <set>

#include "cls_xp.h"
#include "mdl_Interruption.h"
#include "nex_Exception.h"
#include "nga_Budget.h"
#include "nga_Names.h"
#include "nga_Path.h"

namespace nga {

namespace {

/// For a walk over everything that the document holds.
Budget BudgetOf(Document const& document) {
    int named = 0;
    for (Collection const* collection : Collection::All())
        named += collection->Size(document.Model());
    return Budget(named);
}

/// Records instead of raising. One for each object on the way down; it knows by which member its
/// owner holds it, and that is spelled out as a path only where something failed.
class Recorder final : public mdl_RuleVisitor {
public:
    /// What a collection holds under a name.
    Recorder(std::vector<Finding>& findings, Budget& budget, CheckDepth depth,
             mdl_Description const& description, void const* object, std::string const& path)
        : m_findings(findings),
          m_budget(budget),
          m_depth(depth),
          m_description(description),
          m_object(object),
          m_path(path) {}
    /// What a member of the owner holds.
    Recorder(Recorder const& owner, bool note, mdl_Description const& description,
             void const* object, void const* member, int index)
        : m_findings(owner.m_findings),
          m_budget(owner.m_budget),
          m_depth(owner.m_depth),
          m_note(note),
          m_description(description),
          m_object(object),
          m_owner(&owner),
          m_member(member),
          m_index(index) {}

    void Run() {
        mdl_Interruption::Poll();
        try {
            m_description.RunRules(m_object, *this);
        } catch (nex_Exception const& failure) {
            Add(failure);
        }
        if (m_depth == CheckDepth::All) RunUnasked();
    }

protected:
    void Failed(int code) override {
        mdl_Module const& module = *m_description.Module();
        Add(module.prefix, code, module.errorText(code));
    }
    void FailedContent(int code, cow_String const& content) override {
        mdl_Module const& module = *m_description.Module();
        Add(std::string(module.prefix) + " content", code, module.contentText(code, content));
    }

    void Element(void const* member, int index, ElementRules rules, void const* context) override {
        // The codes are the owner's, the place is the element's.
        Recorder inner(*this, m_note, m_description, m_object, member, index);
        rules(context, inner);
    }

    void Object(void const* member, int index, void const* object, mdl_Asked how) override {
        m_budget.Spend();
        mdl_Description const* description = mdl_Description::Find(how.dynTypeId(object));
        if (m_depth == CheckDepth::All) m_asked.emplace(member, index);
        Recorder inner(*this, m_note, description ? *description : m_description, object, member,
                       index);
        if (description && description->HasRules()) {
            inner.Run();
            return;
        }
        // A class of the frame below: it can only be asked whole.
        try {
            how.assertValid(object);
        } catch (nex_Exception const& failure) {
            inner.Add(failure);
        }
    }

private:
    void Add(nex_Exception const& failure) { Add(std::string(), -1, failure.UserReport()); }
    void Add(std::string const& module, int code, atr_String const& message) {
        if (m_failed) return;
        m_failed = true;
        m_findings.push_back({Path(), module, code, std::string(message.View()), m_note});
    }
    /// Asks the objects in all fields that the rules passed over.
    void RunUnasked() {
        for (mdl_Field const* field : m_description.AllFields()) {
            mdl_FieldType const& type = field->Type();
            if (!type.Held()) continue;
            void const* const at = field->At(m_object);
            for (int i = 0; i < type.Count(at); ++i) {
                void const* const object = type.ConstObject(at, i);
                mdl_Description const* description =
                    object ? mdl_Description::Find(type.DynTypeIdOf(object)) : nullptr;
                if (!description || m_asked.count({at, i}) != 0) continue;
                m_budget.Spend();
                Recorder(*this, true, *description, object, at, i).Run();
            }
        }
    }
    std::string StepTo(void const* member, int index) const {
        for (mdl_Description const* level = &m_description; level; level = level->Base())
            for (mdl_Field const& field : level->Fields()) {
                if (field.At(m_object) != member) continue;
                mdl_FieldKind const kind = field.Type().Kind();
                bool const list =
                    kind == mdl_FieldKind::OptionList || kind == mdl_FieldKind::ObjectList;
                return FieldStep(m_description, field) + (list ? IndexStep(index) : std::string());
            }
        return std::string();
    }
    std::string Path() const {
        return m_owner ? m_owner->Path() + m_owner->StepTo(m_member, m_index) : m_path;
    }

    std::vector<Finding>& m_findings;
    Budget& m_budget;
    CheckDepth m_depth;
    bool m_note = false;
    mdl_Description const& m_description;
    void const* m_object;
    std::string m_path;
    Recorder const* m_owner = nullptr;
    void const* m_member = nullptr;
    int m_index = 0;
    bool m_failed = false;
    /// The members that the rules asked, with the place in a list.
    std::set<std::pair<void const*, int>> m_asked;
};

void AddUnusable(std::vector<std::string>& paths, Budget& budget,
                 mdl_Description const& description, void const* object, std::string const& path) {
    mdl_Interruption::Poll();
    budget.Spend();
    for (mdl_Field const* field : description.AllFields()) {
        mdl_FieldType const& type = field->Type();
        void const* const at = field->At(object);
        if (type.Kind() == mdl_FieldKind::FloatMap) {
            cow_ConstMapIterator<cow_String, float> position(
                *static_cast<cls_xpMapString2Float const*>(at));
            for (position.First(); !position.IsDone(); position.Next())
                if (!IsUsableName(position.CurrentKey().View()))
                    paths.push_back(path + FieldStep(description, *field) +
                                    KeyStep(position.CurrentKey().View()));
        }
        if (!type.Held()) continue;
        bool const list =
            type.Kind() == mdl_FieldKind::OptionList || type.Kind() == mdl_FieldKind::ObjectList;
        for (int i = 0; i < type.Count(at); ++i) {
            void const* const held = type.ConstObject(at, i);
            mdl_Description const* inner =
                held ? mdl_Description::Find(type.DynTypeIdOf(held)) : nullptr;
            if (inner)
                AddUnusable(paths, budget, *inner, held,
                            path + FieldStep(description, *field) + (list ? IndexStep(i) : ""));
        }
    }
}

void CheckNamed(std::vector<Finding>& findings, Budget& budget, CheckDepth depth,
                Collection const& collection, std::string_view name, void const* object,
                std::string const& path) {
    // Beside what the object itself breaks: the name is no part of it.
    if (int const code = collection.CodeOfName(name); code >= 0) {
        mdl_Module const& module = *collection.Held().Module();
        findings.push_back(
            {path, module.prefix, code, std::string(module.errorText(code).View()), false});
    }
    mdl_Description const* description =
        object ? mdl_Description::Find(collection.DynTypeIdOf(object)) : nullptr;
    if (description) Recorder(findings, budget, depth, *description, object, path).Run();
}

}  // namespace

std::vector<std::string> UnusableNames(Document const& document) {
    std::vector<std::string> paths;
    Budget budget = BudgetOf(document);
    std::string const root = DocumentPath(document);
    for (Collection const* collection : Collection::All())
        collection->Each(document.Model(), [&](cow_String const& key, void const* object) {
            std::string const path = EntryPath(root, *collection, key.View());
            if (!IsUsableName(key.View()) || collection->CodeOfName(key.View()) >= 0)
                paths.push_back(path);
            mdl_Description const* description =
                object ? mdl_Description::Find(collection->DynTypeIdOf(object)) : nullptr;
            if (description) AddUnusable(paths, budget, *description, object, path);
        });
    return paths;
}

std::vector<Finding> Check(mdl_Description const& description, void const* object,
                           std::string const& path, CheckDepth depth) {
    std::vector<Finding> findings;
    Budget budget;
    Recorder(findings, budget, depth, description, object, path).Run();
    return findings;
}

std::string BrokenRule(mdl_Description const& description, void const* object) {
    std::vector<Finding> const findings = Check(description, object, std::string());
    if (findings.empty()) return std::string();
    std::string message = findings.front().message;
    for (std::size_t at = 0; (at = message.find('\n', at)) != std::string::npos;) message[at] = ' ';
    return message.empty() ? "one without a message" : message;
}

std::vector<Finding> Check(Document const& document, CheckDepth depth) {
    std::vector<Finding> findings;
    std::string const root = DocumentPath(document);
    Budget budget = BudgetOf(document);
    for (Collection const* collection : Collection::All())
        collection->Each(document.Model(), [&](cow_String const& key, void const* object) {
            CheckNamed(findings, budget, depth, *collection, key.View(), object,
                       EntryPath(root, *collection, key.View()));
        });
    return findings;
}

std::vector<Finding> Check(Collection const& collection, std::string const& name,
                           void const* object, std::string const& path, CheckDepth depth) {
    std::vector<Finding> findings;
    Budget budget;
    CheckNamed(findings, budget, depth, collection, name, object, path);
    return findings;
}

}  // namespace nga
