#include "nga_Json.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "kflC_ButterworthFilter.h"
#include "nga_Check.h"
#include "nga_Error.h"
#include "nga_Journal.h"
#include "nga_JsonTree.h"
#include "nga_JsonWriter.h"
#include "nga_Path.h"
#include "omu_ChangeHistory.h"
#include "thr_ThreadSingleton.h"

namespace {

using nga::Document;
using nga::ExportJson;
using nga::ImportJson;
using nga::OnConflict;

std::string const text =
    "{\"materials\": {\"steel\": {\"elastic\": {\"table\": [[2.1e11, 0.3]]}}, \"copper\": {}},\n"
    "\"loadCases\": {\"wind\": {\"loads\": {\"pressure\": 1.5}}}}";

nga::Error FailureOf(Document& document, std::string const& json,
                     OnConflict onConflict = OnConflict::Error) {
    try {
        ImportJson(document, json, onConflict);
    } catch (nga::Error const& failure) {
        return failure;
    }
    return nga::Error("nothing failed");
}
nga::Error FailureOf(std::string const& json) {
    Document document = Document::New("document");
    return FailureOf(document, json);
}

}  // namespace

TEST(Json, AnEmptyDocumentHasOnlyItsHead) {
    EXPECT_EQ(ExportJson(Document::New("empty")), "{\n  \"nga\": 1,\n  \"schema\": 1111\n}\n");
}

TEST(Journal, PrintsWhatIsNoUtf8AsEscapes) {
    Document document = Document::New("document");
    nga::Journal const journal;
    document.Materials().Insert("st\xe9rile", kmaC_Material());
    document.Materials().Insert("gr\xc3\xbcn", kmaC_Material());
    std::string const text = journal.Text();
    EXPECT_NE(text.find("st\\xe9rile"), std::string::npos) << text;
    EXPECT_NE(text.find("gr\xc3\xbcn"), std::string::npos) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2);
}

TEST(Json, ImportPutsTheObjectsIn) {
    Document document = Document::New("document");
    std::vector<nga::Imported> const report = ImportJson(document, text);
    std::map<std::string, int> added;
    for (nga::Imported const& one : report) added[one.collection] = one.added;
    EXPECT_EQ(added, (std::map<std::string, int>{{"materials", 2},
                                                 {"amplitudes", 0},
                                                 {"profiles", 0},
                                                 {"filters", 0},
                                                 {"sections", 0},
                                                 {"loadCases", 1}}));
    kmaC_Material const* steel = document.Materials().ConstGetPtr("steel");
    ASSERT_NE(steel, nullptr);
    EXPECT_EQ(steel->elastic.ConstGet().table.Cell(0, 0), 2.1e11);
    EXPECT_EQ(*document.LoadCases().ConstGet("wind").loads.ConstFind("pressure"), 1.5f);
}

TEST(Json, ExportThenImportThenExportGivesTheSameText) {
    Document document = Document::New("document");
    ImportJson(document, text);
    std::string const exported = ExportJson(document);
    Document again = Document::New("another name");
    ImportJson(again, exported);
    EXPECT_EQ(ExportJson(again), exported);
}

TEST(Json, RecordsAreSentInTheOrderOfTheText) {
    Document document = Document::New("document");
    nga::Journal journal;
    ImportJson(document, text);
    EXPECT_EQ(journal.Text(),
              "('Insert', 'steel', -99)\n('Insert', 'copper', -99)\n('Insert', 'wind', -99)\n");
}

TEST(Json, ReplacingSendsTheRemovalFirst) {
    Document document = Document::New("document");
    ImportJson(document, text);
    nga::Journal journal;
    ImportJson(document, "{\"materials\": {\"steel\": {}}}", OnConflict::Replace);
    EXPECT_EQ(journal.Text(), "('Remove', 'steel')\n('Insert', 'steel', -99)\n");
    EXPECT_EQ(journal.Json(), "[\n  [\"Remove\", \"steel\"],\n  [\"Insert\", \"steel\", -99]\n]\n");
    EXPECT_EQ(document.Materials().ConstGet("steel").elastic.GetPtr(), nullptr);
}

