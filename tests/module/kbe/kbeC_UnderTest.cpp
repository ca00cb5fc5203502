#include "kbeC_UnderTest.h"

#include <cfloat>
#include <climits>
#include <map>
#include <sstream>
#include <stdexcept>

namespace kbeC_test {

namespace {

mdl_Description const& DescriptionOf(std::string const& className) {
    cls_ClassMetadata const* metadata = omi_Singleton<cls_MetadataRegistrar>::Instance()
                                            .Domain(cls_DomainDatabase)
                                            .Find(cow_String(className.c_str()));
    if (!metadata) throw std::invalid_argument("no class " + className);
    return *mdl_Description::Find(metadata->TypeId());
}

template <class T>
T Number(std::string const& text, T least, T greatest) {
    if (text == "max") return greatest;
    if (text == "min") return least;
    std::size_t used = 0;
    double const value = std::stod(text, &used);
    if (used != text.size()) throw std::invalid_argument("no number: " + text);
    return static_cast<T>(value);
}

unsigned EnumNumber(omu_EnumRow const* rows, std::string const& text) {
    if (text[0] == '#') return static_cast<unsigned>(std::stoul(text.substr(1)));
    omu_EnumRow const* row = omu_PrimEnumBase::FindRow(rows, text.c_str());
    if (!row) throw std::invalid_argument("no literal: " + text);
    return row->value;
}

cow_2DArray<double> ArrayOf(std::string const& value) {
    std::size_t const by = value.find('x');
    if (by != std::string::npos && value.find_first_of(",;n") == std::string::npos) {
        cow_2DArray<double> cells(std::stoi(value), std::stoi(value.substr(by + 1)));
        for (int i = 0; i < cells.Size(); ++i) cells.Get().Data()[i] = 1.0;
        return cells;
    }
    std::vector<std::string> const rows = Split(value, ';');
    int const columns = static_cast<int>(Split(rows.at(0), ',').size());
    cow_2DArray<double> cells(static_cast<int>(rows.size()), columns);
    for (int r = 0; r < cells.Rows(); ++r) {
        std::vector<std::string> const row = Split(rows[static_cast<std::size_t>(r)], ',');
        for (int c = 0; c < columns; ++c)
            cells.Get().Cell(r, c) = Number(row.at(static_cast<std::size_t>(c)), -DBL_MAX, DBL_MAX);
    }
    return cells;
}

/// The array behind a field that has one.
cow_2DArray<double>& TableAt(mdl_Field const& field, void* object) {
    void* const at = field.At(object);
    if (field.Type().Kind() == mdl_FieldKind::Array) return *static_cast<cls_xp2DArrayDouble*>(at);
    if (field.Type().Kind() != mdl_FieldKind::Object) throw std::invalid_argument("no table");
    return static_cast<mdl_PropertyTable*>(at)->table;
}

void SetField(mdl_Field const& field, void* object, std::string const& value) {
    void* const at = field.At(object);
    mdl_FieldType const& type = field.Type();
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
            *static_cast<int*>(at) = Number(value, INT_MIN, INT_MAX);
            break;
        case mdl_FieldKind::Double:
            *static_cast<double*>(at) = Number(value, -DBL_MAX, DBL_MAX);
            break;
        case mdl_FieldKind::Bool:
            if (value != "true" && value != "false") throw std::invalid_argument("no flag");
            *static_cast<bool*>(at) = value == "true";
            break;
        case mdl_FieldKind::Enum:
            type.SetNumber(at, EnumNumber(type.Rows(), value));
            break;
        case mdl_FieldKind::Object:
        case mdl_FieldKind::Array:
            TableAt(field, object) = ArrayOf(value);
            break;
        case mdl_FieldKind::Option:
            type.Adopt(at, value == "new" ? type.Held()->Create() : nullptr);
            break;
        case mdl_FieldKind::ObjectList:
            if (value == "none")
                type.Clear(at);
            else
                type.Adopt(at, type.Held()->Create());
            break;
        case mdl_FieldKind::IntList: {
            cow_List<int> list;
            if (value != "none")
                for (std::string const& one : Split(value, ','))
                    list.Append(Number(one, INT_MIN, INT_MAX));
            *static_cast<cls_xp1DArrayListInt*>(at) = list;
            break;
        }
        default:
            throw std::invalid_argument("cannot be set");
    }
}

void SetOne(mdl_Description const& description, void* object, std::string const& setting) {
    std::size_t const equals = setting.find('=');
    std::string const name = setting.substr(0, equals);
    std::string const value = setting.substr(equals + 1);
    std::size_t const end = name.find_first_of(".[");
    mdl_Field const* field = description.FindField(name.substr(0, end).c_str());
    if (!field) throw std::invalid_argument("no field " + name);
    void* const at = field->At(object);
    if (end == std::string::npos) {
        SetField(*field, object, value);
    } else if (name[end] == '[') {
        std::size_t const comma = name.find(',');
        int const row = std::stoi(name.substr(end + 1));
        int const column = std::stoi(name.substr(comma + 1));
        cow_2DArray<double>& table = TableAt(*field, object);
        if (row >= table.Rows() || column >= table.Columns())
            throw std::invalid_argument("no cell " + name);
        table.Get().Cell(row, column) = Number(value, -DBL_MAX, DBL_MAX);
    } else {
        mdl_FieldType const& type = field->Type();
        if (type.Kind() == mdl_FieldKind::Option && !type.ConstObject(at, 0))
            type.Adopt(at, type.Held()->Create());
        int const last = type.Count(at) - 1;
        SetOne(*type.Held(), type.MutableObject(at, last), setting.substr(end + 1));
    }
}

std::map<int, std::string> const& Messages() {
    static std::map<int, std::string> const messages = {
#define TEXT(code, text) {code, text},
#define CONTENT(code, text)
#include "kbeC_messages.inc"
#undef TEXT
#undef CONTENT
    };
    return messages;
}

/// Calls a function with the object as what it is.
template <class Result, class Call>
Result WithClass(mdl_Description const& description, Call call) {
    switch (description.TypeId()) {
        case kbeC_ConnectorOptions::TypeId():
            return call(static_cast<kbeC_ConnectorOptions*>(nullptr));
        case kbeC_TangentialBehavior::TypeId():
            return call(static_cast<kbeC_TangentialBehavior*>(nullptr));
        case kbeC_ConnectorPotential::TypeId():
            return call(static_cast<kbeC_ConnectorPotential*>(nullptr));
        case kbeC_DerivedComponent::TypeId():
            return call(static_cast<kbeC_DerivedComponent*>(nullptr));
        case kbeC_CDCTerm::TypeId():
            return call(static_cast<kbeC_CDCTerm*>(nullptr));
        default:
            if (description.ParentTypeId() != kbeC_ConnectorBehaviorOption::TypeId())
                throw std::invalid_argument("a class without rules or comparison");
            return call(static_cast<kbeC_ConnectorBehaviorOption*>(nullptr));
    }
}

class Collecting final : public mdl_RuleVisitor {
public:
    std::vector<std::string> failures;

protected:
    void Failed(int code) override { failures.push_back(Messages().at(code)); }
    void FailedContent(int code, cow_String const& content) override {
        failures.push_back("content " + std::to_string(code) + " " + content.Text());
    }
    void Object(void const*, int, void const* object, mdl_Asked how) override {
        mdl_Description::Find(how.dynTypeId(object))->RunRules(object, *this);
    }
};

}  // namespace

