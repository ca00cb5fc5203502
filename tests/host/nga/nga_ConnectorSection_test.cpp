#include "nga_ConnectorSection.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "host/cli/tool_runner.h"
#include "kbeC_ConnectorLock.h"
#include "nex_TextException.h"
#include "nga_Check.h"
#include "nga_Document.h"
#include "nga_Error.h"
#include "nga_Json.h"
#include "nga_Path.h"
#include "nga_Start.h"
#include "nga_TextForm.h"

namespace {

using nga::Document;

nga_ConnectorSection const& SectionOf(Document const& document, char const* name) {
    for (nga::Collection const* collection : nga::Collection::All())
        if (std::string(collection->Name()) == "sections")
            return *static_cast<nga_ConnectorSection const*>(
                collection->Find(document.Model(), name));
    throw std::logic_error("no sections");
}

/// A document with one section "s", from the JSON of its members.
Document WithSection(std::string const& members) {
    Document document = Document::New("m");
    nga::ImportJson(document, "{\"sections\": {\"s\": {" + members + "}}}");
    return document;
}

std::string const linear =
    "{\"class\": \"ConnectorElasticity\", \"components\": [1], \"table\": [[5]]}";

/// What the section raises; empty if nothing.
std::string Raised(std::string const& members) {
    Document const document = WithSection(members);
    std::string raised;
    try {
        SectionOf(document, "s").AssertValid();
    } catch (nex_TextException const& failure) {
        raised = failure.UserReport().Text();
    }
    // The check that collects begins with the same failure, whoever's it is.
    std::vector<nga::Finding> const findings = nga::Check(document);
    EXPECT_EQ(findings.empty(), raised.empty()) << members;
    return raised;
}
std::string RaisedBy(std::string const& option, std::string const& available) {
    return Raised("\"options\": [" + option + "], \"availableComponents\": " + available);
}

std::string Unavailable(std::string const& available) {
    return "Unavailable connector components have been specified (CORM: " + available + ").";
}
char const* const absentForce =
    "Derived component for contact force must be specified when contactForceStyle is set to "
    "DerivedComponent.";
char const* const absentPotential = "Derived component name for potential must be specified.";
char const* const unavailableDerived =
    "Derived component specifies components that are not available CORM.";

}  // namespace

TEST(ConnectorSection, IsMadeWithNoBehaviourNoVariableAndAllSixComponents) {
    nga::Start();
    nga_ConnectorSection const section;
    EXPECT_EQ(section.options.Size(), 0);
    EXPECT_EQ(section.stateVariables, 0);
    EXPECT_EQ(section.availableComponents.Size(), 0);
    EXPECT_NO_THROW(section.AssertValid());
    EXPECT_EQ(RaisedBy("{\"class\": \"ConnectorStop\", \"components\": [1,2,3,4,5,6], "
                       "\"maxMotion\": 1}",
                       "[]"),
              "");
}

TEST(ConnectorSection, StateVariablesAreNotNegative) {
    EXPECT_EQ(Raised("\"stateVariables\": 0"), "");
    EXPECT_EQ(Raised("\"stateVariables\": 7"), "");
    EXPECT_EQ(Raised("\"stateVariables\": -1"),
              "Number of state dependent variables must be greater than or equal to zero.");
}

TEST(ConnectorSection, AvailableComponentsAreOneToSix) {
    EXPECT_EQ(Raised("\"availableComponents\": [6, 1]"), "");
    for (char const* wrong : {"[0]", "[1, 7]", "[-1]"})
        EXPECT_EQ(Raised("\"availableComponents\": " + std::string(wrong)),
                  "Specified components must be between 1 and 6.");
}

TEST(ConnectorSection, BehavioursAreAskedBeforeTheirComponents) {
    EXPECT_EQ(RaisedBy("{\"class\": \"ConnectorStop\", \"components\": [2]}", "[1]"),
              "At least one displacement limit must be defined.");
    EXPECT_EQ(Raised("\"stateVariables\": -1, \"options\": [{\"class\": \"ConnectorStop\"}]"),
              "Number of state dependent variables must be greater than or equal to zero.");
}

