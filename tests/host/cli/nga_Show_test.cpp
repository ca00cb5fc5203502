#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "host/nga/xml.h"
#include "nga_JsonTree.h"
#include "tool_runner.h"

extern char** environ;

namespace {

std::string const example = NGA_EXAMPLES "/loads_and_sections.json";
std::string const step = "amplitudes['smooth step']";
std::string const girder = "profiles['IPE 300 (EN 10365)']";

/// A character of a plot's axis.
std::string const axis = "└";

/// Runs the tool with a terminal as its standard output.
std::string OnATerminal(std::vector<std::string> const& arguments) {
    int const master = posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) return std::string();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, ptsname(master), O_WRONLY | O_NOCTTY, 0);
    std::vector<char*> argv = {const_cast<char*>(NGA_TOOL)};
    for (std::string const& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    pid_t child = 0;
    std::string text;
    if (posix_spawn(&child, NGA_TOOL, &actions, nullptr, argv.data(), environ) == 0) {
        // Ends with an error once the other end is closed.
        char block[4096];
        for (ssize_t count; (count = read(master, block, sizeof block)) > 0;)
            text.append(block, static_cast<std::size_t>(count));
        waitpid(child, nullptr, 0);
    }
    posix_spawn_file_actions_destroy(&actions);
    close(master);
    return text;
}

nga::JsonNode SectionOf(std::string const& path) {
    ToolRun const run = RunNga({"show", example, path, "--json"});
    EXPECT_EQ(run.code, 0) << run.err;
    nga::JsonNode const node = nga::ParseJson(run.out);
    EXPECT_NE(node.Find("section"), nullptr) << run.out;
    return node.Find("section") ? *node.Find("section") : nga::JsonNode();
}

}  // namespace

TEST(Show, DrawsOnATerminalOrOnRequestAndNowhereElse) {
    ToolRun const plain = RunNga({"show", example, step});
    EXPECT_EQ(plain.out.find(axis), std::string::npos);
    ToolRun const drawn = RunNga({"show", example, step, "--plot"});
    EXPECT_EQ(drawn.code, 0);
    EXPECT_EQ(drawn.err, "");
    EXPECT_EQ(drawn.out.rfind(plain.out + "\n", 0), 0u) << "below the fields";
    EXPECT_NE(drawn.out.find(axis), std::string::npos);
    EXPECT_NE(drawn.out.find("step time"), std::string::npos);
    EXPECT_NE(OnATerminal({"show", example, step}).find(axis), std::string::npos);
    std::string const json = OnATerminal({"show", example, step, "--json"});
    EXPECT_NE(json, "");
    EXPECT_EQ(json.find(axis), std::string::npos);
    // What has no picture by its nature shows none, without a word.
    std::string const filter = OnATerminal({"show", example, "filters['output at 100 Hz']"});
    EXPECT_NE(filter, "");
    EXPECT_EQ(filter.find(axis), std::string::npos);
}

TEST(Show, FailsWhereAPictureIsAskedForAndThereIsNone) {
    ToolRun const run = RunNga({"show", example, "amplitudes['forming pressure']", "--plot"});
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "nga: documents['loads_and_sections'].amplitudes['forming pressure']: there is no "
              "picture: the solver finds its values as it goes\n");
    std::string const terminal = OnATerminal({"show", example, "amplitudes['forming pressure']"});
    EXPECT_NE(terminal.find("maximum"), std::string::npos);
    // The rule is said once, whatever shows the profile.
    std::string const bad = "{\"profiles\": {\"p\": {\"class\": \"CircularProfile\"}}}";
    TemporaryFolder const folder;
    std::string const file = folder.Write("bad.json", bad);
    std::string const rule = "The radius must be greater than zero.";
    ToolRun const invalid = RunNga({"show", file, "profiles['p']", "--plot"});
    EXPECT_EQ(invalid.code, 2);
    std::string const all = invalid.out + invalid.err;
    ASSERT_NE(all.find(rule), std::string::npos);
    EXPECT_EQ(all.find(rule), all.rfind(rule)) << all;
}