TEST(Json, KeepingLeavesThePresentObjectAndSendsNothingForIt) {
    Document document = Document::New("document");
    ImportJson(document, text);
    nga::Journal journal;
    std::vector<nga::Imported> const report =
        ImportJson(document, "{\"materials\": {\"steel\": {}, \"tin\": {}}}", OnConflict::Keep);
    EXPECT_EQ(report[0].kept, 1);
    EXPECT_EQ(report[0].added, 1);
    EXPECT_EQ(journal.Text(), "('Insert', 'tin', -99)\n");
    EXPECT_NE(document.Materials().ConstGet("steel").elastic.GetPtr(), nullptr);
}

TEST(Json, APresentNameIsAnErrorUnlessARuleIsGiven) {
    Document document = Document::New("document");
    ImportJson(document, text);
    nga::Error const failure =
        FailureOf(document, "{\"materials\": {\"tin\": {},\n\"steel\": {}}}");
    EXPECT_EQ(failure.Place(), "materials['steel']");
    EXPECT_EQ(failure.Line(), 2);
}

TEST(Json, AnImportThatFailsLeavesTheDocumentAndSendsNothing) {
    Document document = Document::New("document");
    ImportJson(document, text);
    std::string const before = ExportJson(document);
    nga::Journal journal;
    for (char const* bad :
         {"{\"materials\": {\"a\": {}, \"b\": {\"elastik\": {}}}}",
          "{\"materials\": {\"a\": {}, \"steel\": {}}}", "{\"materials\": {\"a\": {}}, \"x\": 1}",
          "{\"materials\": {\"a\": {}}", "{\"materials\": {\"a\": {}, \"a\": {}}}",
          "{\"materials\": {\"a\": {}}, \"loadCases\": {\"b\": {\"loads\": {\"c\": \"d\"}}}}"}) {
        EXPECT_NE(FailureOf(document, bad).Message(), "nothing failed") << bad;
        EXPECT_EQ(ExportJson(document), before) << bad;
    }
    EXPECT_TRUE(journal.Records().empty());
}

TEST(Json, AListenerThatThrowsUndoesTheImport) {
    Document document = Document::New("document");
    ImportJson(document, text);
    std::string const before = ExportJson(document);
    omu_ChangeHistory& history = thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    int sent = 0;
    int const listener = history.Listen([&](omu_PrimTuple const&) {
        if (++sent == 2) throw std::runtime_error("enough");
    });
    EXPECT_THROW(ImportJson(document, "{\"materials\": {\"a\": {}, \"b\": {}, \"c\": {}}}"),
                 std::runtime_error);
    history.StopListening(listener);
    EXPECT_EQ(sent, 2);
    EXPECT_EQ(ExportJson(document), before);
}

TEST(Json, NamesThatNoPathCanShowAreRefused) {
    for (char const* name : {"it's", "a\\\"b", "a\\\\b", "a\\nb", "a\\u0000", "\\u007f", ""}) {
        std::string const json = std::string("{\"materials\": {\"") + name + "\": {}}}";
        EXPECT_EQ(FailureOf(json).Place(), "materials") << json;
    }
}

TEST(Json, NamesOfAnyOtherLettersComeBack) {
    Document document = Document::New("document");
    ImportJson(document,
               "{\"materials\": {\"Stahl f\\u00fcr Br\\u00fccken\": {}, \"[x].y\": {},"
               " \"bytes \\uf7ff\": {}}}");
    EXPECT_TRUE(document.Materials().IsMember("bytes \xff"));
    std::string const exported = ExportJson(document);
    Document again = Document::New("document");
    ImportJson(again, exported);
    EXPECT_EQ(ExportJson(again), exported);
    EXPECT_TRUE(
        again.Materials().IsMember("Stahl f\xc3\xbcr Br\xc3\xbc"
                                   "cken"));
}

