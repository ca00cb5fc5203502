#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"

namespace kmaC_facts_test {

struct ExpectedField {
    std::string name;
    std::string script;
    int type;
    unsigned arg;
    int collection;
    std::string defaultValue;
    std::string saidScript;  ///< what the class's nameCmd() gives
    bool lacksCmd;
};

struct ExpectedClass {
    std::string name;
    unsigned typeId;
    int version;
    unsigned parent;
    std::string constructor;
    std::string saidConstructor;
    std::string saidSetValues;
    unsigned saidTypeId;
    std::vector<ExpectedField> fields;
};

// Whether class C has no static function of that name.
#define LACKS(C, function)                  \
    !([]<class T>(T const*) {               \
        return requires { T::function(); }; \
    }(static_cast<C const*>(nullptr)))

std::vector<ExpectedClass> MakeExpected() {
    std::vector<ExpectedClass> classes;
    // The fields of a class follow its line.
    auto const add = [&](char const* owner, ExpectedField const& field) {
        EXPECT_EQ(classes.back().name, owner) << field.name;
        classes.back().fields.push_back(field);
    };
#define CLASS(C, id, version, parent, constructor) \
    classes.push_back({#C,                         \
                       id,                         \
                       version,                    \
                       parent,                     \
                       constructor,                \
                       C::constructorCmd().Text(), \
                       C::setValuesCmd().Text(),   \
                       C::TypeId(),                \
                       {}});
#define CLASS_UNSCRIPTED(C, id, version, parent) \
    EXPECT_TRUE(LACKS(C, constructorCmd)) << #C; \
    EXPECT_TRUE(LACKS(C, setValuesCmd)) << #C;   \
    classes.push_back({#C, id, version, parent, "", "", "setValues", C::TypeId(), {}});
#define FIELD(C, name, script, type, arg, collection, value) \
    add(#C, {#name, script, type, arg, collection, value, C::name##Cmd().Text(), false});
#define FIELD_UNSCRIPTED(C, name, type, arg, collection, value) \
    add(#C, {#name, #name, type, arg, collection, value, #name, LACKS(C, name##Cmd)});
#define TABLE_FIELD(C, name, type, arg, collection, value) \
    add(#C, {#name, #name, type, arg, collection, value, #name, false});
#include "kmaC_facts.inc"
#undef CLASS
#undef CLASS_UNSCRIPTED
#undef FIELD
#undef FIELD_UNSCRIPTED
#undef TABLE_FIELD
    return classes;
}

std::vector<ExpectedClass> const& Expected() {
    static std::vector<ExpectedClass> const classes = MakeExpected();
    return classes;
}

bool IsScripted(ExpectedClass const& expected) { return !expected.constructor.empty(); }

class MaterialFacts : public testing::Test {
protected:
    MaterialFacts() { DDB_NonGeometricAttributes_initialize(m_count); }
    ~MaterialFacts() override { DDB_NonGeometricAttributes_finalize(m_count); }

    static cls_ClassRegistrar const& Domain(cls_MetadataDomain domain) {
        return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(domain);
    }

private:
    int m_count = 0;
};

cls_MetadataDomain const domains[] = {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase};

TEST_F(MaterialFacts, AreThoseOf121Classes) {
    std::set<std::string> names;
    std::set<unsigned> numbers;
    for (ExpectedClass const& expected : Expected()) {
        names.insert(expected.name);
        numbers.insert(expected.typeId);
    }
    EXPECT_EQ(Expected().size(), 121u);
    EXPECT_EQ(names.size(), 121u);
    EXPECT_EQ(numbers.size(), 121u);
    EXPECT_EQ(Expected().front().fields.size(), 68u);
}

TEST_F(MaterialFacts, EveryClassIsRegisteredInEveryDomain) {
    for (cls_MetadataDomain domain : domains) {
        for (ExpectedClass const& expected : Expected()) {
            cls_ClassMetadata const* metadata = Domain(domain).Find(expected.typeId);
            ASSERT_NE(metadata, nullptr) << expected.name;
            EXPECT_EQ(metadata->Name(), cow_String(expected.name.c_str()));
            EXPECT_EQ(metadata->Version(), expected.version) << expected.name;
            EXPECT_EQ(metadata->ParentTypeId(), expected.parent) << expected.name;
            EXPECT_EQ(expected.saidTypeId, expected.typeId) << expected.name;
        }
    }
}

TEST_F(MaterialFacts, NoOtherClassOfTheModuleIsRegistered) {
    std::map<unsigned, std::set<unsigned>> others;
    std::set<unsigned> known;
    for (ExpectedClass const& expected : Expected()) known.insert(expected.typeId);
    for (cls_MetadataDomain domain : domains)
        for (cls_ClassMetadata const* metadata : Domain(domain).Classes())
            if (metadata->TypeId() >> 16 == kmaC_component && !known.count(metadata->TypeId()))
                others[domain].insert(metadata->TypeId());
    EXPECT_EQ(others[cls_DomainLibrary], std::set<unsigned>{0x238005A});
    EXPECT_EQ(others[cls_DomainMemory], std::set<unsigned>{0x238005A});
    EXPECT_EQ(others[cls_DomainDatabase], std::set<unsigned>{0x238007D});
}

TEST_F(MaterialFacts, AttributesStandInTheirOrderWithTheirCodes) {
    for (ExpectedClass const& expected : Expected()) {
        std::vector<cls_Attribute> const& attributes =
            Domain(cls_DomainDatabase).Find(expected.typeId)->Attributes();
        ASSERT_EQ(attributes.size(), expected.fields.size()) << expected.name;
        for (std::size_t i = 0; i < attributes.size(); ++i) {
            SCOPED_TRACE(expected.name + "::" + expected.fields[i].name);
            EXPECT_STREQ(attributes[i].field.Name().Text(), expected.fields[i].name.c_str());
            EXPECT_EQ(attributes[i].type, expected.fields[i].type);
            EXPECT_EQ(attributes[i].arg, expected.fields[i].arg);
            EXPECT_EQ(attributes[i].collection, expected.fields[i].collection);
        }
    }
}

TEST_F(MaterialFacts, DescriptionsSayTheSame) {
    Domain(cls_DomainDatabase);
    for (ExpectedClass const& expected : Expected()) {
        SCOPED_TRACE(expected.name);
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        ASSERT_NE(description, nullptr);
        EXPECT_EQ(description->Name(), expected.name);
        EXPECT_EQ(description->Version(), expected.version);
        EXPECT_EQ(description->ParentTypeId(), expected.parent);
        EXPECT_STREQ(description->Constructor(),
                     IsScripted(expected) ? expected.constructor.c_str() : nullptr);
        ASSERT_EQ(description->Fields().size(), expected.fields.size());
        for (std::size_t i = 0; i < expected.fields.size(); ++i) {
            mdl_Field const& field = description->Fields()[i];
            EXPECT_EQ(field.Name(), expected.fields[i].name);
            EXPECT_EQ(field.Script(), expected.fields[i].script);
        }
        if (IsScripted(expected)) {
            EXPECT_EQ(mdl_Description::FindByConstructor(expected.constructor.c_str()),
                      description);
        }
    }
}

TEST_F(MaterialFacts, ScriptNamesAreGivenByTheCmdFunctions) {
    int unscripted = 0;
    for (ExpectedClass const& expected : Expected()) {
        SCOPED_TRACE(expected.name);
        EXPECT_EQ(expected.saidConstructor, expected.constructor);
        EXPECT_EQ(expected.saidSetValues, "setValues");
        for (ExpectedField const& field : expected.fields) {
            EXPECT_EQ(field.saidScript, field.script);
            if (expected.parent == 0x2380002u && !IsScripted(expected)) {
                ++unscripted;
                EXPECT_TRUE(field.lacksCmd) << field.name;
            }
        }
    }
    EXPECT_EQ(unscripted, 5 + 8 * 3 + 3 + 4 + 4 + 1);
}

std::string TextOf(mdl_Field const& field, void const* object) {
    void const* const at = field.At(object);
    switch (field.Type().Kind()) {
        case mdl_FieldKind::Int:
            return std::to_string(*static_cast<int const*>(at));
        case mdl_FieldKind::Bool:
            return *static_cast<bool const*>(at) ? "true" : "false";
        case mdl_FieldKind::String:
            return static_cast<cow_String const*>(at)->Text();
        case mdl_FieldKind::Enum:
            return omu_PrimEnumBase::FindRow(field.Type().Rows(), field.Type().Number(at))->literal;
        case mdl_FieldKind::Object: {
            auto const& table = *static_cast<kmaC_MaterialTable const*>(at);
            if (table.Rows() != 0 || table.Columns() != 0) return "filled";
            return table.allowEmptyFirstRow ? "may begin blank" : "empty";
        }
        case mdl_FieldKind::Option:
            return field.Type().ConstObject(at, 0) ? "present" : "absent";
        case mdl_FieldKind::OptionList:
            return field.Type().Count(at) == 0 ? "empty" : "filled";
        case mdl_FieldKind::DoubleList:
            return static_cast<cls_xp1DArrayListDouble const*>(at)->Size() == 0 ? "empty"
                                                                                : "filled";
        case mdl_FieldKind::Array: {
            auto const& array = *static_cast<cls_xp2DArrayDouble const*>(at);
            return array.Rows() == 0 && array.Columns() == 0 ? "empty" : "filled";
        }
        default:
            return "unexpected kind of field";
    }
}

TEST_F(MaterialFacts, ANewObjectHoldsTheDefaults) {
    Domain(cls_DomainDatabase);
    for (ExpectedClass const& expected : Expected()) {
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        if (expected.name == "kmaC_MaterialOption") {
            EXPECT_TRUE(description->IsAbstract());
            continue;
        }
        void* const object = description->Create();
        for (std::size_t i = 0; i < expected.fields.size(); ++i) {
            mdl_Field const& field = description->Fields()[i];
            std::string const& value = expected.fields[i].defaultValue;
            SCOPED_TRACE(expected.name + "::" + field.Name());
            if (field.Type().Kind() == mdl_FieldKind::Double) {
                double const held = *static_cast<double const*>(field.At(object));
                std::uint64_t bits;
                std::memcpy(&bits, &held, sizeof bits);
                if (value == "not set")
                    EXPECT_EQ(bits, 0x7FEFFFFFFFFFFFFFu);
                else
                    EXPECT_EQ(held, std::stod(value));
            } else {
                EXPECT_EQ(TextOf(field, object), value);
            }
        }
        description->Destroy(object);
    }
}

TEST_F(MaterialFacts, AnObjectKnowsItsClass) {
    Domain(cls_DomainDatabase);
    for (ExpectedClass const& expected : Expected()) {
        if (expected.parent != 0x2380002u) continue;
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        auto* const option = static_cast<kmaC_MaterialOption*>(description->Create());
        kmaC_MaterialOption* const copy = option->Copy();
        EXPECT_EQ(option->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(copy->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(description->Uid(copy), description->Uid(option)) << expected.name;
        EXPECT_EQ(copy->uid, option->uid) << expected.name;
        EXPECT_NE(description->Uid(option), option->uid) << expected.name;
        delete copy;
        delete option;
    }
}

// Holds literals against an enumeration's rows, and the crossings of its primitive.
template <class E>
void ExpectLiterals(std::string const& name, std::vector<std::string> const& literals) {
    SCOPED_TRACE(name);
    unsigned number = 0;
    for (omu_EnumRow const* row = omu_Rows(E()); row->literal; ++row, ++number) {
        ASSERT_LT(number, literals.size());
        EXPECT_EQ(row->literal, literals[number]);
        EXPECT_EQ(row->value, number);
        EXPECT_STREQ((omu_PrimEnum<E, 1>(static_cast<E>(number)).GetString()),
                     literals[number].c_str());
        E const value = omu_PrimEnum<E, 1>(cow_String(literals[number].c_str()));
        EXPECT_EQ(static_cast<unsigned>(value), number);
    }
    EXPECT_EQ(number, literals.size());
    EXPECT_THROW((omu_PrimEnum<E, 1>(static_cast<E>(number))), omu_ValueErrorException);
    EXPECT_THROW((omu_PrimEnum<E, 1>(cow_String(""))), omu_ValueErrorException);
}

TEST_F(MaterialFacts, EnumerationsHaveTheirLiteralsInOrder) {
    int count = 0;
    // The rows of a class's enumeration are those of its field.
#define ENUM(C, Enum, field, ...)                          \
    ++count;                                               \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__}); \
    EXPECT_EQ(C::Description().FindField(#field)->Type().Rows(), omu_Rows(C::Enum())) << #C;
#define LONE_ENUM(C, Enum, ...) \
    ++count;                    \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__});
#include "kmaC_literals.inc"
#undef ENUM
#undef LONE_ENUM
    EXPECT_EQ(count, 62);

    int fields = 0;
    for (ExpectedClass const& expected : Expected())
        for (ExpectedField const& field : expected.fields)
            if (field.type == 14) ++fields;
    EXPECT_EQ(fields, count - 1);
}

}  // namespace kmaC_facts_test
