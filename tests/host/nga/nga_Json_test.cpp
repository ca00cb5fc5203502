#include "nga_Json.h"

#include <gtest/gtest.h>

#include "nga_Error.h"
#include "nga_Journal.h"
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

TEST(Json, ImportPutsTheObjectsIn) {
    Document document = Document::New("document");
    std::vector<nga::Imported> const report = ImportJson(document, text);
    ASSERT_EQ(report.size(), 2u);
    EXPECT_EQ(report[0].collection, "materials");
    EXPECT_EQ(report[0].added, 2);
    EXPECT_EQ(report[1].added, 1);
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
    EXPECT_EQ(failure.Place(), "materials.steel");
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
    EXPECT_EQ(FailureOf("{\"nga\": 1, \"schema\": 203}").Message(), "nothing failed");
    EXPECT_EQ(FailureOf("{\"nga\": 2}").Message(), "text form 2 is not known to this version");
    EXPECT_EQ(FailureOf("{\"schema\": 1112}").Message(),
              "schema 1112 is not known to this version");
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
