#include "nga_Rules.h"

#include "cls_xp.h"
#include "nex_Exception.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

/// Lets every rule hold on and notes which there are. Its rules are those of one object alone.
class Lister final : public mdl_RuleVisitor {
public:
    explicit Lister(std::vector<int>& codes) : m_codes(codes) {}

protected:
    void Failed(int) override {}
    void Seen(int code) override {
        for (std::size_t i = 0; i < m_codes.size(); ++i) {
            if (m_codes[i] != code) continue;
            m_next = i + 1;
            return;
        }
        // Behind the one that came before it, so that branches join in the order of the source.
        m_codes.insert(m_codes.begin() + static_cast<std::ptrdiff_t>(m_next++), code);
    }
    void Object(void const*, int, void const*, mdl_Asked) override {}

private:
    std::vector<int>& m_codes;
    std::size_t m_next = 0;
};

void Run(mdl_Description const& description, void const* object, std::vector<int>& codes) {
    Lister lister(codes);
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
void RunChanged(mdl_Description const& description, void const* base, std::vector<int>& codes,
                Change const& change) {
    DescribedObject const object(description.Copy(base), DescribedDeleter{&description});
    change(object.get());
    Run(description, object.get(), codes);
}

void RunVariants(mdl_Description const& description, void const* base, std::vector<int>& codes) {
    Run(description, base, codes);
    for (mdl_Field const* field : description.AllFields()) {
        mdl_FieldType const& type = field->Type();
        if (type.Kind() == mdl_FieldKind::Enum)
            for (omu_EnumRow const* row = type.Rows(); row->literal; ++row)
                RunChanged(description, base, codes,
                           [&](void* object) { type.SetNumber(field->At(object), row->value); });
        if (type.Kind() == mdl_FieldKind::Bool)
            RunChanged(description, base, codes, [&](void* object) {
                bool& flag = *static_cast<bool*>(field->At(object));
                flag = !flag;
            });
        if (type.Kind() == mdl_FieldKind::Double)
            for (double number : {-1.0, 0.0, 0.5, 1e9})
                RunChanged(description, base, codes, [&](void* object) {
                    *static_cast<double*>(field->At(object)) = number;
                });
        if (type.Kind() == mdl_FieldKind::Int)
            for (int number : {-1, 0, 1, 1000})
                RunChanged(description, base, codes,
                           [&](void* object) { *static_cast<int*>(field->At(object)) = number; });
    }
}

}  // namespace

std::vector<ListedRule> RulesOf(mdl_Description const& description) {
    std::vector<ListedRule> rules;
    if (description.IsAbstract() || !description.HasRules()) return rules;
    std::vector<int> codes;
    DescribedObject const object(description.Create(), DescribedDeleter{&description});
    RunVariants(description, object.get(), codes);
    FillTables(description, object.get());
    RunVariants(description, object.get(), codes);
    for (int code : codes)
        rules.push_back({code, std::string(description.Module()->errorText(code).View())});
    return rules;
}

}  // namespace nga
