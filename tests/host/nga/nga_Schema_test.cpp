#include "nga_Schema.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "cls_ClassMetadata.h"
#include "nga_Error.h"
#include "nga_JsonTree.h"

TEST(Schema, NamesConstructorsAndNumbersMeanTheSameClass) {
    auto const byName = nga::SchemaClasses("kmaC_Elastic");
    ASSERT_EQ(byName.size(), 1u);
    EXPECT_EQ(nga::SchemaClasses("Elastic"), byName);
    EXPECT_EQ(nga::SchemaClasses("0x238001e"), byName);
}

TEST(Schema, AnUnknownClassListsTheNear) {
    try {
        nga::SchemaClasses("kmaC_Elastik");
        FAIL();
    } catch (nga::Error const& failure) {
        EXPECT_EQ(failure.Message().rfind(
                      "there is no class 'kmaC_Elastik' (did you mean 'kmaC_Elastic'", 0),
                  0u);
    }
}

TEST(Schema, TheTextShowsNumbersCodesLiteralsAndDefaults) {
    std::string const text = nga::SchemaText(nga::SchemaClasses("klcC_LoadCase"));
    EXPECT_EQ(text.rfind("klcC_LoadCase  0x2DC0001  version 302  script LoadCase\n", 0), 0u);
    EXPECT_NE(text.find("  1  fields                    predefinedFields          15    0x230002  "
                        "63          map from text to floats  {}\n"),
              std::string::npos)
        << text;
    EXPECT_NE(nga::SchemaText(nga::SchemaClasses("Elastic")).find("LAMINA, TRACTION"),
              std::string::npos);
}

TEST(Schema, TheJsonHoldsEveryRegisteredClassAndField) {
    auto const classes = nga::SchemaClasses();
    nga::JsonNode const root = nga::ParseJson(nga::SchemaJson(classes));
    ASSERT_EQ(root.elements.size(), classes.size());
    for (std::size_t i = 0; i < classes.size(); ++i) {
        nga::JsonNode const& shown = root.elements[i];
        EXPECT_EQ(shown.Find("name")->text, std::string(classes[i]->Name().View()));
        EXPECT_EQ(shown.Find("version")->integer, classes[i]->Version());
        std::vector<cls_Attribute> const& attributes = classes[i]->Attributes();
        ASSERT_EQ(shown.Find("fields")->elements.size(), attributes.size());
        for (std::size_t j = 0; j < attributes.size(); ++j) {
            nga::JsonNode const& field = shown.Find("fields")->elements[j];
            EXPECT_EQ(field.Find("name")->text, std::string(attributes[j].field.Name().View()));
            EXPECT_EQ(field.Find("code")->integer, attributes[j].type);
            EXPECT_EQ(field.Find("collection")->integer, attributes[j].collection);
        }
    }
}

namespace {

nga::JsonNode FieldOf(nga::JsonNode const& root, std::string const& name) {
    for (nga::JsonNode const& field : root.elements[0].Find("fields")->elements)
        if (field.Find("name")->text == name) return field;
    ADD_FAILURE() << "no field " << name;
    return nga::JsonNode();
}
nga::JsonNode Shown(char const* className) {
    return nga::ParseJson(nga::SchemaJson(nga::SchemaClasses(className)));
}

}  // namespace

TEST(Schema, HeldClassesAreNamedAsTheyAreRegistered) {
    std::string const registered =
        std::string(nga::SchemaClasses("kmaC_SoretEffect")[0]->Name().View());
    EXPECT_EQ(FieldOf(Shown("kmaC_Diffusivity"), "soretEffect").Find("type")->text, registered);
    std::vector<std::string> names;
    for (cls_ClassMetadata const* metadata : nga::SchemaClasses())
        names.emplace_back(metadata->Name().View());
    int held = 0;
    for (nga::JsonNode const& shown :
         nga::ParseJson(nga::SchemaJson(nga::SchemaClasses())).elements)
        for (nga::JsonNode const& field : shown.Find("fields")->elements) {
            if (field.Find("code")->integer != cls_AttributeObject) continue;
            if (field.Find("collection")->integer != cls_CollectionNone) continue;
            ++held;
            EXPECT_EQ(std::count(names.begin(), names.end(), field.Find("type")->text), 1)
                << shown.Find("name")->text << ' ' << field.Find("name")->text;
        }
    EXPECT_GT(held, 150);
}

TEST(Schema, ATableTellsTheFlagThatItsOwnerSets) {
    nga::JsonNode const density = Shown("kmaC_Density");
    nga::JsonNode const table = FieldOf(density, "table");
    ASSERT_NE(table.Find("default")->Find("allowEmptyFirstRow"), nullptr);
    EXPECT_TRUE(table.Find("default")->Find("allowEmptyFirstRow")->boolean);
    EXPECT_NE(nga::SchemaText(nga::SchemaClasses("kmaC_Density"))
                  .find("{\"allowEmptyFirstRow\": true, \"data\": []}"),
              std::string::npos);
    nga::JsonNode const usual = FieldOf(Shown("kmaC_Elastic"), "table");
    EXPECT_EQ(usual.Find("default")->kind, nga::JsonNode::Kind::Array);
}

TEST(Schema, OptionsAndNumbersThatAreNotSetAreNull) {
    EXPECT_EQ(FieldOf(Shown("kmaC_Elastic"), "failStress").Find("default")->kind,
              nga::JsonNode::Kind::Null);
    nga::JsonNode const beta = FieldOf(Shown("kmaC_Hyperelastic"), "beta");
    EXPECT_EQ(beta.Find("default")->kind, nga::JsonNode::Kind::Null);
    ASSERT_NE(beta.Find("literals"), nullptr);
    EXPECT_EQ(beta.Find("literals")->elements[0].text, "FITTED_VALUE");
    EXPECT_EQ(FieldOf(Shown("kmaC_MullinsEffect"), "planarTests").Find("default")->kind,
              nga::JsonNode::Kind::Array);
}