TEST(ConnectorSection, EveryBehaviourIsHeldToTheAvailableComponents) {
    // Each refers to component 3, and to no other but 1.
    std::vector<std::string> const options = {
        "{\"class\": \"ConnectorElasticity\", \"components\": [1, 3], \"table\": [[5, 5]]}",
        "{\"class\": \"ConnectorDamping\", \"components\": [3, 1], \"table\": [[5, 5]]}",
        "{\"class\": \"ConnectorElasticity\", \"behavior\": \"NONLINEAR\", \"coupling\": "
        "\"COUPLED_POSITION\", \"components\": [1], \"independentComponents\": [3], \"table\": "
        "[[5, 5]]}",
        "{\"class\": \"ConnectorDamping\", \"behavior\": \"NONLINEAR\", \"coupling\": "
        "\"COUPLED_MOTION\", \"components\": [1], \"independentComponents\": [3], \"table\": "
        "[[5, 5, 5]]}",
        "{\"class\": \"ConnectorStop\", \"components\": [3], \"maxMotion\": 1}",
        "{\"class\": \"ConnectorLock\", \"components\": [3], \"maxMotion\": 1}",
        "{\"class\": \"ConnectorLock\", \"components\": [1], \"lockingComponent\": 3, "
        "\"maxMotion\": 1}",
        "{\"class\": \"ConnectorFailure\", \"components\": [3], \"maxMotion\": 1}",
        "{\"class\": \"ConnectorFailure\", \"components\": [1], \"releaseComponent\": 3, "
        "\"maxMotion\": 1}",
        "{\"class\": \"ConnectorFriction\", \"frictionModel\": \"USER_CUSTOMIZED\", "
        "\"tangentDirection\": 3, \"table\": [[1]]}",
        "{\"class\": \"ConnectorFriction\", \"frictionModel\": \"USER_CUSTOMIZED\", "
        "\"tangentDirection\": 1, \"useContactForceComponent\": true, "
        "\"contactForceComponent\": 3}",
        "{\"class\": \"ConnectorFriction\", \"frictionModel\": \"USER_CUSTOMIZED\", "
        "\"tangentDirection\": 1, \"componentType\": \"POSITION\", "
        "\"independentComponents\": [3], \"table\": [[1]]}",
        "{\"class\": \"ConnectorFriction\", \"frictionModel\": \"USER_CUSTOMIZED\", "
        "\"slipStyle\": \"COMPUTE\", \"connectorPotentials\": [{\"componentNumber\": 3}], "
        "\"table\": [[1]]}",
        "{\"class\": \"ConnectorPlasticity\", \"components\": [3], \"isotropicTable\": "
        "[[1, 0, 0]]}",
        "{\"class\": \"ConnectorPlasticity\", \"coupling\": \"COUPLED\", "
        "\"connectorPotentials\": [{\"componentNumber\": 3}], \"isotropicTable\": [[1, 0, 0]]}",
        "{\"class\": \"ConnectorDamage\", \"components\": [3], \"initiationTable\": [[1, 2]], "
        "\"evolutionTable\": [[1]]}",
        "{\"class\": \"ConnectorDamage\", \"components\": [1], \"useAffected\": true, "
        "\"affectedComponents\": [3], \"initiationTable\": [[1, 2]], \"evolutionTable\": [[1]]}",
        "{\"class\": \"ConnectorDamage\", \"coupling\": \"COUPLED\", "
        "\"initiationPotentials\": [{\"componentNumber\": 3}], \"initiationTable\": [[1, 2]], "
        "\"evolutionTable\": [[1]]}",
        "{\"class\": \"ConnectorDamage\", \"coupling\": \"COUPLED\", "
        "\"evolutionPotentials\": [{\"componentNumber\": 3}], \"initiationTable\": [[1, 2]], "
        "\"evolutionTable\": [[1]]}",
    };
    for (std::string const& option : options) {
        EXPECT_EQ(RaisedBy(option, "[]"), "") << option;
        EXPECT_EQ(RaisedBy(option, "[1, 3]"), "") << option;
        EXPECT_EQ(RaisedBy(option, "[1]"), Unavailable("1")) << option;
        EXPECT_EQ(RaisedBy(option, "[4, 1, 2]"), Unavailable("4, 1, 2")) << option;
    }
}

