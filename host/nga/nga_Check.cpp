#include "nga_Check.h"

#include "nex_Exception.h"
#include "nga_Budget.h"
#include "nga_Path.h"

namespace nga {

namespace {

/// Records instead of raising. One for each object on the way down; it knows by which member its
/// owner holds it, and that is spelled out as a path only where something failed.
class Recorder final : public mdl_RuleVisitor {
public:
    /// What a collection holds under a name.
    Recorder(std::vector<Finding>& findings, Budget& budget, mdl_Description const& description,
             void const* object, std::string const& path)
        : m_findings(findings),
          m_budget(budget),
          m_description(description),
          m_object(object),
          m_path(path) {}
    /// What a member of the owner holds.
    Recorder(Recorder const& owner, mdl_Description const& description, void const* object,
             void const* member, int index)
        : m_findings(owner.m_findings),
          m_budget(owner.m_budget),
          m_description(description),
          m_object(object),
          m_owner(&owner),
          m_member(member),
          m_index(index) {}

    void Run() {
        try {
            m_description.RunRules(m_object, *this);
        } catch (nex_Exception const& failure) {
            Add(failure);
        }
    }

protected:
    void Failed(int code) override {
        if (m_failed) return;
        m_failed = true;
        mdl_Module const& module = *m_description.Module();
        m_findings.push_back(
            {Path(), module.prefix, code, std::string(module.errorText(code).View())});
    }

    void Object(void const* member, int index, void const* object, mdl_Asked how) override {
        m_budget.Spend();
        mdl_Description const* description = mdl_Description::Find(how.dynTypeId(object));
        Recorder inner(*this, description ? *description : m_description, object, member, index);
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
    void Add(nex_Exception const& failure) {
        if (m_failed) return;
        m_failed = true;
        m_findings.push_back({Path(), std::string(), -1, std::string(failure.UserReport().View())});
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
    mdl_Description const& m_description;
    void const* m_object;
    std::string m_path;
    Recorder const* m_owner = nullptr;
    void const* m_member = nullptr;
    int m_index = 0;
    bool m_failed = false;
};

}  // namespace

std::vector<Finding> Check(Document const& document) {
    std::vector<Finding> findings;
    std::string const root = DocumentPath(document);
    int named = 0;
    for (Collection const* collection : Collection::All())
        named += collection->Size(document.Model());
    Budget budget(named);
    for (Collection const* collection : Collection::All())
        collection->Each(document.Model(), [&](cow_String const& key, void const* object) {
            mdl_Description const* description =
                object ? mdl_Description::Find(collection->DynTypeIdOf(object)) : nullptr;
            if (!description) return;
            Recorder(findings, budget, *description, object,
                     EntryPath(root, *collection, key.View()))
                .Run();
        });
    return findings;
}

}  // namespace nga
