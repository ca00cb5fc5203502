#include "nga_Check.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "module/kma/kmaC_RuleLines.h"
#include "nex_Exception.h"
#include "nga_Path.h"
#include "nga_Start.h"

namespace {

using nga::Document;
using nga::Finding;

using nga::CheckDepth;

kmaC_MaterialTable BlankRows(int rows) { return kmaC_MaterialTable(rows, 2); }

}  // namespace

TEST(Check, AnEmptyDocumentHasNoFindings) {
    EXPECT_TRUE(nga::Check(Document::New("document")).empty());
}

TEST(Check, EveryFailingObjectIsListedOnceWithPathCodeAndMessage) {
    Document document = Document::New("frame");
    auto* steel = new kmaC_Material;
    auto* elastic = new kmaC_Elastic;
    elastic->table = BlankRows(3);
    elastic->failStress = new kmaC_FailStress;
    elastic->failStress.Get().table = BlankRows(1);
    steel->elastic = elastic;
    document.Materials().Insert("steel", steel);
    auto* wind = new klcC_LoadCase;
    wind->loads.Insert("a", 0.0f);
    wind->loads.Insert("b", -0.0f);
    wind->fields.Insert("c", 0.0f);
    document.LoadCases().Insert("wind", wind);
    document.LoadCases().Insert("calm", new klcC_LoadCase);

    std::vector<Finding> const findings = nga::Check(document);
    ASSERT_EQ(findings.size(), 3u);
    EXPECT_EQ(findings[1].path, "documents['frame'].materials['steel'].options['elastic'].table");
    EXPECT_EQ(findings[0].module, "kma");
    EXPECT_EQ(findings[0].code, 21);
    EXPECT_EQ(findings[0].message, std::string(kmaC_ErrorText(kmaC_ErrorEnm(21)).View()));
    EXPECT_EQ(findings[0].path,
              "documents['frame'].materials['steel'].options['elastic']"
              ".options['failStress'].table");
    EXPECT_EQ(findings[2].path, "documents['frame'].loadCases['wind']");
    EXPECT_EQ(findings[2].module, "klc");
    EXPECT_EQ(findings[2].code, 0);
    EXPECT_EQ(findings[2].message, "A scale factor cannot be zero or blank.");
}

TEST(Check, FindsSomethingExactlyWhereAssertValidRaises) {
    for (bool const blank : {false, true}) {
        Document document = Document::New("frame");
        auto* steel = new kmaC_Material;
        auto* density = new kmaC_Density;
        // The first row of a density may be blank, no other.
        density->table.table = cow_2DArray<double>(blank ? 2 : 1, 1);
        steel->density = density;
        document.Materials().Insert("steel", steel);
        bool raised = false;
        try {
            document.Materials().ConstGet("steel").AssertValid();
        } catch (nex_Exception const&) {
            raised = true;
        }
        EXPECT_EQ(!nga::Check(document).empty(), raised);
        EXPECT_EQ(raised, blank);
    }
}

TEST(Check, ReadsWithoutRecordingOrDetaching) {
    Document document = Document::New("frame");
    document.Materials().Insert("steel", new kmaC_Material);
    double const before = document.Materials().ChangeTime();
    nga::Check(document);
    EXPECT_EQ(document.Materials().ChangeTime(), before);
    EXPECT_EQ(document.Materials().ChangedKeys().Size(), 1);
}

namespace {

using kmaC_test::Break;
using kmaC_test::Line;
using kmaC_test::Option;

/// The first finding's code, or that nothing was found.
int FirstCode(std::vector<Finding> const& findings) {
    return findings.empty() ? kmaC_test::passes : findings.front().code;
}
std::vector<Finding> CheckOf(Option& option, CheckDepth depth = CheckDepth::Asked) {
    return nga::Check(option.Description(), option.Address(), "it", depth);
}
bool HasPath(std::vector<Finding> const& findings, std::string const& path, bool note = false) {
    return std::any_of(findings.begin(), findings.end(), [&](Finding const& finding) {
        return finding.path == path && finding.note == note;
    });
}

}  // namespace

TEST(Check, FindsFirstWhatAssertValidRaisesForEveryRule) {
    nga::Start();
    int tried = 0;
    for (Line const& line : kmaC_test::RuleLines()) {
        Option sound(line.className);
        sound.Set(line.settings);
        EXPECT_TRUE(CheckOf(sound).empty()) << kmaC_test::Describe(line);
        for (std::vector<Break> const& ways : kmaC_test::BreaksOf(line))
            for (Break const& way : ways) {
                Option option(line.className);
                option.Set(line.settings);
                kmaC_test::Apply(option, way);
                EXPECT_EQ(FirstCode(CheckOf(option)), option.Verdict())
                    << kmaC_test::Describe(line) << ": " << way.member << ' ' << way.settings;
                ++tried;
            }
    }
    EXPECT_GT(tried, 400);
}