TEST(Json, TheHeadIsChecked) {
    EXPECT_EQ(FailureOf("{\"nga\": 1, \"schema\": 1111}").Message(), "nothing failed");
    EXPECT_EQ(FailureOf("{\"nga\": 2}").Message(),
              "the text is of text form 2, which cannot be read");
    for (char const* schema : {"203", "1110", "1112"}) {
        nga::Error const failure = FailureOf(std::string("{\"schema\": ") + schema + "}");
        EXPECT_EQ(failure.Message(),
                  std::string("the text is of schema ") + schema + ", which cannot be read");
        EXPECT_EQ(failure.Expected(), "1111");
    }
    EXPECT_EQ(FailureOf("{\"schema\": \"1111\"}").Expected(), "a number");
    EXPECT_EQ(FailureOf("{\"material\": {}}").Message(), "unknown key (did you mean 'materials'?)");
    EXPECT_EQ(FailureOf("{\"materials\": []}").Expected(), "an object of names and objects");
    EXPECT_EQ(FailureOf("[]").Message(), "an array is no document");
    EXPECT_EQ(FailureOf("{\"materials\": {\"a\": null}}").Expected(), "an object");
}

TEST(Json, AnErrorNamesPlaceLineAndExpectationInOneLine) {
    EXPECT_STREQ(
        FailureOf("{\"materials\": {\"st 1\":\n{\"elastic\": {\"dependencies\": true}}}}").what(),
        "line 2: materials['st 1'].elastic.dependencies: true cannot stand here; "
        "expected an integer");
}

TEST(Json, APlaceInATextCanBeTypedAsAPath) {
    Document document = Document::New("document");
    ImportJson(document,
               "{\"materials\": {\"steel\": {\"elastic\": {\"table\": [[1, 2]]}}},"
               " \"loadCases\": {\"wind\": {\"loads\": {\"gust\": 1}}}}");
    for (char const* broken :
         {"{\"materials\": {\"steel\": {\"elastic\": {\"table\": [[1, \"x\"]]}}}}",
          "{\"materials\": {\"steel\": {\"elastic\": {\"table\": {\"data\": [[1, true]]}}}}}",
          "{\"materials\": {\"steel\": {\"elastic\": {\"table\": [[1, 1e999]]}}}}",
          "{\"materials\": {\"steel\": {\"elastic\": {\"type\": \"X\"}}}}",
          "{\"loadCases\": {\"wind\": {\"loads\": {\"gust\": \"strong\"}}}}"}) {
        std::string const place = FailureOf(document, broken, OnConflict::Replace).Place();
        EXPECT_NO_THROW(nga::Resolve(document, place)) << place;
        EXPECT_NE(place.find("['"), std::string::npos) << place;
    }
}

TEST(Json, ADatabaseIsToldFromAText) {
    EXPECT_EQ(FailureOf(std::string("SQLite format 3\0and more", 24)).Message(),
              "this is a database, not a text");
}

namespace {

nga::Error ExportFailureOf(Document const& document) {
    try {
        ExportJson(document);
    } catch (nga::Error const& failure) {
        return failure;
    }
    return nga::Error("nothing failed");
}

}  // namespace

