#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "nga_JsonTree.h"
#include "tool_runner.h"

namespace {

std::string const bracket = NGA_EXAMPLES "/bracket.json";
std::string const everyOption = NGA_EXAMPLES "/every_option.json";
std::string const loadsAndSections = NGA_EXAMPLES "/loads_and_sections.json";
std::string const zeroFactor = NGA_EXAMPLES "/zero_factor.json";

std::vector<std::string> const verbs = {"new",  "import", "export",  "tree",       "show", "check",
                                        "diff", "schema", "journal", "completion", "help"};

}  // namespace

TEST(Tool, VersionAndHelpAreResults) {
    ToolRun const version = RunNga({"--version"});
    EXPECT_EQ(version.code, 0);
    EXPECT_EQ(version.out.rfind("nga ", 0), 0u);
    EXPECT_EQ(version.err, "");
    ToolRun const help = RunNga({"--help"});
    EXPECT_EQ(help.code, 0);
    for (std::string const& verb : verbs)
        EXPECT_NE(help.out.find("\n  " + verb), std::string::npos) << verb;
}

TEST(Tool, EveryVerbHasHelpWithAnExample) {
    for (std::string const& verb : verbs) {
        ToolRun const help = RunNga({verb, "--help"});
        EXPECT_EQ(help.code, 0) << verb;
        EXPECT_NE(help.out.find("Example:\n  nga " + verb), std::string::npos) << verb;
    }
}

TEST(Tool, MisuseIsTwoWithAWordOnTheErrorStreamAlone) {
    std::vector<std::vector<std::string>> const misuses = {
        {"--quiet"},
        {"chek", bracket},
        {"check"},
        {"check", bracket, "--jsn"},
        {"check", bracket, "more"},
        {"show", bracket},
        {"import", bracket, "--on-conflict", "maybe"},
        {"completion", "tcsh"},
        {"--no-such-option"},
    };
    for (auto const& misuse : misuses) {
        ToolRun const run = RunNga(misuse);
        EXPECT_EQ(run.code, 2) << testing::PrintToString(misuse);
        EXPECT_EQ(run.out, "") << testing::PrintToString(misuse);
        EXPECT_EQ(run.err.rfind("nga: ", 0), 0u) << run.err;
        EXPECT_NE(run.err.find("--help"), std::string::npos) << run.err;
    }
    EXPECT_EQ(RunNga({"--quiet"}).err, "nga: a verb is missing; see nga --help\n");
    EXPECT_EQ(RunNga({"chek", bracket}).err,
              "nga: there is no verb 'chek' (did you mean 'check'?); see nga --help\n");
}

TEST(Tool, WithoutArgumentsTheHelpGoesToTheErrorStream) {
    ToolRun const run = RunNga({});
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, RunNga({"--help"}).out);
}

TEST(Tool, HelpIsAVerbToo) {
    EXPECT_EQ(RunNga({"help"}).out, RunNga({"--help"}).out);
    for (std::string const& verb : verbs) {
        ToolRun const run = RunNga({"help", verb});
        EXPECT_EQ(run.code, 0) << verb;
        EXPECT_EQ(run.out, RunNga({verb, "--help"}).out);
    }
    ToolRun const unknown = RunNga({"help", "chek"});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.err, "nga: there is no verb 'chek' (did you mean 'check'?)\n");
}

TEST(Tool, HelpSpeaksOfVerbsAndNamesWhatStandsThereOnce) {
    for (std::string const& verb : verbs) {
        std::string const help = RunNga({verb, "--help"}).out;
        EXPECT_NE(help.find("--quiet"), std::string::npos) << verb;
        EXPECT_EQ(help.back(), '\n') << verb;
        for (char const* twice : {"TEXT TEXT", "FILE TEXT", "PATH TEXT", "VERB TEXT", "CLASS TEXT"})
            EXPECT_EQ(help.find(twice), std::string::npos) << verb << twice;
    }
    std::string const help = RunNga({"--help"}).out;
    EXPECT_NE(help.find("Usage: nga [OPTIONS] VERB\n"), std::string::npos) << help;
    for (char const* word : {"SUBCOMMAND", "ubcommand"})
        EXPECT_EQ(help.find(word), std::string::npos) << help;
}

TEST(Tool, FindingsComeBeforeTheirNumberWhereBothGoToOnePlace) {
    TemporaryFolder const folder;
    std::string const command =
        NGA_TOOL " check " + zeroFactor + " > " + folder.Path("out") + " 2>&1";
    EXPECT_NE(std::system(command.c_str()), 0);
    std::string const text = FileContent(folder.Path("out"));
    EXPECT_EQ(text.rfind("documents['zero_factor']", 0), 0u) << text;
    EXPECT_NE(text.find("\n1 finding\n"), std::string::npos) << text;
}

