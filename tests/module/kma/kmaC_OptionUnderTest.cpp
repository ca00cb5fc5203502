#include "kmaC_OptionUnderTest.h"

#include <cfloat>
#include <climits>
#include <sstream>
#include <stdexcept>

namespace kmaC_test {

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

void SetTable(kmaC_MaterialTable& table, std::string const& value) {
    if (value != "blankrow") {
        std::size_t const by = value.find('x');
        cow_2DArray<double> cells(std::stoi(value), std::stoi(value.substr(by + 1)));
        for (int i = 0; i < cells.Size(); ++i) cells.Get().Data()[i] = 1.0;
        table.table = cells;
        return;
    }
    if (table.Rows() == 0 || table.Columns() == 0) SetTable(table, "1x2");
    cow_2DArray<double> longer(table.Rows() + 1, table.Columns());
    for (int i = 0; i < table.table.Size(); ++i) longer.Get().Data()[i] = table.table.Data()[i];
    table.table = longer;
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
            SetTable(*static_cast<kmaC_MaterialTable*>(at), value);
            break;
        case mdl_FieldKind::Option:
            type.Adopt(at, value == "new" ? type.Held()->Create() : nullptr);
            break;
        case mdl_FieldKind::OptionList:
            if (value == "none")
                type.Clear(at);
            else
                type.Adopt(at, DescriptionOf(value.substr(1)).Create());
            break;
        case mdl_FieldKind::DoubleList:
            for (int i = 0; i < std::stoi(value); ++i)
                static_cast<cls_xp1DArrayListDouble*>(at)->Append(1.0 + i);
            break;
        default:
            throw std::invalid_argument("cannot be set");
    }
}

void SetOne(mdl_Description const& description, void* object, std::string const& setting) {
    std::size_t const equals = setting.find('=');
    std::string name = setting.substr(0, equals);
    std::string const value = setting.substr(equals + 1);
    std::size_t const end = name.find_first_of(".[");
    mdl_Field const* field = description.FindField(name.substr(0, end).c_str());
    if (!field) throw std::invalid_argument("no field " + name);
    void* const at = field->At(object);
    if (end == std::string::npos) {
        SetField(*field, object, value);
    } else if (name[end] == '[') {
        std::size_t const comma = name.find(',');
        auto& table = *static_cast<kmaC_MaterialTable*>(at);
        table.MutableCell(std::stoi(name.substr(end + 1)), std::stoi(name.substr(comma + 1))) =
            Number(value, -DBL_MAX, DBL_MAX);
    } else {
        mdl_FieldType const& type = field->Type();
        if (type.Kind() == mdl_FieldKind::Option && !type.ConstObject(at, 0))
            type.Adopt(at, type.Held()->Create());
        int const last = type.Count(at) - 1;
        unsigned const held = type.DynTypeIdOf(type.ConstObject(at, last));
        SetOne(*mdl_Description::Find(held), type.MutableObject(at, last), setting.substr(end + 1));
    }
}

// Records what is asked and goes no deeper.
class AskRecorder final : public mdl_RuleVisitor {
public:
    AskRecorder(mdl_Description const& description, void const* object)
        : m_description(description), m_object(object) {}
    std::string names;

protected:
    void Failed(int) override {}
    void Object(void const* member, int index, void const*, mdl_Asked) override {
        for (mdl_Field const& field : m_description.Fields()) {
            if (field.At(m_object) != member) continue;
            if (!names.empty()) names += ' ';
            names += field.Name();
            if (index > 0) names += "[" + std::to_string(index) + "]";
        }
    }

private:
    mdl_Description const& m_description;
    void const* m_object;
};

int CodeOf(std::string const& text) {
    for (int code = 0; code < 47; ++code)
        if (text == kmaC_ErrorText(kmaC_ErrorEnm(code)).Text()) return code;
    throw std::logic_error("raised by no code: " + text);
}

template <class T>
int CodeRaisedBy(T const& object) {
    try {
        object.AssertValid();
    } catch (nex_TextException const& failure) {
        return CodeOf(failure.UserReport().Text());
    }
    return passes;
}

}  // namespace

Option::Option(std::string const& className)
    : m_description(&DescriptionOf(className)), m_object(m_description->Create()) {}

Option::~Option() {
    if (m_object) m_description->Destroy(m_object);
}

void* Option::Release() {
    void* const object = m_object;
    m_object = nullptr;
    return object;
}

Option& Option::Set(std::string const& settings) {
    for (std::string const& setting : Split(settings, ' '))
        SetOne(*m_description, m_object, setting);
    return *this;
}

int Option::Verdict() const {
    return CodeRaisedBy(*static_cast<kmaC_MaterialOption const*>(m_object));
}

std::string Option::Asked() const {
    AskRecorder recorder(*m_description, m_object);
    m_description->RunRules(m_object, recorder);
    return recorder.names;
}

int VerdictOf(std::string const& className, std::string const& settings) {
    return Option(className).Set(settings).Verdict();
}

int VerdictOf(kmaC_Material const& material) { return CodeRaisedBy(material); }

std::vector<std::string> Split(std::string const& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        if (!part.empty()) parts.push_back(part);
    return parts;
}

}  // namespace kmaC_test