TEST(Json, ANameThatTheSolverKeepsForItselfIsRefusedAndFound) {
    std::string const reserved = "A system-defined filter is already named \"Antialiasing.\"";
    Document document = Document::New("document");
    EXPECT_EQ(
        FailureOf(document, "{\"filters\": {\"Antialiasing\": {\"class\": \"ButterworthFilter\"}}}")
            .Message(),
        reserved);
    ImportJson(document,
               "{\"filters\": {\"antialiasing\": {\"class\": \"ButterworthFilter\","
               "\"cutoffFrequency\": 1}}, \"materials\": {\"Antialiasing\": {}}}");
    EXPECT_TRUE(nga::Check(document).empty());

    // A file may bring one all the same.
    kflC_ButterworthFilter filter;
    filter.cutoffFrequency = 1.0;
    auto& wrapper = document.Model().GetExtension(cow_String(ddr_Model::filterCmd()));
    static_cast<kflC_FilterContainer&>(wrapper.GetValue()).Insert("Antialiasing", filter);
    std::vector<nga::Finding> const findings = nga::Check(document);
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].path, "documents['document'].filters['Antialiasing']");
    EXPECT_EQ(nga::UnusableNames(document), std::vector<std::string>{findings[0].path});
    EXPECT_EQ(ExportFailureOf(document).Place(), findings[0].path);
    EXPECT_EQ(ExportFailureOf(document).Message(),
              "the name 'Antialiasing' cannot be used, so that no import could read the text");
    EXPECT_EQ(findings[0].module, "kfl");
    EXPECT_EQ(findings[0].code, 6);
    EXPECT_EQ(findings[0].message, reserved);

    // What the object itself breaks is told as well.
    filter.cutoffFrequency = 0.0;
    static_cast<kflC_FilterContainer&>(wrapper.GetValue()).Insert("Antialiasing", filter);
    std::vector<nga::Finding> const both = nga::Check(document);
    ASSERT_EQ(both.size(), 2u);
    EXPECT_EQ(both[0].code, 6);
    EXPECT_EQ(both[1].code, 0);
}

TEST(Json, WhatCouldNotBeImportedAgainIsNotExported) {
    std::string const tail = ", so that no import could read the text";
    {
        Document document = Document::New("frame");
        document.Materials().Insert("it's", new kmaC_Material);
        EXPECT_EQ(ExportFailureOf(document).Place(), "documents['frame'].materials['it\\'s']");
        EXPECT_EQ(ExportFailureOf(document).Message(), "the name 'it\\'s' cannot be used" + tail);
    }
    {
        Document document = Document::New("frame");
        auto* wind = new klcC_LoadCase;
        wind->loads.Insert("a\nb", 1.0f);
        document.LoadCases().Insert("wind", wind);
        EXPECT_EQ(ExportFailureOf(document).Place(), "documents['frame'].loadCases['wind']");
        EXPECT_EQ(ExportFailureOf(document).Message(), "the name 'a\\nb' cannot be used" + tail);
    }
    {
        Document document = Document::New("frame");
        document.Materials().Insert("none", static_cast<kmaC_Material*>(nullptr));
        EXPECT_EQ(ExportFailureOf(document).Place(), "documents['frame'].materials['none']");
        EXPECT_EQ(ExportFailureOf(document).Message(), "there is no object under the name" + tail);
    }
    {
        Document document = Document::New("frame");
        auto* steel = new kmaC_Material;
        steel->elastic = new kmaC_Elastic;
        steel->elastic.Get().type = static_cast<kmaC_Elastic::TypeEnm>(99);
        document.Materials().Insert("steel", steel);
        EXPECT_EQ(ExportFailureOf(document).Message(),
                  "the field 'type' has a number without a literal" + tail);
    }
}

TEST(Json, AsDeepAsATextMayNestIsExportedAndNoDeeper) {
    // Each level of a list within an option takes two levels of the text.
    for (int levels : {20, 29, 30, 31, 40}) {
        Document document = Document::New("frame");
        auto* mullins = new kmaC_MullinsEffect;
        for (int i = 0; i < levels; ++i) {
            auto* outer = new kmaC_MullinsEffect;
            mdl_Field const& list = *outer->Description().FindField("planarTests");
            list.Type().Adopt(list.At(static_cast<void*>(outer)), mullins);
            mullins = outer;
        }
        auto* rubber = new kmaC_Material;
        rubber->mullinsEffect = mullins;
        document.Materials().Insert("rubber", rubber);
        // Head, materials, rubber and the outermost, then each list with the object in it.
        if (4 + 2 * levels <= nga::jsonMaxDepth) {
            Document again = Document::New("frame");
            EXPECT_NO_THROW(ImportJson(again, ExportJson(document))) << levels;
        } else {
            EXPECT_EQ(ExportFailureOf(document).Place(), "documents['frame'].materials['rubber']")
                << levels;
        }
    }
}