TEST(Tool, TheStandardInputIsCalledSo) {
    EXPECT_EQ(
        RunNga({"check", "-"}, "{\n\"materialz\": {}}").err.rfind("nga: the standard input:2: ", 0),
        0u);
}

TEST(Tool, ADatabaseIsNotMadeWhereATextWouldBeRead) {
    TemporaryFolder const folder;
    std::string const text = folder.Write("there.json", "{}");
    for (std::string const& name : {folder.Path("x.json"), text, std::string("-")}) {
        for (auto const& arguments : std::vector<std::vector<std::string>>{
                 {"new", name}, {"import", bracket, "--into", name}}) {
            ToolRun const run = RunNga(arguments);
            EXPECT_EQ(run.code, 2) << name;
            EXPECT_NE(run.err.find("a JSON text is read"), std::string::npos) << run.err;
        }
    }
    EXPECT_FALSE(std::filesystem::exists(folder.Path("x.json")));
    EXPECT_EQ(FileContent(text), "{}");
    EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST(Tool, TreeShowsTheObjectThatWasAskedForOrRefuses) {
    std::string const copper = "materials['copper']";
    EXPECT_EQ(RunNga({"tree", bracket, copper + ".options['density']"})
                  .out.rfind("documents['bracket'].materials['copper'].options['density']", 0),
              0u);
    EXPECT_EQ(RunNga({"tree", bracket, copper + ".options['density'].table"}).out,
              "documents['bracket'].materials['copper'].options['density'].table  "
              "kmaC_MaterialTable  table 1 x 1\n");
    for (char const* below : {".options['density'].table[0][0]", ".options['elastic'].type",
                              ".description", ".options['creep']"}) {
        ToolRun const run = RunNga({"tree", bracket, copper + below});
        EXPECT_EQ(run.code, 2) << below << run.out;
        EXPECT_EQ(run.out, "") << below;
        EXPECT_EQ(run.err.find('\n'), run.err.size() - 1) << run.err;
    }
}

TEST(Tool, TreeCountsWhatListsHold) {
    std::string const tree = RunNga({"tree", loadsAndSections, "amplitudes"}).out;
    EXPECT_NE(
        tree.find(
            "['ground acceleration (synthetic)']  kamC_EquallySpaced  TOTAL, data 601 values\n"),
        std::string::npos)
        << tree;
    EXPECT_NE(tree.find(".baselineCorrection  kamC_BaselineCorrection  intervals 1 value\n"),
              std::string::npos)
        << tree;
    std::string const hinge = RunNga({"tree", NGA_EXAMPLES "/hinge.json", "--json"}).out;
    EXPECT_NE(hinge.find("components [1, 2, 3]"), std::string::npos) << hinge;
}

TEST(Tool, TheExampleIsValidAndHasEightMaterialsAndThreeLoadCases) {
    ToolRun const check = RunNga({"check", bracket});
    EXPECT_EQ(check.code, 0);
    EXPECT_EQ(check.out, "");
    EXPECT_EQ(check.err, "no findings\n");
    nga::JsonNode const tree = nga::ParseJson(RunNga({"tree", bracket, "--json"}).out);
    ASSERT_EQ(tree.Find("children")->elements.size(), 2u);
    EXPECT_GE(tree.Find("children")->elements[0].Find("children")->elements.size(), 8u);
    EXPECT_EQ(tree.Find("children")->elements[1].Find("children")->elements.size(), 3u);
    for (nga::JsonNode const& material :
         tree.Find("children")->elements[0].Find("children")->elements)
        EXPECT_NE(material.Find("summary")->text, "") << "without a source";
}

TEST(Tool, TheExamplesAreWrittenAsExportWritesThem) {
    for (std::string const& example : {bracket, everyOption, loadsAndSections}) {
        ToolRun const run = RunNga({"export", example});
        EXPECT_EQ(run.code, 0);
        EXPECT_EQ(run.out, FileContent(example));
        EXPECT_EQ(RunNga({"export", "-"}, run.out).out, run.out);
    }
}

TEST(Tool, TheExampleOfEveryFamilyIsValidNamesItsSourcesAndSurvivesADatabase) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("every_option.nga");
    ASSERT_EQ(RunNga({"import", everyOption, "--into", file}).code, 0);
    EXPECT_EQ(RunNga({"check", file}).code, 0);
    std::string const text = RunNga({"export", file}).out;
    EXPECT_EQ(text, FileContent(everyOption));
    nga::JsonNode const document = nga::ParseJson(text);
    std::set<std::string> options;
    for (nga::JsonMember const& material : document.Find("materials")->members) {
        ASSERT_NE(material.value.Find("description"), nullptr) << material.key;
        for (nga::JsonMember const& option : material.value.members) options.insert(option.key);
    }
    for (char const* option :
         {"hyperelastic", "viscoelastic", "concreteDamagedPlasticity", "druckerPrager",
          "mohrCoulombPlasticity", "hyperfoam", "crushableFoam", "castIronPlasticity",
          "gasketThicknessBehavior", "acousticMedium", "eos", "diffusivity", "userMaterial"})
        EXPECT_EQ(options.count(option), 1u) << option;
}