TEST(ConnectorSection, WhatIsSwitchedOffIsNotHeldToThem) {
    for (std::string const option :
         {"{\"class\": \"ConnectorFriction\", \"tangentDirection\": 3, "
          "\"connectorPotentials\": [{\"componentNumber\": 3}], "
          "\"useContactForceComponent\": true, \"contactForceStyle\": \"DERIVED_COMPONENT\"}",
          "{\"class\": \"ConnectorFriction\", \"frictionModel\": \"USER_CUSTOMIZED\", "
          "\"tangentDirection\": 1, \"connectorPotentials\": [{\"componentNumber\": 3}], "
          "\"contactForceComponent\": 3, \"independentComponents\": [3], \"table\": [[1]]}",
          "{\"class\": \"ConnectorFriction\", \"frictionModel\": \"USER_CUSTOMIZED\", "
          "\"slipStyle\": \"COMPUTE\", \"tangentDirection\": 3, \"table\": [[1]]}",
          "{\"class\": \"ConnectorPlasticity\", \"components\": [1], "
          "\"connectorPotentials\": [{\"componentNumber\": 3}], \"isotropicTable\": [[1, 0, 0]]}",
          "{\"class\": \"ConnectorPlasticity\", \"coupling\": \"COUPLED\", \"components\": [3], "
          "\"isotropicTable\": [[1, 0, 0]]}",
          "{\"class\": \"ConnectorDamage\", \"components\": [1], \"evolution\": false, "
          "\"useAffected\": true, \"affectedComponents\": [3], "
          "\"evolutionPotentials\": [{\"componentNumber\": 3}], \"initiationTable\": [[1, 2]]}",
          "{\"class\": \"ConnectorDamage\", \"components\": [1], \"affectedComponents\": [3], "
          "\"initiationPotentials\": [{\"componentNumber\": 3}], \"initiationTable\": [[1, 2]], "
          "\"evolutionTable\": [[1]]}",
          "{\"class\": \"ConnectorLock\", \"components\": [1], \"lockingComponent\": \"ALL\", "
          "\"maxMotion\": 1}",
          "{\"class\": \"ConnectorFailure\", \"components\": [1], \"releaseComponent\": null, "
          "\"maxMotion\": 1}"})
        EXPECT_EQ(RaisedBy(option, "[1]"), "") << option;
}

TEST(ConnectorSection, ADerivedComponentThatAStyleAsksForMustBeThere) {
    EXPECT_EQ(RaisedBy("{\"class\": \"ConnectorFriction\", \"frictionModel\": "
                       "\"USER_CUSTOMIZED\", \"tangentDirection\": 1, "
                       "\"useContactForceComponent\": true, "
                       "\"contactForceStyle\": \"DERIVED_COMPONENT\"}",
                       "[]"),
              absentForce);
    std::string const potential = "[{\"componentStyle\": \"DERIVED_COMPONENT\"}]";
    for (std::string const& option :
         {"{\"class\": \"ConnectorFriction\", \"frictionModel\": \"USER_CUSTOMIZED\", "
          "\"slipStyle\": \"COMPUTE\", \"table\": [[1]], \"connectorPotentials\": " +
              potential + "}",
          "{\"class\": \"ConnectorPlasticity\", \"coupling\": \"COUPLED\", \"isotropicTable\": "
          "[[1, 0, 0]], \"connectorPotentials\": " +
              potential + "}",
          "{\"class\": \"ConnectorDamage\", \"coupling\": \"COUPLED\", \"initiationTable\": "
          "[[1, 2]], \"evolutionTable\": [[1]], \"initiationPotentials\": " +
              potential + "}"})
        EXPECT_EQ(RaisedBy(option, "[]"), absentPotential) << option;
}

