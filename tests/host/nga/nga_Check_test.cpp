#include "nga_Check.h"

#include <gtest/gtest.h>

#include "nex_Exception.h"

namespace {

using nga::Document;
using nga::Finding;

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