TEST(Tool, AZeroFactorIsAFindingWithItsPathAndMessage) {
    ToolRun const run = RunNga({"check", zeroFactor});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out,
              "documents['zero_factor'].loadCases['overload']: klc 0: "
              "A scale factor cannot be zero or blank.\n");
    EXPECT_EQ(run.err, "1 finding\n");
    EXPECT_EQ(RunNga({"check", zeroFactor, "--quiet"}).err, "");
    ToolRun const json = RunNga({"check", "--json", zeroFactor});
    EXPECT_EQ(json.code, 1);
    EXPECT_EQ(json.err, "");
    nga::JsonNode const finding = nga::ParseJson(json.out).Find("findings")->elements.at(0);
    EXPECT_EQ(finding.Find("path")->text, "documents['zero_factor'].loadCases['overload']");
    EXPECT_EQ(finding.Find("module")->text, "klc");
    EXPECT_EQ(finding.Find("code")->integer, 0);
    EXPECT_EQ(finding.Find("message")->text, "A scale factor cannot be zero or blank.");
}

TEST(Tool, EveryPathThatTreePrintsCanBeShown) {
    std::string const paths = RunNga({"tree", bracket, "--paths"}).out;
    std::size_t shown = 0;
    for (std::size_t at = 0; at < paths.size(); at = paths.find('\n', at) + 1) {
        std::string const line = paths.substr(at, paths.find('\n', at) - at);
        std::string const path = line.substr(0, line.find("  "));
        // A run for each would take long; the resolver's own tests take them all.
        if (shown++ % 6 != 0) continue;
        ToolRun const run = RunNga({"show", bracket, path});
        EXPECT_EQ(run.code, 0) << path << run.err;
        EXPECT_NE(run.out, "") << path;
    }
    EXPECT_GT(shown, 30u);
}

TEST(Tool, ShowPrintsAnObjectAndAValue) {
    EXPECT_EQ(RunNga({"show", bracket, "materials['copper'].options['density'].table"}).out,
              "[[8960.0]]\n");
    EXPECT_EQ(
        RunNga({"show", bracket, "materials['copper'].options['elastic'].type", "--json"}).out,
        "{\n  \"path\": \"documents['bracket'].materials['copper'].options['elastic'].type\",\n"
        "  \"value\": \"ISOTROPIC\"\n}\n");
    ToolRun const missing = RunNga({"show", bracket, "materials['coper']"});
    EXPECT_EQ(missing.code, 2);
    EXPECT_EQ(missing.out, "");
    EXPECT_EQ(missing.err,
              "nga: documents['bracket'].materials: there is no entry 'coper' "
              "(did you mean 'copper'?)\n");
}

TEST(Tool, AFailingTextNamesItsFileLineAndPlace) {
    TemporaryFolder const folder;
    std::string const file =
        folder.Write("bad.json", "{\"materials\": {\n\"a\": {\"elastic\": {\"typ\": 1}}}}");
    ToolRun const run = RunNga({"check", file});
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.err, "nga: " + file +
                           ":2: materials['a'].elastic.typ: unknown key (did you mean 'type'?); "
                           "expected a member of Elastic\n");
}

TEST(Tool, WhatCannotBeReadIsOneClearFailure) {
    TemporaryFolder const folder;
    EXPECT_EQ(RunNga({"check", folder.Path("no.json")}).err,
              "nga: " + folder.Path("no.json") + ": there is no such file\n");
    std::filesystem::create_directory(folder.Path("dir.json"));
    ToolRun const directory = RunNga({"check", folder.Path("dir.json")});
    EXPECT_EQ(directory.code, 2);
    EXPECT_EQ(directory.err, "nga: " + folder.Path("dir.json") + ": this is a folder\n");
}

