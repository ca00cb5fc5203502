#include <gtest/gtest.h>

#include "host/cli/tool_runner.h"
#include "nga_Document.h"
#include "nga_JsonTree.h"

using nga::Document;

// What the tool says of texts, names and checks.

TEST(ToolTexts, ADeepCheckWithNotesAloneIsFine) {
    TemporaryFolder const folder;
    std::string const file =
        folder.Write("soil.json",
                     "{\"materials\": {\"soil\": {\"mohrCoulombPlasticity\": {\"table\": [[30, 5]],"
                     " \"mohrCoulombHardening\": {\"table\": [[1, 0], [0, 0]]}}}}}");
    std::string const at =
        "documents['soil'].materials['soil'].options['mohrCoulombPlasticity']"
        ".options['mohrCoulombHardening'].table";
    ToolRun const plain = RunNga({"check", file});
    EXPECT_EQ(plain.code, 0);
    EXPECT_EQ(plain.out, "");
    ToolRun const deep = RunNga({"check", file, "--deep"});
    EXPECT_EQ(deep.code, 0);
    EXPECT_EQ(deep.out.rfind("note: " + at + ": kma 21: ", 0), 0u) << deep.out;
    EXPECT_EQ(deep.err, "no findings, 1 note\n");
    ToolRun const json = RunNga({"check", file, "--deep", "--json"});
    EXPECT_EQ(json.code, 0);
    nga::JsonNode const root = nga::ParseJson(json.out);
    EXPECT_TRUE(root.Find("findings")->elements.empty());
    ASSERT_EQ(root.Find("notes")->elements.size(), 1u);
    EXPECT_EQ(root.Find("notes")->elements[0].Find("path")->text, at);
    EXPECT_EQ(root.Find("notes")->elements[0].Find("code")->integer, 21);
}

TEST(ToolTexts, ADeepCheckWithAFindingIsOne) {
    TemporaryFolder const folder;
    std::string const file = folder.Write(
        "soil.json", "{\"materials\": {\"soil\": {\"elastic\": {\"dependencies\": -1}}}}");
    EXPECT_EQ(RunNga({"check", file, "--deep"}).code, 1);
    nga::JsonNode const root = nga::ParseJson(RunNga({"check", file, "--deep", "--json"}).out);
    EXPECT_EQ(root.Find("findings")->elements.size(), 1u);
    EXPECT_TRUE(root.Find("notes")->elements.empty());
    EXPECT_EQ(nga::ParseJson(RunNga({"check", file, "--json"}).out).Find("notes"), nullptr);
    EXPECT_EQ(RunNga({"check", file}).code, 1);
}

TEST(ToolTexts, NamesThatNoImportLetsPassAreToldWhenAFileHoldsThem) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("frame.nga");
    Document document = Document::New("frame");
    document.Materials().Insert("it's", new kmaC_Material);
    document.SaveAs(file);
    ToolRun const tree = RunNga({"tree", file, "--paths"});
    EXPECT_EQ(tree.code, 0);
    EXPECT_NE(tree.err.find("warning: " + file + ": documents['frame'].materials['it\\'s']: "),
              std::string::npos)
        << tree.err;
    ToolRun const refused = RunNga({"export", file});
    EXPECT_EQ(refused.code, 2);
    EXPECT_EQ(refused.out, "");
}

TEST(ToolTexts, AFileWhoseNameNoDocumentCanBearIsNamed) {
    TemporaryFolder const folder;
    std::string const file = folder.Write("q'q.json", "{}");
    for (ToolRun const& run : {RunNga({"check", file}), RunNga({"journal", file}),
                               RunNga({"import", file, "--into", folder.Path("q'q.nga")})}) {
        EXPECT_EQ(run.code, 2);
        EXPECT_NE(run.err.find("q'q."), std::string::npos) << run.err;
    }
}

TEST(ToolTexts, ADatabaseInPlaceOfATextIsTold) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("frame.nga");
    Document::New("frame").SaveAs(file);
    ToolRun const run = RunNga({"import", file, "--into", folder.Path("other.nga")});
    EXPECT_EQ(run.code, 2);
    EXPECT_NE(run.err.find("this is a database, not a text; expected a JSON text"),
              std::string::npos)
        << run.err;
}

TEST(ToolTexts, NumbersThatAreNotSetAreNullWhereverTheyAreShown) {
    TemporaryFolder const folder;
    std::string const file =
        folder.Write("rubber.json",
                     "{\"materials\": {\"rubber\": {\"hyperelastic\": {\"beta\": \"FITTED_VALUE\","
                     " \"poissonRatio\": null}}}}");
    std::string const at = "materials['rubber'].hyperelastic.";
    EXPECT_EQ(RunNga({"show", file, at + "beta"}).out, "not set\n");
    nga::JsonNode const shown = nga::ParseJson(RunNga({"show", file, at + "beta", "--json"}).out);
    EXPECT_EQ(shown.Find("value")->kind, nga::JsonNode::Kind::Null);
    ToolRun const exported = RunNga({"export", file});
    EXPECT_NE(exported.out.find("\"poissonRatio\": null"), std::string::npos) << exported.out;
    EXPECT_EQ(exported.out.find("beta"), std::string::npos);
}