TEST(ConnectorSection, DerivedComponentsUseAvailableComponentsOnly) {
    auto const friction = [](std::string const& term) {
        return "{\"class\": \"ConnectorFriction\", \"frictionModel\": \"USER_CUSTOMIZED\", "
               "\"tangentDirection\": 1, \"useContactForceComponent\": true, "
               "\"contactForceStyle\": \"DERIVED_COMPONENT\", "
               "\"derivedComponent\": {\"cdcTerms\": [" +
               term + "]}}";
    };
    std::string const intrinsic = friction("{\"intrinsicComponents\": [1, 3]}");
    EXPECT_EQ(RaisedBy(intrinsic, "[1, 3]"), "");
    EXPECT_EQ(RaisedBy(intrinsic, "[1]"), unavailableDerived);
    std::string const local = friction(
        "{\"intrinsicComponents\": [1], \"localDependency\": true, \"indepComponents\": [3]}");
    EXPECT_EQ(RaisedBy(local, "[1, 3]"), "");
    EXPECT_EQ(RaisedBy(local, "[1]"), unavailableDerived);
    std::string const potential =
        "{\"class\": \"ConnectorPlasticity\", \"coupling\": \"COUPLED\", \"isotropicTable\": "
        "[[1, 0, 0]], \"connectorPotentials\": [{\"componentStyle\": \"DERIVED_COMPONENT\", "
        "\"derivedComponent\": {\"cdcTerms\": [{\"intrinsicComponents\": [3]}]}}]}";
    EXPECT_EQ(RaisedBy(potential, "[3]"), "");
    EXPECT_EQ(RaisedBy(potential, "[1, 2]"), unavailableDerived);
}

TEST(ConnectorSection, FindingsNameTheSectionOrTheBehaviour) {
    Document const document = WithSection("\"options\": [" + linear +
                                          ", {\"class\": \"ConnectorStop\"}], "
                                          "\"availableComponents\": [2]");
    std::vector<nga::Finding> const findings = nga::Check(document);
    ASSERT_EQ(findings.size(), 2u);
    EXPECT_EQ(findings[0].path, "documents['m'].sections['s'].options[1]");
    EXPECT_EQ(findings[0].module, "kbe");
    EXPECT_EQ(findings[0].code, 3);
    EXPECT_EQ(findings[1].path, "documents['m'].sections['s']");
    EXPECT_EQ(findings[1].module, "kbe content");
    EXPECT_EQ(findings[1].code, 0);
    EXPECT_EQ(findings[1].message, Unavailable("2"));
}

TEST(ConnectorSection, ALiteralStandsForAllComponentsInTextsAndIsShown) {
    Document const document = WithSection(
        "\"options\": [{\"class\": \"ConnectorLock\", \"components\": [1], "
        "\"lockingComponent\": \"ALL\"}, {\"class\": \"ConnectorLock\"}]");
    auto const& lock = static_cast<kbeC_ConnectorLock const&>(
        SectionOf(document, "s").options.ConstGet(0).ConstGet());
    EXPECT_EQ(lock.lockingComponent, kbeC_ConnectorLock::allComponents);
    std::string const text = nga::ExportJson(document);
    EXPECT_NE(text.find("\"lockingComponent\": \"ALL\""), std::string::npos) << text;
    EXPECT_EQ(text.find("-1"), std::string::npos) << text;
}

TEST(ConnectorSection, TheExampleComesBackFromAFileAndHasNoFindings) {
    TemporaryFolder const folder;
    std::ifstream file(std::string(NGA_EXAMPLES) + "/hinge.json");
    std::stringstream text;
    text << file.rdbuf();
    Document document = Document::New("hinge");
    nga::ImportJson(document, text.str());
    EXPECT_TRUE(nga::Check(document).empty());
    document.SaveAs(folder.Path("hinge.nga"));
    Document const opened = Document::Open(folder.Path("hinge.nga"));
    EXPECT_EQ(nga::ExportJson(opened), text.str());
    EXPECT_EQ(SectionOf(opened, "door hinge").options.Size(), 8);
    std::string const path =
        "documents['hinge'].sections['rubber bushing'].options[3].derivedComponent.cdcTerms[0]";
    EXPECT_EQ(nga::Resolve(opened, path).path, path);
}
