#include "nga_Path.h"

#include <gtest/gtest.h>

#include "DDB_NonGeometricAttributes.h"
#include "nex_Exception.h"
#include "nga_Error.h"
#include "nga_Json.h"
#include "nga_TextForm.h"
#include "nga_Tree.h"

namespace {

using nga::Document;
using nga::Resolve;
using nga::Selection;

class Paths : public testing::Test {
protected:
    Paths() : document(Document::New("frame")) {
        nga::ImportJson(document,
                        "{\"materials\": {\"steel\": {\"description\": \"EN\", \"elastic\": "
                        "{\"type\": \"LAMINA\", \"table\": [[1, 2], [3, 4]], \"failStress\": {}}}, "
                        "\"a].b[\": {}}, \"loadCases\": {\"wind\": {\"loads\": {\"gust\": 1.5}}}}");
        document.LoadCases().Get("wind").loads.Insert("it's", 1.5f);
    }
    std::string FailureOf(std::string const& path) {
        try {
            Resolve(document, path);
        } catch (nga::Error const& failure) {
            return failure.what();
        }
        return "nothing failed";
    }
    void EveryPathLeadsBack(nga::TreeNode const& node, std::string const& owner) {
        std::string const path = owner + node.step;
        EXPECT_EQ(Resolve(document, path).path, path);
        for (nga::TreeNode const& child : node.children) EveryPathLeadsBack(child, path);
    }
    Document document;
};

}  // namespace

TEST_F(Paths, EveryPathOfTheTreeLeadsBackToItself) {
    nga::TreeNode const tree = nga::BuildTree(document, Resolve(document, ""));
    EveryPathLeadsBack(tree, "");
    ASSERT_EQ(tree.children.size(), 2u);
    EXPECT_EQ(tree.children[0].children[1].children[0].step, ".options['elastic']");
    EXPECT_EQ(tree.children[0].children[1].children[0].children[0].step, ".options['failStress']");
}

TEST_F(Paths, LeadToObjectsValuesRowsCellsAndFactors) {
    Selection const elastic =
        Resolve(document, "documents['frame'].materials['steel'].options['elastic']");
    EXPECT_EQ(elastic.what, Selection::What::Object);
    EXPECT_EQ(elastic.object, document.Materials().ConstGet("steel").elastic.GetPtr());
    EXPECT_EQ(Resolve(document, "materials['steel'].description").what, Selection::What::Value);
    std::string const base = "materials[\"steel\"].options['elastic']";
    EXPECT_EQ(nga::ShowText(document, Resolve(document, base + ".type")), "LAMINA\n");
    EXPECT_EQ(nga::ShowText(document, Resolve(document, base + ".table[1]")), "[3.0, 4.0]\n");
    EXPECT_EQ(nga::ShowText(document, Resolve(document, base + ".table[1][0]")), "3.0\n");
    EXPECT_EQ(nga::ShowText(document, Resolve(document, base + ".failStrain")), "not set\n");
    EXPECT_EQ(nga::ShowText(document, Resolve(document, "loadCases['wind'].loads['it\\'s']")),
              "1.5\n");
    EXPECT_EQ(Resolve(document, "loadCases['wind'].loads[\"it's\"]").path,
              "documents['frame'].loadCases['wind'].loads['it\\'s']");
}

TEST_F(Paths, OnlyWhatAKeyLeadsToIsAnOptionOfItsOwner) {
    int keyed = 0;
    for (nga::NamedClass const& known : nga::ClassesBelow(kmaC_MaterialOption::Description())) {
        mdl_Description const* const owner = known.description;
        nga::DescribedObject object(owner->Create(), nga::DescribedDeleter{owner});
        for (mdl_Field const* field : owner->AllFields()) {
            if (field->Type().Kind() != mdl_FieldKind::Option) continue;
            // The shortcut itself is the judge: it raises for a key that it does not know.
            auto const& option = *static_cast<kmaC_MaterialOption const*>(object.get());
            bool known = true;
            try {
                auto const& found =
                    ddr_StepTraits<kmaC_MaterialOptionInMaterialOptionShortcut>::ConstGet(
                        option, cow_String(field->Script()));
                known = &found != &option;
            } catch (nex_Exception const&) {
                known = false;
            }
            std::string const step = nga::FieldStep(*owner, *field);
            EXPECT_EQ(step, known ? ".options['" + std::string(field->Script()) + "']"
                                  : "." + std::string(field->Script()))
                << owner->Name();
            keyed += known;
        }
    }
    EXPECT_GT(keyed, 50);
    auto const step = [](mdl_Description const& owner, char const* name) {
        return nga::FieldStep(owner, *owner.FindField(name));
    };
    EXPECT_EQ(step(kmaC_JointedMaterial::Description(), "bulkFailure"), ".bulkFailure");
    EXPECT_EQ(step(kmaC_Viscous::Description(), "potential"), ".potential");
    EXPECT_EQ(step(kmaC_Material::Description(), "mullinsEffect"), ".mullinsEffect");
    EXPECT_EQ(step(kmaC_Material::Description(), "foam"), ".options['crushableFoam']");
    EXPECT_EQ(step(kmaC_Foam::Description(), "foamHardening"),
              ".options['crushableFoamHardening']");
}