TEST(Show, NamesWhatHasThePictureThatWasMeant) {
    std::string const document = "documents['loads_and_sections'].";
    for (char const* member : {".data", ".data[0]", ".data[0][1]", ".timeSpan"})
        for (std::vector<std::string> const& how :
             {std::vector<std::string>{"--plot"}, std::vector<std::string>{"-o", "-"}}) {
            std::vector<std::string> arguments = {"show", example, step + member};
            arguments.insert(arguments.end(), how.begin(), how.end());
            ToolRun const run = RunNga(arguments);
            EXPECT_EQ(run.code, 2);
            EXPECT_EQ(run.err, "nga: " + document + step + member +
                                   ": there is no picture: only amplitudes and profiles have one, "
                                   "as a whole; this is a part of " +
                                   document + step + "\n");
        }
    std::string const record = "amplitudes['ground acceleration (synthetic)']";
    std::string const part =
        RunNga({"show", example, record + ".baselineCorrection", "-o", "-"}).err;
    EXPECT_NE(part.find("; this is a part of " + document + record + "\n"), std::string::npos)
        << part;
    for (std::string const collection : {"amplitudes", "profiles"})
        EXPECT_EQ(RunNga({"show", example, collection, "-o", "-"}).err,
                  "nga: " + document + collection +
                      ": there is no picture: a collection has one for each object; name one of "
                      "its objects\n");
    EXPECT_EQ(RunNga({"show", example, "filters", "-o", "-"}).err,
              "nga: " + document +
                  "filters: there is no picture: only amplitudes and profiles have one\n");
}

TEST(Show, DrawsNothingOnATerminalIfThatIsRefused) {
    std::string const shown = OnATerminal({"show", example, step, "--no-plot"});
    EXPECT_NE(shown.find("data"), std::string::npos);
    EXPECT_EQ(shown.find(axis), std::string::npos);
}

TEST(Show, RefusesAPictureInTwoPlacesAndAnyFileWithoutAName) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("x.svg");
    for (std::vector<std::string> const& more :
         {std::vector<std::string>{"--plot", "-o", file}, {"--plot", "--no-plot"}}) {
        std::vector<std::string> arguments = {"show", example, step};
        arguments.insert(arguments.end(), more.begin(), more.end());
        ToolRun const run = RunNga(arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("--plot"), std::string::npos) << run.err;
    }
    EXPECT_FALSE(std::filesystem::exists(file));
    for (std::vector<std::string> const& arguments :
         {std::vector<std::string>{"show", example, step, "-o", ""},
          std::vector<std::string>{"export", example, "--output", ""}}) {
        ToolRun const run = RunNga(arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("--output: the name is empty"), std::string::npos) << run.err;
    }
    // Nor is a document made under another name.
    for (char const* verb : {"import", "journal"}) {
        ToolRun const run = RunNga({verb, example, "--into", ""});
        EXPECT_EQ(run.code, 2);
        EXPECT_NE(run.err.find("--into: the name is empty"), std::string::npos) << run.err;
    }
}

TEST(Show, ShortensLongListsOnATerminalAlone) {
    std::string const record = "amplitudes['ground acceleration (synthetic)']";
    std::string const terminal = OnATerminal({"show", example, record});
    EXPECT_NE(terminal.find("[0.0, 0.0, 0.0, -0.001, ... (601 values), 0.022, 0.002, -0.012, "
                            "0.027]\r\n"),
              std::string::npos)
        << terminal;
    EXPECT_EQ(RunNga({"show", example, record}).out.find("..."), std::string::npos);
    EXPECT_EQ(OnATerminal({"show", example, record, "--json"}).find("..."), std::string::npos);
    // Whoever names the list wants it.
    EXPECT_EQ(OnATerminal({"show", example, record + ".data"}).find("..."), std::string::npos);
    EXPECT_EQ(OnATerminal({"show", example, step}).find("..."), std::string::npos);
    std::string rows;
    for (int i = 0; i < 100; ++i) rows += (i == 0 ? "[" : ", [") + std::to_string(i) + ", 0.5]";
    TemporaryFolder const folder;
    std::string const file = folder.Write(
        "t.json",
        "{\"amplitudes\": {\"t\": {\"class\": \"TabularAmplitude\", \"data\": [" + rows + "]}}}");
    EXPECT_NE(OnATerminal({"show", file, "amplitudes['t']"})
                  .find("[[0.0, 0.5], [1.0, 0.5], [2.0, 0.5], [3.0, 0.5], ... (100 rows), "),
              std::string::npos);
}

