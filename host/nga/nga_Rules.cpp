#include "nga_Rules.h"

#include <functional>

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

/// An object to which something was done that rules may ask about.
using Change = std::function<void(void* object)>;

void RunChanged(mdl_Description const& description, void const* base,
                std::vector<ListedRule>& rules, std::vector<Change const*> const& changes) {
    DescribedObject const object(description.Copy(base), DescribedDeleter{&description});
    for (Change const* change : changes) (*change)(object.get());
    RunRulesOn(description, object.get(), rules);
}

/// Gives a field a number; for fields that hold none, nothing.
void SetNumber(mdl_Field const& field, void* object, double number) {
    void* const at = field.At(object);
    if (field.Type().Kind() == mdl_FieldKind::Double) *static_cast<double*>(at) = number;
    if (field.Type().Kind() == mdl_FieldKind::Int)
        *static_cast<int*>(at) = static_cast<int>(number);
}

/// Gives a table or array two rows of a number.
void FillTable(mdl_Field const& field, void* object, int columns, double number) {
    mdl_FieldType const& type = field.Type();
    void* at = field.At(object);
    if (type.Kind() == mdl_FieldKind::Object && IsTable(*type.Held()))
        at = CellsOf(*type.Held()).At(at);
    else if (type.Kind() != mdl_FieldKind::Array)
        return;
    cow_2DArray<double> cells(2, columns);
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < columns; ++column) cells.Get().Cell(row, column) = number;
    *static_cast<cls_xp2DArrayDouble*>(at) = cells;
}

/// Gives a list two elements, and an option its object.
void FillList(mdl_Field const& field, void* object) {
    mdl_FieldType const& type = field.Type();
    void* const at = field.At(object);
    switch (type.Kind()) {
        case mdl_FieldKind::IntList:
            for (int number : {1, 2}) static_cast<cls_xp1DArrayListInt*>(at)->Append(number);
            return;
        case mdl_FieldKind::DoubleList:
            for (double number : {1.0, 2.0})
                static_cast<cls_xp1DArrayListDouble*>(at)->Append(number);
            return;
        case mdl_FieldKind::Option:
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            if (!type.Held()->IsAbstract()) type.Adopt(at, type.Held()->Create());
            return;
        default:
            return;
    }
}

/// What is done to the fields of a class one at a time, and to those that choose (literals and
/// flags) two at a time, since what is asked of one kind often hangs on another choice.
struct Changes {
    explicit Changes(mdl_Description const& description) {
        for (mdl_Field const* field : description.AllFields()) {
            mdl_FieldType const& type = field->Type();
            if (type.Kind() == mdl_FieldKind::Enum)
                for (omu_EnumRow const* row = type.Rows(); row->literal; ++row)
                    choices.push_back({field, [field, row](void* object) {
                                           field->Type().SetNumber(field->At(object), row->value);
                                       }});
            if (type.Kind() == mdl_FieldKind::Bool)
                for (bool flag : {false, true})
                    choices.push_back({field, [field, flag](void* object) {
                                           *static_cast<bool*>(field->At(object)) = flag;
                                       }});
            if (type.Kind() == mdl_FieldKind::Double)
                for (double number : {-1.0, 0.0, 0.5, 1e9})
                    others.push_back(
                        [field, number](void* object) { SetNumber(*field, object, number); });
            if (type.Kind() == mdl_FieldKind::Int)
                for (int number : {-1, 0, 1, 1000})
                    others.push_back(
                        [field, number](void* object) { SetNumber(*field, object, number); });
        }
    }

    struct Choice {
        mdl_Field const* field;
        Change change;
    };
    std::vector<Choice> choices;
    std::vector<Change> others;
};

void RunVariants(mdl_Description const& description, void const* base,
                 std::vector<ListedRule>& rules) {
    Changes const changes(description);
    RunRulesOn(description, base, rules);
    for (Changes::Choice const& one : changes.choices)
        RunChanged(description, base, rules, {&one.change});
    for (Change const& one : changes.others) RunChanged(description, base, rules, {&one});
    for (std::size_t i = 0; i < changes.choices.size(); ++i)
        for (std::size_t j = i + 1; j < changes.choices.size(); ++j)
            if (changes.choices[i].field != changes.choices[j].field)
                RunChanged(description, base, rules,
                           {&changes.choices[i].change, &changes.choices[j].change});
}

}  // namespace

std::vector<ListedRule> RulesOf(mdl_Description const& description) {
    std::vector<ListedRule> rules;
    if (description.IsAbstract() || !description.HasRules()) return rules;
    DescribedObject const object(description.Create(), DescribedDeleter{&description});
    RunVariants(description, object.get(), rules);
    for (mdl_Field const* field : description.AllFields()) FillTable(*field, object.get(), 2, 1.0);
    RunVariants(description, object.get(), rules);
    for (mdl_Field const* field : description.AllFields()) {
        FillTable(*field, object.get(), 3, 2.0);
        FillList(*field, object.get());
        SetNumber(*field, object.get(), 1.0);
    }
    RunVariants(description, object.get(), rules);
    return rules;
}

}  // namespace nga