TEST(Check, FindsFirstWhatAssertValidRaisesWhereTwoRulesAreBroken) {
    nga::Start();
    int tried = 0;
    for (Line const& line : kmaC_test::RuleLines()) {
        std::vector<std::vector<Break>> const steps = kmaC_test::BreaksOf(line);
        for (std::size_t first = 0; first < steps.size(); ++first)
            for (std::size_t second = first + 1; second < steps.size(); ++second) {
                if (steps[first].empty() || steps[second].empty()) continue;
                Break const& a = steps[first].front();
                Break const& b = steps[second].front();
                Option option(line.className);
                option.Set(line.settings);
                kmaC_test::Apply(option, b);
                kmaC_test::Apply(option, a);
                std::vector<Finding> const findings = CheckOf(option);
                EXPECT_EQ(FirstCode(findings), option.Verdict()) << kmaC_test::Describe(line);
                // The owner's own failure and that of its member stand side by side.
                // What fails by the absence of a member cannot stand beside one.
                Break const& own = a.member.empty() ? a : b;
                bool const absent = own.settings.find("=none") != std::string::npos;
                if (a.member.empty() != b.member.empty() && !absent) {
                    EXPECT_GE(findings.size(), 2u);
                }
                ++tried;
            }
    }
    EXPECT_GT(tried, 200);
}

TEST(Check, AnOwnerAndItsSuboptionThatBothFailAreBothListed) {
    nga::Start();
    Option elastic("kmaC_Elastic");
    elastic.Set("dependencies=-1 failStress.dependencies=-1 failStrain.table=blankrow");
    std::vector<Finding> const findings = CheckOf(elastic);
    ASSERT_EQ(findings.size(), 3u);
    EXPECT_TRUE(HasPath(findings, "it"));
    EXPECT_TRUE(HasPath(findings, "it.options['failStress']"));
    EXPECT_TRUE(HasPath(findings, "it.options['failStrain'].table"));
}

TEST(Check, AMessageThatNamesSomethingIsOfAnotherTableOfCodes) {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    {
        kbeC_ConnectorElasticity elasticity;
        elasticity.components.Append(1);
        elasticity.table = mdl_PropertyTable(cow_2DArray<double>(0, 1));
        elasticity.options = new kbeC_ConnectorOptions;
        elasticity.options.Get().defaultRateFactor = false;
        std::vector<Finding> const findings =
            nga::Check(kbeC_ConnectorElasticity::Description(), &elasticity, "hinge");
        ASSERT_EQ(findings.size(), 1u);
        EXPECT_EQ(findings[0].path, "hinge");
        EXPECT_EQ(findings[0].module, "kbe content");
        EXPECT_EQ(findings[0].code, 1);
        EXPECT_EQ(findings[0].message,
                  "Table rate options cannot be specified for this behavior (Elasticity).");
    }
    DDB_NonGeometricAttributes_finalize(count);
}

TEST(Check, ElementsOfListsHaveTheirIndexInThePath) {
    nga::Start();
    Option mullins("kmaC_MullinsEffect");
    mullins.Set("definition=TEST_DATA planarTests=+kmaC_Elastic planarTests=+kmaC_Elastic");
    mullins.Set("planarTests.dependencies=-1");
    std::vector<Finding> const findings = CheckOf(mullins);
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].path, "it.planarTests[1]");
    EXPECT_EQ(findings[0].code, 0);
}

TEST(Check, WhatNobodyAsksIsANoteOfADeepCheckAlone) {
    Document document = Document::New("frame");
    auto* soil = new kmaC_Material;
    soil->ductileDamageInitiation = new kmaC_DamageInitiation;
    soil->ductileDamageInitiation.Get().table = BlankRows(2);
    soil->mohrCoulomb = new kmaC_MohrCoulomb;
    soil->mohrCoulomb.Get().mohrCoulombHardening = new kmaC_MohrCoulombHardening;
    soil->mohrCoulomb.Get().mohrCoulombHardening.Get().table = BlankRows(2);
    document.Materials().Insert("soil", soil);
    std::vector<Finding> const plain = nga::Check(document);
    std::vector<Finding> const deep = nga::Check(document, CheckDepth::All);
    std::string const at = "documents['frame'].materials['soil']";
    for (Finding const& finding : plain) EXPECT_FALSE(finding.note);
    // What the plain check finds is found first and the same.
    ASSERT_GT(deep.size(), plain.size());
    std::size_t found = 0;
    for (Finding const& finding : deep) found += finding.note ? 0u : 1u;
    EXPECT_EQ(found, plain.size());
    std::string const hardening = at +
                                  ".options['mohrCoulombPlasticity']"
                                  ".options['mohrCoulombHardening'].table";
    EXPECT_TRUE(HasPath(deep, hardening, true));
    EXPECT_FALSE(HasPath(plain, hardening));
    EXPECT_TRUE(HasPath(deep, at + ".options['ductileDamageInitiation'].table", true));
}

TEST(Check, NamesThatNoImportLetsPassAreTold) {
    Document document = Document::New("frame");
    document.Materials().Insert("steel", new kmaC_Material);
    document.Materials().Insert("it's", new kmaC_Material);
    auto* wind = new klcC_LoadCase;
    wind->loads.Insert("fine", 1.0f);
    wind->loads.Insert("a\\b", 1.0f);
    document.LoadCases().Insert("wind", wind);
    EXPECT_EQ(nga::UnusableNames(document),
              std::vector<std::string>({"documents['frame'].materials['it\\'s']",
                                        "documents['frame'].loadCases['wind'].loads['a\\\\b']"}));
}