TEST(Show, AndExportWriteThroughLinksOrSayWhyNot) {
    for (bool const picture : {true, false}) {
        TemporaryFolder const folder;
        auto const written = [&](std::string const& file) {
            return RunNga(picture ? std::vector<std::string>{"show", example, step, "-o", file}
                                  : std::vector<std::string>{"export", example, "-o", file});
        };
        std::filesystem::create_directory(folder.Path("far"));
        std::filesystem::create_symlink("far/new.svg", folder.Path("near.svg"));
        std::filesystem::create_symlink("near.svg", folder.Path("nearer.svg"));
        ToolRun const dangling = written(folder.Path("nearer.svg"));
        EXPECT_EQ(dangling.code, 0) << dangling.err;
        EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("near.svg")));
        EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("nearer.svg")));
        EXPECT_TRUE(std::filesystem::is_regular_file(folder.Path("far/new.svg")));
        EXPECT_GT(FileContent(folder.Path("far/new.svg")).size(), 100u);
        EXPECT_EQ(written(folder.Path("nearer.svg")).code, 0) << "and again, where there is a file";

        std::filesystem::create_symlink("b.svg", folder.Path("a.svg"));
        std::filesystem::create_symlink("a.svg", folder.Path("b.svg"));
        std::string const loop = folder.Path("a.svg");
        EXPECT_EQ(written(loop).err,
                  "nga: " + loop + ": cannot write: Too many levels of symbolic links\n");
        EXPECT_EQ(written(loop).code, 2);
        EXPECT_TRUE(std::filesystem::is_symlink(loop));
        std::string const below = loop + "/c.svg";
        EXPECT_EQ(written(below).err,
                  "nga: " + below + ": cannot write: Too many levels of symbolic links\n");
        std::string const tooLong = folder.Path(std::string(300, 'x') + ".svg");
        EXPECT_EQ(written(tooLong).err, "nga: " + tooLong + ": cannot write: File name too long\n");
        std::string const nowhere = folder.Path("no/such.svg");
        EXPECT_EQ(written(nowhere).err,
                  "nga: " + nowhere + ": cannot write: No such file or directory\n");
        if (geteuid() == 0) continue;
        std::filesystem::permissions(folder.Path("far"), std::filesystem::perms::none);
        std::string const locked = folder.Path("far/new.svg");
        EXPECT_EQ(written(locked).err, "nga: " + locked + ": cannot write: Permission denied\n");
        std::filesystem::permissions(folder.Path("far"), std::filesystem::perms::owner_all);
    }
}

TEST(Show, HasNeitherPlotNorSvgBesidesJson) {
    for (std::vector<std::string> const& more :
         {std::vector<std::string>{"--plot"}, std::vector<std::string>{"-o", "x.svg"}}) {
        std::vector<std::string> arguments = {"show", example, step, "--json"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        ToolRun const run = RunNga(arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("--json"), std::string::npos) << run.err;
    }
    EXPECT_FALSE(std::filesystem::exists("x.svg"));
}

TEST(Show, WritesAnSvgOfEverythingThatHasAPicture) {
    TemporaryFolder const folder;
    nga::JsonNode const document = nga::ParseJson(FileContent(example));
    int pictures = 0;
    for (char const* collection : {"amplitudes", "profiles"})
        for (nga::JsonMember const& member : document.Find(collection)->members) {
            if (member.key == "forming pressure" || member.key == "rib from a test") continue;
            std::string const path = std::string(collection) + "['" + member.key + "']";
            std::string const file = folder.Path(std::to_string(pictures++) + ".svg");
            ToolRun const run = RunNga({"show", example, path, "-o", file});
            EXPECT_EQ(run.code, 0) << run.err;
            EXPECT_EQ(run.out + run.err, "");
            std::string const svg = FileContent(file);
            EXPECT_EQ(XmlMistake(svg), "") << path;
            EXPECT_NE(svg.find("<title>documents['loads_and_sections']." + path + "</title>"),
                      std::string::npos)
                << path;
        }
    EXPECT_GE(pictures, 18);
    EXPECT_EQ(RunNga({"show", example, step, "-o", "-"}).out.rfind("<?xml", 0), 0u);
}

TEST(Show, LeavesAFileAloneWhereThereIsNoPicture) {
    TemporaryFolder const folder;
    std::string const file = folder.Write("old.svg", "old");
    for (char const* path :
         {"amplitudes['forming pressure']", "profiles['rib from a test']",
          "filters['output at 100 Hz']", "amplitudes", "amplitudes['smooth step'].data"}) {
        ToolRun const run = RunNga({"show", example, path, "-o", file});
        EXPECT_EQ(run.code, 2) << path;
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("there is no picture: "), std::string::npos) << run.err;
        EXPECT_EQ(RunNga({"show", example, path, "-o", folder.Path("new.svg")}).code, 2);
    }
    EXPECT_EQ(FileContent(file), "old");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("new.svg")));
    std::string const database = folder.Write("model.nga", "precious");
    EXPECT_EQ(
        RunNga({"show", example, step, "-o", database}).err,
        "nga: " + database + ": a picture cannot stand there; expected a name that ends in .svg\n");
    EXPECT_EQ(FileContent(database), "precious");
    EXPECT_EQ(RunNga({"show", example, step, "-o", folder.Path("no/such/x.svg")}).code, 2);
}

