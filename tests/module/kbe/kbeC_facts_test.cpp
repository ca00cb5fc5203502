#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"

namespace kbeC_facts_test {

struct ExpectedField {
    std::string name;
    int type;
    unsigned arg;
    int collection;
    std::string defaultValue;
    std::string saidScript;  ///< what the class's nameCmd() gives
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
#define FIELD(C, name, type, arg, collection, value) \
    add(#C, {#name, type, arg, collection, value, C::name##Cmd().Text()});
#include "kbeC_facts.inc"
#undef CLASS
#undef FIELD
    return classes;
}

std::vector<ExpectedClass> const& Expected() {
    static std::vector<ExpectedClass> const classes = MakeExpected();
    return classes;
}

bool IsBase(ExpectedClass const& expected) { return expected.typeId == 0x2A80008u; }

class ConnectorFacts : public testing::Test {
protected:
    ConnectorFacts() { DDB_NonGeometricAttributes_initialize(m_count); }
    ~ConnectorFacts() override { DDB_NonGeometricAttributes_finalize(m_count); }

    static cls_ClassRegistrar const& Domain(cls_MetadataDomain domain) {
        return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(domain);
    }

private:
    int m_count = 0;
};

constexpr cls_MetadataDomain domains[] = {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase};

TEST_F(ConnectorFacts, AreThoseOfFifteenClassesAndARepository) {
    std::set<unsigned> known = {0x2A80007};
    for (ExpectedClass const& expected : Expected()) known.insert(expected.typeId);
    EXPECT_EQ(Expected().size(), 15u);
    EXPECT_EQ(known.size(), 16u);
    for (cls_MetadataDomain domain : domains) {
        std::set<unsigned> registered;
        for (cls_ClassMetadata const* metadata : Domain(domain).Classes())
            if (metadata->TypeId() >> 16 == kbeC_component) registered.insert(metadata->TypeId());
        EXPECT_EQ(registered, known);
    }
}

TEST(ConnectorModule, OnlyTheOutermostPairOfCallsCounts) {
    int count = 0;
    kbeC_initialize(count);
    EXPECT_EQ(count, 1);
    int inner = 7;
    kbeC_initialize(inner);
    kbeC_formalize();
    kbeC_finalize(inner);
    EXPECT_EQ(inner, 7);
    kbeC_finalize(count);
    EXPECT_EQ(count, 0);
}

TEST_F(ConnectorFacts, EveryClassIsRegisteredAsItStands) {
    for (cls_MetadataDomain domain : domains) {
        for (ExpectedClass const& expected : Expected()) {
            SCOPED_TRACE(expected.name);
            cls_ClassMetadata const* metadata = Domain(domain).Find(expected.typeId);
            ASSERT_NE(metadata, nullptr);
            EXPECT_STREQ(metadata->Name().Text(), expected.name.c_str());
            EXPECT_EQ(metadata->Version(), expected.version);
            EXPECT_EQ(metadata->ParentTypeId(), expected.parent);
            EXPECT_EQ(expected.saidTypeId, expected.typeId);
            EXPECT_EQ(metadata->HasCtor(),
                      !IsBase(expected) && expected.name != "kbeC_ContactForce");
            std::vector<cls_Attribute> const& attributes = metadata->Attributes();
            ASSERT_EQ(attributes.size(), expected.fields.size());
            for (std::size_t i = 0; i < attributes.size(); ++i) {
                SCOPED_TRACE(expected.fields[i].name);
                EXPECT_STREQ(attributes[i].field.Name().Text(), expected.fields[i].name.c_str());
                EXPECT_EQ(attributes[i].type, expected.fields[i].type);
                EXPECT_EQ(attributes[i].arg, expected.fields[i].arg);
                EXPECT_EQ(attributes[i].collection, expected.fields[i].collection);
            }
        }
    }
}

TEST_F(ConnectorFacts, TheRepositoryHasOneAttribute) {
    for (cls_MetadataDomain domain : domains) {
        cls_ClassMetadata const* metadata = Domain(domain).Find(0x2A80007);
        ASSERT_NE(metadata, nullptr);
        EXPECT_STREQ(metadata->Name().Text(), "kbeC_BehaviorOptionContainer");
        EXPECT_EQ(metadata->Version(), 507);
        EXPECT_EQ(metadata->ParentTypeId(), mdl_RepositoryTypeId);
        ASSERT_EQ(metadata->Attributes().size(), 1u);
        cls_Attribute const& map = metadata->Attributes()[0];
        EXPECT_STREQ(map.field.Name().Text(), "map");
        EXPECT_EQ(map.type, 15);
        EXPECT_EQ(map.arg, 0x230002u);
        EXPECT_EQ(map.collection, 3);
    }
}

TEST_F(ConnectorFacts, ScriptNamesAreTheNames) {
    for (ExpectedClass const& expected : Expected()) {
        SCOPED_TRACE(expected.name);
        EXPECT_EQ(expected.saidConstructor, expected.constructor);
        EXPECT_EQ(expected.saidSetValues, "setValues");
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        ASSERT_NE(description, nullptr);
        EXPECT_EQ(description->IsAbstract(), IsBase(expected));
        if (!IsBase(expected)) {
            EXPECT_EQ(mdl_Description::FindByConstructor(expected.constructor.c_str()),
                      description);
        }
        for (ExpectedField const& field : expected.fields) {
            EXPECT_EQ(field.saidScript, field.name);
            mdl_Field const* described = description->FindField(field.name.c_str());
            ASSERT_NE(described, nullptr);
            EXPECT_EQ(described->Script(), field.name);
        }
    }
    EXPECT_STREQ(kbeC_ContactForce::dataCmd().Text(), "data");
}

std::string TextOf(mdl_Field const& field, void const* object) {
    void const* const at = field.At(object);
    mdl_FieldType const& type = field.Type();
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
            return std::to_string(*static_cast<int const*>(at));
        case mdl_FieldKind::Bool:
            return *static_cast<bool const*>(at) ? "true" : "false";
        case mdl_FieldKind::Enum:
            return omu_PrimEnumBase::FindRow(type.Rows(), type.Number(at))->literal;
        case mdl_FieldKind::Object: {
            auto const& table = *static_cast<mdl_PropertyTable const*>(at);
            return table.Rows() == 0 && table.Columns() == 0 ? "empty" : "filled";
        }
        case mdl_FieldKind::Option:
            return type.ConstObject(at, 0) ? "present" : "absent";
        case mdl_FieldKind::ObjectList:
            return type.Count(at) == 0 ? "empty" : "filled";
        case mdl_FieldKind::IntList:
            return static_cast<cls_xp1DArrayListInt const*>(at)->Size() == 0 ? "empty" : "filled";
        case mdl_FieldKind::Array: {
            auto const& array = *static_cast<cls_xp2DArrayDouble const*>(at);
            return array.Rows() == 0 && array.Columns() == 0 ? "empty" : "filled";
        }
        default:
            return "unexpected kind of field";
    }
}

TEST_F(ConnectorFacts, ANewObjectHoldsTheDefaults) {
    for (ExpectedClass const& expected : Expected()) {
        if (IsBase(expected)) continue;
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        ASSERT_NE(description, nullptr);
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
    EXPECT_THROW((omu_PrimEnum<E, 1>(cow_String("MACAULAY"))), omu_ValueErrorException);
}

TEST_F(ConnectorFacts, EnumerationsHaveTheirLiteralsInOrder) {
    int ofFields = 0;
    int alone = 0;
    // The rows of a class's enumeration are those of its field.
#define ENUM(C, Enum, field, ...)                          \
    ++ofFields;                                            \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__}); \
    EXPECT_EQ(C::Description().FindField(#field)->Type().Rows(), omu_Rows(C::Enum())) << #C;
#define LONE_ENUM(C, Enum, ...) \
    ++alone;                    \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__});
#include "kbeC_literals.inc"
#undef ENUM
#undef LONE_ENUM
    EXPECT_EQ(alone, 2);
    int fields = 0;
    for (ExpectedClass const& expected : Expected())
        for (ExpectedField const& field : expected.fields)
            if (field.type == 14) ++fields;
    EXPECT_EQ(ofFields, fields);
}

TEST_F(ConnectorFacts, TheValuesOfWhatIsNotSetAreTheGreatest) {
    EXPECT_EQ(kbeC_NotSet, 1.7976931348623157e308);
    EXPECT_EQ(kbeC_NotSetInt, 2147483647);
    EXPECT_EQ(kbeC_ConnectorLock::allComponents, -1);
    EXPECT_EQ(kbeC_ConnectorFailure::allComponents, -1);
    EXPECT_EQ(kbeC_ConnectorDamage::noLowerLimit, -1e36);
    EXPECT_EQ(kbeC_ConnectorDamage::noUpperLimit, 1e36);
}

}  // namespace kbeC_facts_test
