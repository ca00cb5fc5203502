#include "ClassFacts.h"

#include <cstdint>
#include <cstring>

namespace nga_test {

namespace {

cls_MetadataDomain const domains[] = {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase};

bool IsScripted(ExpectedClass const& expected) { return !expected.constructor.empty(); }

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
            if (field.Type().Held() == &mdl_PropertyTable::Description()) {
                auto const& table = *static_cast<mdl_PropertyTable const*>(at);
                return table.Rows() == 0 && table.Columns() == 0 ? "empty" : "filled";
            }
            auto const& table = *static_cast<kmaC_MaterialTable const*>(at);
            if (table.Rows() != 0 || table.Columns() != 0) return "filled";
            return table.allowEmptyFirstRow ? "may begin blank" : "empty";
        }
        case mdl_FieldKind::Option:
            return field.Type().ConstObject(at, 0) ? "present" : "absent";
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            return field.Type().Count(at) == 0 ? "empty" : "filled";
        case mdl_FieldKind::DoubleList:
            return static_cast<cls_xp1DArrayListDouble const*>(at)->Size() == 0 ? "empty"
                                                                                : "filled";
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

}  // namespace

void ExpectRegistered(std::vector<ExpectedClass> const& classes) {
    for (cls_MetadataDomain domain : domains) {
        for (ExpectedClass const& expected : classes) {
            cls_ClassMetadata const* metadata = DomainOf(domain).Find(expected.typeId);
            ASSERT_NE(metadata, nullptr) << expected.name;
            EXPECT_EQ(metadata->Name(), cow_String(expected.name.c_str()));
            EXPECT_EQ(metadata->Version(), expected.version) << expected.name;
            EXPECT_EQ(metadata->ParentTypeId(), expected.parent) << expected.name;
            EXPECT_EQ(expected.saidTypeId, expected.typeId) << expected.name;
        }
    }
}

std::set<unsigned> OthersRegistered(std::vector<ExpectedClass> const& classes,
                                    cls_MetadataDomain domain, unsigned component) {
    std::set<unsigned> known;
    for (ExpectedClass const& expected : classes) known.insert(expected.typeId);
    std::set<unsigned> others;
    for (cls_ClassMetadata const* metadata : DomainOf(domain).Classes())
        if (metadata->TypeId() >> 16 == component && !known.count(metadata->TypeId()))
            others.insert(metadata->TypeId());
    return others;
}

void ExpectAttributes(std::vector<ExpectedClass> const& classes) {
    for (ExpectedClass const& expected : classes) {
        std::vector<cls_Attribute> const& attributes =
            DomainOf(cls_DomainDatabase).Find(expected.typeId)->Attributes();
        ASSERT_EQ(attributes.size(), expected.fields.size()) << expected.name;
        for (std::size_t i = 0; i < attributes.size(); ++i) {
            SCOPED_TRACE(expected.name + "::" + expected.fields[i].name);
            EXPECT_STREQ(attributes[i].field.Name().Text(), expected.fields[i].name.c_str());
            EXPECT_EQ(attributes[i].field.Index(), static_cast<int>(i));
            EXPECT_EQ(attributes[i].type, expected.fields[i].type);
            EXPECT_EQ(attributes[i].arg, expected.fields[i].arg);
            EXPECT_EQ(attributes[i].collection, expected.fields[i].collection);
        }
    }
}

void ExpectDescriptions(std::vector<ExpectedClass> const& classes) {
    DomainOf(cls_DomainDatabase);
    for (ExpectedClass const& expected : classes) {
        SCOPED_TRACE(expected.name);
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        ASSERT_NE(description, nullptr);
        // A root may have a name in scripts, and no script makes it.
        bool const isMade = IsScripted(expected) && !description->IsAbstract();
        EXPECT_EQ(description->Name(), expected.name);
        EXPECT_EQ(description->Version(), expected.version);
        EXPECT_EQ(description->ParentTypeId(), expected.parent);
        EXPECT_STREQ(description->Constructor(), isMade ? expected.constructor.c_str() : nullptr);
        ASSERT_EQ(description->Fields().size(), expected.fields.size());
        for (std::size_t i = 0; i < expected.fields.size(); ++i) {
            mdl_Field const& field = description->Fields()[i];
            EXPECT_EQ(field.Name(), expected.fields[i].name);
            EXPECT_EQ(field.Script(), expected.fields[i].script);
        }
        if (isMade) {
            EXPECT_EQ(mdl_Description::FindByConstructor(expected.constructor.c_str()),
                      description);
        }
    }
}

void ExpectScriptNames(std::vector<ExpectedClass> const& classes) {
    for (ExpectedClass const& expected : classes) {
        SCOPED_TRACE(expected.name);
        EXPECT_EQ(expected.saidConstructor, expected.constructor);
        EXPECT_EQ(expected.saidSetValues, "setValues");
        for (ExpectedField const& field : expected.fields)
            EXPECT_EQ(field.saidScript, field.script);
    }
}

void ExpectDefaults(std::vector<ExpectedClass> const& classes) {
    DomainOf(cls_DomainDatabase);
    for (ExpectedClass const& expected : classes) {
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        if (description->IsAbstract()) {
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

}  // namespace nga_test
