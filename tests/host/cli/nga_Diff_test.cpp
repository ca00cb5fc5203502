#include <gtest/gtest.h>

#include "nga_JsonTree.h"
#include "tool_runner.h"

namespace {

std::string const one = R"({"materials": {"a": {"density": {"table": [[1.0]]}}, "gone": {}}})";
std::string const other = R"({"materials": {"a": {"density": {"table": [[1.001]]}}, "new": {}}})";

TEST(ToolDiff, ListsDifferencesAndExitsWith1) {
    TemporaryFolder const folder;
    std::string const a = folder.Write("a.json", one), b = folder.Write("b.json", other);
    ToolRun const run = RunNga({"diff", a, b});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out,
              "materials['a'].options['density'].table[0][0]: 1.0 -> 1.001\n"
              "materials['gone']: only in " +
                  a +
                  ": kmaC_Material\n"
                  "materials['new']: only in " +
                  b + ": kmaC_Material\n");
    EXPECT_EQ(run.err, "3 differences\n");
    EXPECT_EQ(RunNga({"diff", a, b, "--tolerance", "0.01", "--quiet"}).err, "");
    EXPECT_EQ(RunNga({"diff", a, b, "--tolerance", "0.01"}).err, "2 differences\n");
    EXPECT_EQ(RunNga({"diff", a, b, "--tolerance", "0,0.01"}).err, "2 differences\n");
}

TEST(ToolDiff, EqualDocumentsExitWith0) {
    TemporaryFolder const folder;
    std::string const a = folder.Write("a.json", one);
    ToolRun const run = RunNga({"diff", a, a});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "no differences\n");
}

TEST(ToolDiff, ReportsAsJson) {
    TemporaryFolder const folder;
    std::string const a = folder.Write("a.json", one), b = folder.Write("b.json", other);
    ToolRun const run = RunNga({"diff", a, b, "--json"});
    EXPECT_EQ(run.code, 1);
    nga::JsonNode const report = nga::ParseJson(run.out);
    auto const& found = report.Find("differences")->elements;
    ASSERT_EQ(found.size(), 3u);
    EXPECT_EQ(found[0].Find("before")->real, 1.0);
    EXPECT_EQ(found[0].Find("after")->real, 1.001);
    EXPECT_EQ(found[1].Find("kind")->text, "only in before");
    EXPECT_EQ(found[2].Find("kind")->text, "only in after");
}

TEST(ToolDiff, MisuseAndMissingFilesExitWith2) {
    TemporaryFolder const folder;
    std::string const a = folder.Write("a.json", one);
    EXPECT_EQ(RunNga({"diff", a}).code, 2);
    EXPECT_EQ(RunNga({"diff", a, folder.Path("b.nga")}).code, 2);
    EXPECT_EQ(RunNga({"diff", a, a, "--tolerance", "-1"}).code, 2);
    EXPECT_EQ(RunNga({"diff", a, a, "--tolerance", "much"}).code, 2);
}

TEST(ToolJournal, WritesTheScriptOfAnImport) {
    TemporaryFolder const folder;
    std::string const a = folder.Write("a.json", one);
    EXPECT_EQ(RunNga({"journal", a, "--script"}).out,
              "import nga\n\ndoc = nga.new('a')\nmaterial = doc.Material(name='a')\n"
              "material.Density(table=((1.0,),))\ndoc.Material(name='gone')\n");
}

TEST(ToolSchema, WritesStubsAndReferencePages) {
    EXPECT_NE(RunNga({"schema", "--stubs"}).out.find("class Elastic("), std::string::npos);
    EXPECT_EQ(RunNga({"schema", "Elastic", "--markdown"}).out.find("## Elastic\n"), 0u);
}

}  // namespace