TEST(Tool, AFullDiskIsAFailureEvenForTheStandardOutput) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP();
    ToolRun const run = RunNga({"export", bracket, "--output", "/dev/full"});
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.err, "nga: /dev/full: cannot write: No space left on device\n");
}

TEST(Tool, ExportIntoAFileKeepsItsModeAndLeavesNoLitter) {
    TemporaryFolder const folder;
    std::string const file = folder.Write("out.json", "old");
    std::filesystem::permissions(file, std::filesystem::perms(0640));
    std::filesystem::create_symlink(file, folder.Path("link.json"));
    EXPECT_EQ(RunNga({"export", bracket, "-o", folder.Path("link.json")}).code, 0);
    EXPECT_EQ(FileContent(file), FileContent(bracket));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link.json")));
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0640));
    int count = 0;
    for (auto const& entry : std::filesystem::directory_iterator(folder.Path("")))
        count += entry.exists();
    EXPECT_EQ(count, 2);
    EXPECT_EQ(RunNga({"export", bracket, "-o", folder.Path("no/such/out.json")}).code, 2);
}

TEST(Tool, JournalShowsTheRecordsOfAnImportAsTheyWereSent) {
    TemporaryFolder const folder;
    std::string const first = folder.Write("first.json", "{\"materials\": {\"b\": {}, \"a\": {}}}");
    std::string const second = folder.Write("second.json", "{\"materials\": {\"a\": {}}}");
    EXPECT_EQ(RunNga({"journal", first}).out, "('Insert', 'b', -99)\n('Insert', 'a', -99)\n");
    EXPECT_EQ(RunNga({"journal", second, "--into", first, "--on-conflict", "replace"}).out,
              "('Remove', 'a')\n('Insert', 'a', -99)\n");
    EXPECT_EQ(RunNga({"journal", second, "--into", first, "--on-conflict", "keep", "--json"}).out,
              "[]\n");
    ToolRun const refused = RunNga({"journal", second, "--into", first});
    EXPECT_EQ(refused.code, 2);
    EXPECT_NE(refused.err.find("materials['a']: the document has an object of this name already"),
              std::string::npos);
}

TEST(Tool, FromTextIntoADatabaseAndBack) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("bracket.nga");
    EXPECT_EQ(RunNga({"new", file}).code, 0);
    EXPECT_EQ(RunNga({"export", file}).out, "{\n  \"nga\": 1,\n  \"schema\": 1111\n}\n");
    ToolRun const import = RunNga({"import", bracket, "--into", file});
    EXPECT_EQ(import.code, 0) << import.err;
    EXPECT_EQ(import.out, "");
    EXPECT_EQ(import.err,
              "materials: 9 added in " + file + "\nloadCases: 3 added in " + file + "\n");
    EXPECT_EQ(RunNga({"check", file}).code, 0);
    EXPECT_EQ(RunNga({"export", file}).out, FileContent(bracket));
    EXPECT_EQ(RunNga({"tree", file}).out, RunNga({"tree", bracket}).out);
    EXPECT_EQ(RunNga({"show", file, "materials['copper'].options['density'].table[0][0]"}).out,
              "8960.0\n");
}

TEST(Tool, ImportMakesTheDocumentThatIsNotThere) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("fresh.nga");
    ToolRun const run = RunNga({"import", bracket, "--into", file, "--json"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err, "");
    nga::JsonNode const report = nga::ParseJson(run.out);
    EXPECT_EQ(report.Find("file")->text, file);
    EXPECT_EQ(report.Find("materials")->Find("added")->integer, 9);
    EXPECT_EQ(RunNga({"export", file}).out, FileContent(bracket));
}

TEST(Tool, ANameThatIsThereAlreadyFollowsTheStatedRule) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("d.nga");
    std::string const first =
        folder.Write("1.json", "{\"materials\": {\"a\": {\"description\": \"old\"}}}");
    std::string const second =
        folder.Write("2.json", "{\"materials\": {\"a\": {\"description\": \"new\"}}}");
    ASSERT_EQ(RunNga({"import", first, "--into", file}).code, 0);
    std::string const bytes = FileContent(file);
    ToolRun const refused = RunNga({"import", second, "--into", file});
    EXPECT_EQ(refused.code, 2);
    EXPECT_NE(refused.err.find("2.json:1: materials['a']: "), std::string::npos) << refused.err;
    EXPECT_EQ(FileContent(file), bytes);
    std::string const path = "materials['a'].description";
    EXPECT_EQ(RunNga({"import", second, "--into", file, "--on-conflict", "keep"}).code, 0);
    EXPECT_EQ(RunNga({"show", file, path}).out, "\"old\"\n");
    EXPECT_EQ(RunNga({"import", second, "--into", file, "--on-conflict", "replace"}).code, 0);
    EXPECT_EQ(RunNga({"show", file, path}).out, "\"new\"\n");
}