Object::Object(std::string const& className, std::string const& settings)
    : m_description(&DescriptionOf(className)), m_object(m_description->Create()) {
    Set(settings);
}

Object::~Object() { m_description->Destroy(m_object); }

Object& Object::Set(std::string const& settings) {
    for (std::string const& setting : Split(settings, ' '))
        SetOne(*m_description, m_object, setting);
    return *this;
}

std::string Object::Verdict() const {
    return WithClass<std::string>(*m_description, [&]<class T>(T*) -> std::string {
        try {
            static_cast<T const*>(m_object)->AssertValid();
        } catch (nex_TextException const& failure) {
            return failure.UserReport().Text();
        }
        return passes;
    });
}

std::vector<std::string> Object::AllFailures() const {
    Collecting collecting;
    m_description->RunRules(m_object, collecting);
    return collecting.failures;
}

bool Object::Equals(Object const& other) const {
    return WithClass<bool>(*m_description, [&]<class T>(T*) {
        return *static_cast<T const*>(m_object) == *static_cast<T const*>(other.m_object);
    });
}

bool Object::Differs(Object const& other) const {
    return WithClass<bool>(*m_description, [&]<class T>(T*) {
        return *static_cast<T const*>(m_object) != *static_cast<T const*>(other.m_object);
    });
}

void Object::SortDataTable() {
    switch (m_description->TypeId()) {
#define KBE_SORTS(C)                                \
    case C::TypeId():                               \
        static_cast<C*>(m_object)->SortDataTable(); \
        break;
        KBE_SORTS(kbeC_ConnectorElasticity)
        KBE_SORTS(kbeC_ConnectorDamping)
        KBE_SORTS(kbeC_ConnectorFriction)
        KBE_SORTS(kbeC_ConnectorPlasticity)
        KBE_SORTS(kbeC_ConnectorDamage)
        KBE_SORTS(kbeC_CDCTerm)
#undef KBE_SORTS
        default:
            throw std::invalid_argument("a class without tables to sort");
    }
}

std::string TextOfVerdict(std::string const& verdict) {
    if (verdict == passes) return verdict;
    if (verdict == "blank") return "Tabular data has either blank or zero valued row(s).";
    if (verdict.compare(0, 2, "c~") == 0) {
        std::string content = verdict.substr(2);
        for (char& c : content)
            if (c == '+') c = ' ';
        return "Table rate options cannot be specified for this behavior (" + content + ").";
    }
    return Messages().at(std::stoi(verdict));
}

std::string VerdictOf(std::string const& className, std::string const& settings) {
    return Object(className, settings).Verdict();
}

testing::AssertionResult Raises(std::string const& className, std::string const& settings,
                                std::string const& verdict) {
    std::string const raised = VerdictOf(className, settings);
    std::string const expected = TextOfVerdict(verdict);
    if (raised == expected) return testing::AssertionSuccess();
    return testing::AssertionFailure() << className << " {" << settings << "}: \"" << raised
                                       << "\" instead of \"" << expected << "\"";
}

std::vector<std::string> Split(std::string const& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        if (!part.empty()) parts.push_back(part);
    return parts;
}

}  // namespace kbeC_test