TEST(Show, GivesTheSectionOfAProfile) {
    nga::JsonNode const i = SectionOf(girder);
    EXPECT_NEAR(i.Find("area")->real, 53.8e-4, 3e-4);
    EXPECT_NEAR(i.Find("i11")->real, 8356e-8, 400e-8);
    EXPECT_NEAR(i.Find("i22")->real, 604e-8, 3e-8);
    EXPECT_EQ(i.Find("i12")->real, 0);
    EXPECT_DOUBLE_EQ(i.Find("polar")->real, i.Find("i11")->real + i.Find("i22")->real);
    ASSERT_EQ(i.Find("centroid")->elements.size(), 2u);
    EXPECT_EQ(i.Find("centroid")->elements[1].real, 0);
    nga::JsonNode const given = SectionOf("profiles['rib from a test']");
    EXPECT_EQ(given.Find("area")->real, 0.0012);
    ASSERT_NE(given.Find("j"), nullptr);
    EXPECT_EQ(given.Find("j")->real, 9.5e-09);
    EXPECT_EQ(given.Find("polar"), nullptr) << "what users take for a torsion constant is none";
    EXPECT_EQ(given.Find("centroid"), nullptr);
    EXPECT_EQ(i.Find("j"), nullptr);
    std::string const rib = RunNga({"show", example, "profiles['rib from a test']"}).out;
    EXPECT_NE(rib.find("\n    i12       0\n    j         9.5e-09\n"), std::string::npos) << rib;
    EXPECT_EQ(rib.find("polar"), std::string::npos);
    std::string const text = RunNga({"show", example, girder}).out;
    EXPECT_NE(text.find("  section\n    area      0.00518806\n    centroid  [0, 0]\n"),
              std::string::npos)
        << text;
    EXPECT_EQ(RunNga({"show", example, step, "--json"}).out.find("section\""), std::string::npos);
}

TEST(Show, SaysWhereASectionIsApproximate) {
    std::string const purlin = "profiles['Z purlin of 2 mm sheet']";
    std::string const note = "approximate where segments meet at an angle";
    EXPECT_EQ(SectionOf(purlin).Find("note")->text, note);
    EXPECT_EQ(SectionOf(girder).Find("note"), nullptr);
    std::string const text = RunNga({"show", example, purlin, "--plot"}).out;
    EXPECT_NE(text.find("\n    note      " + note + "\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\n  note: " + note + "\n"), std::string::npos) << text;
    std::string const svg = RunNga({"show", example, purlin, "-o", "-"}).out;
    EXPECT_NE(svg.find(">The cross is the centroid.<"), std::string::npos) << svg;
    EXPECT_NE(svg.find(">note: " + note + "<"), std::string::npos) << svg;
}

TEST(Show, WritesGivenPropertiesThatAreNoNumbersAsTheFieldsDo) {
    std::string const text = R"({"profiles": {"p": {"class": "GeneralizedProfile",
        "area": "Infinity", "i11": 1.0, "i22": 1.0, "j": "Infinity"}}})";
    std::string const shown = RunNga({"show", "-", "profiles['p']"}, text).out;
    EXPECT_NE(shown.find("\n  area    \"Infinity\"\n"), std::string::npos) << shown;
    EXPECT_NE(shown.find("\n    area      \"Infinity\"\n"), std::string::npos) << shown;
    EXPECT_NE(shown.find("\n    j         \"Infinity\"\n"), std::string::npos) << shown;
}