TEST(Tool, AnImportKeepsTheOtherObjectsOfTheDocument) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("bracket.nga");
    ASSERT_EQ(RunNga({"import", bracket, "--into", file}).code, 0);
    std::string const more = folder.Write(
        "more.json",
        "{\"materials\": {\"zinc\": {\"description\": \"new\"}}, \"loadCases\": {\"z\": {}}}");
    ASSERT_EQ(RunNga({"import", more, "--into", file}).code, 0);
    nga::JsonNode const before = nga::ParseJson(FileContent(bracket));
    nga::JsonNode const after = nga::ParseJson(RunNga({"export", file}).out);
    for (std::string const kind : {"materials", "loadCases"}) {
        ASSERT_EQ(after.Find(kind)->members.size(), before.Find(kind)->members.size() + 1);
        for (nga::JsonMember const& member : before.Find(kind)->members) {
            std::string const path = kind + "['" + member.key + "']";
            EXPECT_EQ(RunNga({"show", file, path}).out, RunNga({"show", bracket, path}).out);
        }
    }
    EXPECT_EQ(RunNga({"show", file, "materials['zinc'].description"}).out, "\"new\"\n");
    ASSERT_EQ(RunNga({"import", bracket, "--into", file, "--on-conflict", "keep"}).code, 0);
    ASSERT_EQ(RunNga({"import", bracket, "--into", file, "--on-conflict", "replace"}).code, 0);
    EXPECT_EQ(RunNga({"check", file}).code, 0);
    std::string const text = RunNga({"export", file}).out;
    std::string const again = folder.Path("again.nga");
    ASSERT_EQ(RunNga({"import", "-", "--into", again}, text).code, 0);
    EXPECT_EQ(RunNga({"export", again}).out, text);
}

TEST(Tool, NewRefusesAPresentFileAndFilesOfOthersAreRefused) {
    TemporaryFolder const folder;
    std::string const file = folder.Write("other.nga", "not ours");
    for (auto const& arguments : std::vector<std::vector<std::string>>{
             {"new", file}, {"tree", file}, {"check", file}, {"import", bracket, "--into", file}}) {
        ToolRun const run = RunNga(arguments);
        EXPECT_EQ(run.code, 2) << arguments[0];
        EXPECT_EQ(run.out, "") << arguments[0];
        EXPECT_EQ(run.err.rfind("nga: " + file + ": ", 0), 0u) << run.err;
        EXPECT_EQ(FileContent(file), "not ours") << arguments[0];
    }
}

TEST(Tool, SchemaPrintsOneClassOrAll) {
    EXPECT_EQ(RunNga({"schema", "Elastic"}).out.rfind("kmaC_Elastic  0x238001E  version 203", 0),
              0u);
    nga::JsonNode const all = nga::ParseJson(RunNga({"schema", "--json"}).out);
    EXPECT_GT(all.elements.size(), 10u);
    ToolRun const unknown = RunNga({"schema", "Elastik"});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_NE(unknown.err.find("'Elastic'"), std::string::npos);
}

TEST(Tool, CompletionScriptsKnowEveryVerbAndBashTakesOurs) {
    for (std::string const shell : {"bash", "zsh", "fish"}) {
        ToolRun const run = RunNga({"completion", shell});
        EXPECT_EQ(run.code, 0);
        for (std::string const& verb : verbs)
            EXPECT_NE(run.out.find(verb), std::string::npos) << shell << verb;
    }
    TemporaryFolder const folder;
    std::string const script = folder.Write(
        "try.bash",
        RunNga({"completion", "bash"}).out +
            "COMP_WORDS=(nga ch); COMP_CWORD=1; _nga; echo \"${COMPREPLY[@]}\"\n"
            "COMP_WORDS=(nga import a --on-conflict k); COMP_CWORD=4; _nga\n"
            "echo \"${COMPREPLY[@]}\"\n"
            "COMP_WORDS=(nga tree --pa); COMP_CWORD=2; _nga; echo \"${COMPREPLY[@]}\"\n");
    std::string const command = "bash " + script + " > " + folder.Path("out") + " 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(FileContent(folder.Path("out")), "check\nkeep\n--paths\n");
}

TEST(Tool, NothingIsColouredWithoutATerminal) {
    EXPECT_EQ(RunNga({"check", zeroFactor}).out.find('\033'), std::string::npos);
    EXPECT_EQ(RunNga({"chek"}).err.find('\033'), std::string::npos);
}
