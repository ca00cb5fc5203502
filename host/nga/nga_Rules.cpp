#include "nga_Rules.h"

#include "cls_xp.h"
#include "nex_Exception.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

/// Lets every rule hold on and notes which there are. Its rules are those of one object alone.
class RuleLister final : public mdl_RuleVisitor {
public:
    RuleLister(mdl_Module const& module, std::vector<ListedRule>& rules)
        : m_module(module), m_rules(rules) {}

protected:
    void Failed(int) override {}
    void Seen(int code) override {
        Add({m_module.prefix, code, std::string(m_module.errorText(code).View())});
    }
    void SeenContent(int code, char const* content) override {
        Add({std::string(m_module.prefix) + " content", code,
             std::string(m_module.contentText(code, cow_String(content)).View())});
    }
    void FailedContent(int, cow_String const&) override {}
    void Object(void const*, int, void const*, mdl_Asked) override {}

private:
    void Add(ListedRule const& rule) {
        for (std::size_t i = 0; i < m_rules.size(); ++i) {
            if (m_rules[i].message != rule.message || m_rules[i].code != rule.code) continue;
            m_next = i + 1;
            return;
        }
        // Behind the one that came before it, so that branches join in the order of the source.
        m_rules.insert(m_rules.begin() + static_cast<std::ptrdiff_t>(m_next++), rule);
    }

    mdl_Module const& m_module;
    std::vector<ListedRule>& m_rules;
    std::size_t m_next = 0;
};

void RunRulesOn(mdl_Description const& description, void const* object,
                std::vector<ListedRule>& rules) {
    RuleLister lister(*description.Module(), rules);
    try {
        description.RunRules(object, lister);
    } catch (nex_Exception const&) {
        // A rule that raises by itself ends the walk; what came before it is noted.
    }
}

/// Gives every table and array one row of ones.
void FillTables(mdl_Description const& description, void* object) {
    for (mdl_Field const* field : description.AllFields()) {
        mdl_FieldType const& type = field->Type();
        void* at = field->At(object);
        if (type.Kind() == mdl_FieldKind::Object && IsTable(*type.Held()))
            at = CellsOf(*type.Held()).At(at);
        else if (type.Kind() != mdl_FieldKind::Array)
            continue;
        cow_2DArray<double> cells(1, 2);
        cells.Get().Cell(0, 0) = cells.Get().Cell(0, 1) = 1.0;
        *static_cast<cls_xp2DArrayDouble*>(at) = cells;
    }
}

template <class Change>
void RunChanged(mdl_Description const& description, void const* base,
                std::vector<ListedRule>& rules, Change const& change) {
    DescribedObject const object(description.Copy(base), DescribedDeleter{&description});
    change(object.get());
    RunRulesOn(description, object.get(), rules);
}

void RunVariants(mdl_Description const& description, void const* base,
                 std::vector<ListedRule>& rules) {
    RunRulesOn(description, base, rules);
    for (mdl_Field const* field : description.AllFields()) {
        mdl_FieldType const& type = field->Type();
        if (type.Kind() == mdl_FieldKind::Enum)
            for (omu_EnumRow const* row = type.Rows(); row->literal; ++row)
                RunChanged(description, base, rules,
                           [&](void* object) { type.SetNumber(field->At(object), row->value); });
        if (type.Kind() == mdl_FieldKind::Bool)
            RunChanged(description, base, rules, [&](void* object) {
                bool& flag = *static_cast<bool*>(field->At(object));
                flag = !flag;
            });
        if (type.Kind() == mdl_FieldKind::Double)
            for (double number : {-1.0, 0.0, 0.5, 1e9})
                RunChanged(description, base, rules, [&](void* object) {
                    *static_cast<double*>(field->At(object)) = number;
                });
        if (type.Kind() == mdl_FieldKind::Int)
            for (int number : {-1, 0, 1, 1000})
                RunChanged(description, base, rules,
                           [&](void* object) { *static_cast<int*>(field->At(object)) = number; });
    }
}

}  // namespace

std::vector<ListedRule> RulesOf(mdl_Description const& description) {
    std::vector<ListedRule> rules;
    if (description.IsAbstract() || !description.HasRules()) return rules;
    DescribedObject const object(description.Create(), DescribedDeleter{&description});
    RunVariants(description, object.get(), rules);
    FillTables(description, object.get());
    RunVariants(description, object.get(), rules);
    return rules;
}

}  // namespace nga