TEST(Show, SaysWhyAProfileHasNoSection) {
    std::string const text =
        "{\"profiles\": {\"a <b> & c\": {\"class\": \"PipeProfile\", \"r\": 1.0, \"t\": 2.0}}}";
    std::string const path = "profiles['a <b> & c']";
    ToolRun const shown = RunNga({"show", "-", path}, text);
    EXPECT_EQ(shown.code, 0);
    EXPECT_NE(
        shown.out.find("\n  section: none, since it breaks a rule: The thickness must be less "
                       "than the radius.\n"),
        std::string::npos)
        << shown.out;
    nga::JsonNode const json = nga::ParseJson(RunNga({"show", "-", path, "--json"}, text).out);
    EXPECT_EQ(json.Find("section")->kind, nga::JsonNode::Kind::Null);
    EXPECT_EQ(json.Find("noSection")->text,
              "it breaks a rule: The thickness must be less than the radius.");
    EXPECT_EQ(RunNga({"show", "-", path, "-o", "-"}, text).code, 2);
    std::string good = text;
    good.replace(good.find("2.0"), 3, "0.5");
    ToolRun const svg = RunNga({"show", "-", path, "-o", "-"}, good);
    EXPECT_EQ(XmlMistake(svg.out), "") << svg.out;
    EXPECT_NE(svg.out.find("a &lt;b&gt; &amp; c"), std::string::npos) << svg.out;
}

TEST(Show, DrawsWhatIsOddWithoutNonsense) {
    std::string const text = R"({"amplitudes": {
      "constant": {"class": "TabularAmplitude", "data": [[0.0, 1.0], [1.0, 1.0]]},
      "at one time": {"class": "TabularAmplitude", "data": [[0.0, 1.0], [0.0, 1.0]]},
      "no number": {"class": "TabularAmplitude", "data": [["NaN", 1.0], [0.0, "Infinity"]]},
      "huge": {"class": "TabularAmplitude", "data": [[0.0, -1.7e308], [1.7e308, 1.7e308]]},
      "tiny": {"class": "TabularAmplitude", "data": [[0.0, 0.0], [1e-320, 1e-320]]},
      "empty": {"class": "TabularAmplitude"},
      "one frequency": {"class": "PsdDefinition", "data": [[1.0, 0.0, 10.0]]}
    }})";
    for (char const* name :
         {"constant", "at one time", "huge", "tiny", "one frequency", "no number", "empty"}) {
        ToolRun const run =
            RunNga({"show", "-", std::string("amplitudes['") + name + "']", "--plot"}, text);
        std::size_t const fields = run.out.find("\n\n");
        bool const drawn = name != std::string("no number") && name != std::string("empty");
        EXPECT_EQ(run.code, drawn ? 0 : 2) << name << run.err;
        EXPECT_EQ(fields != std::string::npos, drawn) << name << run.out << run.err;
        if (!drawn) {
            EXPECT_NE(run.err.find("there is no picture: "), std::string::npos) << name;
            continue;
        }
        std::string const plot = run.out.substr(fields);
        for (char const* odd : {"nan", "inf"})
            EXPECT_EQ(plot.find(odd), std::string::npos) << name << plot;
    }
}

TEST(Show, TheExampleIsValidAndItsRecordIsThatOfItsScript) {
    EXPECT_EQ(RunNga({"check", example}).code, 0);
    TemporaryFolder const folder;
    std::string const record = folder.Path("record.json");
    ASSERT_EQ(std::system(("python3 " NGA_EXAMPLES "/make_record.py > " + record).c_str()), 0);
    for (char const* name : {"ground acceleration (synthetic)", "sine sweep 1 to 8 Hz"}) {
        std::string const path = std::string("amplitudes['") + name + "'].data";
        ToolRun const made = RunNga({"show", record, path});
        EXPECT_EQ(made.code, 0) << made.err;
        EXPECT_GT(made.out.size(), 1000u);
        EXPECT_EQ(made.out, RunNga({"show", example, path}).out) << name;
    }
}