TEST_F(Paths, AnOptionIsReachedAsAnAttributeTooAndSaysItsOwnPath) {
    EXPECT_EQ(Resolve(document, ".materials['steel'].elastic").path,
              "documents['frame'].materials['steel'].options['elastic']");
}

TEST_F(Paths, NamesWithBracketsAndDotsAreKeys) {
    EXPECT_EQ(Resolve(document, "materials['a].b[']").key, "a].b[");
}

TEST_F(Paths, AStepThatLeadsNowhereIsNamedWithWhatIsNear) {
    std::string const at = "documents['frame'].materials";
    EXPECT_EQ(FailureOf("materials['stell']"),
              at + ": there is no entry 'stell' (did you mean 'steel'?)");
    EXPECT_EQ(FailureOf("material"),
              "documents['frame']: there is no collection 'material' (did you mean 'materials'?)");
    EXPECT_EQ(
        FailureOf("materials['steel'].options['elastik']"),
        at + "['steel']: there is no option 'elastik' (did you mean 'elastic' or 'plastic'?)");
    EXPECT_EQ(FailureOf("materials['steel'].descripton"),
              at + "['steel']: there is no attribute 'descripton' (did you mean 'description'?)");
    EXPECT_EQ(FailureOf("materials['steel'].options['density']"),
              at + "['steel'].options['density']: the option is not set");
    EXPECT_EQ(FailureOf("materials['steel'].options['elastic'].table[2]"),
              at + "['steel'].options['elastic'].table: there is no row 2; "
                   "expected a number from 0 to 1");
    EXPECT_EQ(FailureOf("materials['steel'].options['elastic'].table[0][-1]"),
              at + "['steel'].options['elastic'].table[0]: there is no column -1; "
                   "expected a number from 0 to 1");
    EXPECT_EQ(FailureOf("documents['other'].materials"),
              "documents['other'].materials: there is no document 'other' here; "
              "expected documents['frame']");
}

TEST_F(Paths, WhatCannotBeReadSaysWhere) {
    for (char const* path :
         {"materials['steel'", "materials[steel]", "materials['steel']x", "materials['steel'].",
          "materials[", "materials[']", "materials['\\x1']", "materials['\\", "..", "documents",
          "materials['steel'].options", "materials['steel'].options.elastic", "['steel']",
          "materials.steel", "materials[0]", "materials['steel'].description.x",
          "materials[99999999999999999999]"})
        EXPECT_NE(FailureOf(path), "nothing failed") << path;
    EXPECT_EQ(FailureOf("materials['steel']x"),
              "materials['steel']x: the path cannot be read at character 19; "
              "expected a '.' or a '['");
}

TEST_F(Paths, NamesThatOnlyAFileCouldHoldArePrintedSoThatTheyCanBeTypedBack) {
    for (std::string const& name : {std::string("it's"), std::string("a\\b"), std::string("\n"),
                                    std::string("\xff"), std::string("a\0b", 3)}) {
        cow_String const key{std::string_view(name)};
        document.Materials().Insert(key, new kmaC_Material);
        std::string const path =
            nga::EntryPath("documents['frame']", *nga::Collection::FindByName("materials"), name);
        Selection const found = Resolve(document, path);
        EXPECT_EQ(found.object, document.Materials().ConstGetPtr(key));
        EXPECT_EQ(found.path, path);
    }
}
