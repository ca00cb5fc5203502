#include "nga_Tool.h"

#include <CLI/CLI.hpp>
#include <filesystem>

#include "nex_Exception.h"
#include "nga_Check.h"
#include "nga_Completion.h"
#include "nga_Console.h"
#include "nga_DiffReport.h"
#include "nga_Document.h"
#include "nga_Error.h"
#include "nga_Findings.h"
#include "nga_Journal.h"
#include "nga_Json.h"
#include "nga_JsonWriter.h"
#include "nga_Names.h"
#include "nga_Path.h"
#include "nga_Plot.h"
#include "nga_Reference.h"
#include "nga_Schema.h"
#include "nga_Script.h"
#include "nga_Start.h"
#include "nga_Stubs.h"
#include "nga_Svg.h"
#include "nga_Tree.h"
#include "nga_Upgrade.h"

namespace nga {

namespace {

constexpr char const* toolVersion = "nga 0.1.0 (schema 1111)";

/// What the command line said.
struct Arguments {
    std::string file;
    std::string path;
    std::string into;
    std::string output;
    std::string onConflict = "error";
    std::string className;
    std::string shell;
    std::string verb;
    std::string other;
    std::vector<double> tolerance;
    bool script = false;
    bool stubs = false;
    bool markdown = false;
    bool json = false;
    bool paths = false;
    bool deep = false;
    bool dryRun = false;
    bool noComplete = false;
    bool plot = false;
    bool noPlot = false;
};

bool EndsWith(std::string const& text, std::string_view ending) {
    return text.size() >= ending.size() &&
           text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

/// A failure in a text, with the text's file before it.
template <class Do>
auto InFile(std::string const& file, Do work) {
    try {
        return work();
    } catch (Error const& failure) {
        std::string const place = failure.Line() > 0
                                      ? NameOfFile(file) + ":" + std::to_string(failure.Line())
                                      : NameOfFile(file);
        throw Error(failure.Message(),
                    failure.Place().empty() ? place : place + ": " + failure.Place(), 0,
                    failure.Expected());
    }
}

std::string NameFor(std::string const& file) {
    return file == "-" ? "document" : Document::StemOf(file);
}

/// A document from a database, or from a text in memory, so that a text can be looked at and
/// checked without a database.
Document OpenAny(std::string const& file) {
    if (file != "-" && !EndsWith(file, ".json")) return Document::Open(file);
    Document document = InFile(file, [&] { return Document::New(NameFor(file)); });
    std::string const text = ReadText(file);
    InFile(file, [&] { ImportJson(document, text); });
    return document;
}

/// A name under which the tool would read a text is none for a database that it makes or changes.
void RefuseTextName(std::string const& file) {
    if (file == "-" || EndsWith(file, ".json"))
        throw Error("a database cannot stand there: under this name a JSON text is read", file, 0,
                    "the name of a database, such as " +
                        (file == "-" ? "document" : Document::StemOf(file)) + ".nga");
}

void RefuseExisting(std::string const& file, std::string const& expected) {
    std::error_code ignored;
    if (std::filesystem::exists(std::filesystem::symlink_status(file, ignored)))
        throw Error("the file is there already", file, 0, expected);
}

OnConflict ConflictRule(std::string const& text) {
    if (text == "replace") return OnConflict::Replace;
    if (text == "keep") return OnConflict::Keep;
    return OnConflict::Error;
}

class Tool {
public:
    explicit Tool(Console& console) : m_console(console) {
        Arguments& a = m_arguments;
        m_app.require_subcommand(1);
        m_app.get_formatter()->label("SUBCOMMAND", "VERB");
        m_app.set_version_flag("--version", toolVersion);
        m_app.add_flag("-q,--quiet", m_console.quiet, "Say nothing but results and failures");
        m_app.footer(
            "Exit codes: 0 fine, 1 findings or differences, 2 misuse or failure.\n"
            "A FILE that ends in .json is read as a text, anything else as a database.\n"
            "Example:\n  nga import examples/bracket.json --into bracket.nga");

        CLI::App* verb = Verb("new", "Make an empty document", "nga new bridge.nga", &Tool::New);
        verb->add_option("FILE", a.file, "The new file")->required()->type_name("");

        verb = Verb("import", "Put the objects of a JSON text into a document",
                    "nga import examples/bracket.json --into bracket.nga --on-conflict replace",
                    &Tool::Import);
        Text(verb);
        verb->add_option("--into", a.into,
                         "The document, made if it is not there; without this a new one in this "
                         "folder, named as the text")
            ->type_name("FILE")
            ->check(SomeName());
        Conflicts(verb);
        Json(verb);

        verb = Verb("export", "Write a document as JSON text",
                    "nga export bracket.nga --output bracket.json", &Tool::Export);
        File(verb);
        verb->add_option("-o,--output", a.output, "A file instead of the standard output")
            ->type_name("FILE")
            ->check(SomeName());

        verb = Verb("tree", "Show the objects of a document",
                    "nga tree bracket.nga \"materials['steel']\"", &Tool::Tree);
        File(verb);
        verb->add_option("PATH", a.path, "Only what stands at and below this path")->type_name("");
        verb->add_flag("--paths", a.paths, "A whole path a line instead of indented steps");
        Json(verb);

        verb = Verb("show", "Show one object or value",
                    "nga show bracket.nga \"materials['steel'].options['elastic'].table\"",
                    &Tool::Show);
        File(verb);
        verb->add_option("PATH", a.path, "As tree and check print it; the document's step may miss")
            ->required()
            ->type_name("");
        Pictures(verb);

        verb = Verb("check", "List every object that breaks a rule; exit code 1 if there is one",
                    "nga check bracket.nga --json", &Tool::Check);
        File(verb);
        verb->add_flag("--deep", a.deep,
                       "Also note what would fail if its owner asked it; notes alone are fine");
        Json(verb);

        verb = Verb("upgrade",
                    "Bring a database of an older schema to the current one; exit code 1 if "
                    "something in it is to be looked at",
                    "nga upgrade archive.nga --dry-run", &Tool::Upgrade);
        verb->add_option("FILE", a.file,
                         "The database; in its place comes the current one, and it stays beside as "
                         "FILE.schema-NNN.bak")
            ->required()
            ->type_name("");
        verb->add_option("-o,--output", a.output, "Another file for the current database")
            ->type_name("FILE");
        verb->add_flag("--dry-run", a.dryRun, "Do all of it on a scratch copy and change no file");
        verb->add_flag("--no-complete", a.noComplete,
                       "Leave enumerations without a literal as they are, rather than give them "
                       "their default");
        Json(verb);

        verb = Verb("diff", "List where two documents differ; exit code 1 if they do",
                    "nga diff bracket.nga other.nga --tolerance 1e-6,1e-12", &Tool::Diff);
        verb->add_option("A", a.file, "A database or a .json text")->required()->type_name("");
        verb->add_option("B", a.other, "The document to compare with it")
            ->required()
            ->type_name("");
        verb->add_option("--tolerance", a.tolerance,
                         "Numbers are equal within REL times the larger magnitude, or within ABS, "
                         "which alone helps near zero")
            ->type_name("REL[,ABS]")
            ->delimiter(',')
            ->expected(1, 2)
            ->check(CLI::NonNegativeNumber.description(""));
        Json(verb);

        verb = Verb("schema", "Show one class or all, as they are registered", "nga schema Elastic",
                    &Tool::Schema);
        verb->add_option("CLASS", a.className, "Persistent name, script constructor or 0x TypeId")
            ->type_name("");
        verb->add_flag("--markdown", a.markdown, "Reference pages, with the rules, in Markdown");
        verb->add_flag("--stubs", a.stubs, "The type stubs of the Python module");
        Json(verb);

        verb = Verb("journal", "Show the change records of an import, without saving anything",
                    "nga journal examples/bracket.json", &Tool::Journal);
        Text(verb);
        verb->add_option("--into", a.into, "The document to import into, left as it is")
            ->type_name("FILE")
            ->check(SomeName());
        verb->add_flag("--script", a.script, "Show the Python script that makes the same changes");
        Conflicts(verb);
        Json(verb);

        verb = Verb("completion", "Print the completion script of a shell",
                    "nga completion bash > ~/.local/share/bash-completion/completions/nga",
                    &Tool::Completion);
        verb->add_option("SHELL", a.shell, "bash, zsh or fish")
            ->required()
            ->type_name("")
            ->check(CLI::IsMember({"bash", "zsh", "fish"}).description(""));

        verb = Verb("help", "Show this help, or that of one verb", "nga help import", &Tool::Help);
        verb->add_option("VERB", a.verb, "The verb")->type_name("");
    }

    int Run(int argc, char const* const* argv) {
        if (argc < 2) {
            m_console.Explain(m_app.help());
            return exitFailure;
        }
        try {
            m_app.parse(argc, argv);
        } catch (CLI::Success const& wanted) {
            return m_app.exit(wanted);  // help or the version, on the standard output
        } catch (CLI::ParseError const& failure) {
            m_console.Fail(Misuse(argc, argv, failure));
            return exitFailure;
        }
        int const code = (this->*m_chosen)();
        m_console.Finish();
        return code;
    }

private:
    using Action = int (Tool::*)();

    CLI::App* Verb(char const* name, char const* help, char const* example, Action action) {
        CLI::App* verb = m_app.add_subcommand(name, help);
        verb->group("Verbs");
        verb->footer(
            "Every verb takes -q,--quiet too, which leaves out all but results and "
            "failures.\nExample:\n  " +
            std::string(example));
        verb->callback([this, action] { m_chosen = action; });
        verb->fallthrough();
        return verb;
    }
    void File(CLI::App* verb) {
        verb->add_option("FILE", m_arguments.file,
                         "A database, a .json text, or - for a text on "
                         "the standard input")
            ->required()
            ->type_name("");
    }
    void Text(CLI::App* verb) {
        verb->add_option("TEXT", m_arguments.file, "The JSON text, or - for the standard input")
            ->required()
            ->type_name("");
    }
    void Json(CLI::App* verb) { verb->add_flag("--json", m_arguments.json, "Report as JSON"); }
    void Pictures(CLI::App* verb) {
        CLI::Option* const json = verb->add_flag("--json", m_arguments.json, "Report as JSON");
        CLI::Option* const plot =
            verb->add_flag("--plot", m_arguments.plot,
                           "Draw an amplitude's curve or a profile's section below, as on a "
                           "terminal; a failure where there is none")
                ->excludes(json);
        verb->add_flag("--no-plot", m_arguments.noPlot, "Draw nothing on a terminal either")
            ->excludes(plot);
        verb->add_option("-o,--output", m_arguments.output,
                         "Write that picture as SVG, and nothing else; - for the standard output")
            ->type_name("FILE.svg")
            ->check(SomeName())
            ->excludes(json)
            ->excludes(plot);
    }
    /// As from a variable of a shell that was never set.
    static CLI::Validator SomeName() {
        return CLI::Validator(
            [](std::string& name) { return std::string(name.empty() ? "the name is empty" : ""); },
            "");
    }
    void Conflicts(CLI::App* verb) {
        verb->add_option("--on-conflict", m_arguments.onConflict,
                         "For a name that the document has already: error refuses the whole "
                         "import, keep leaves the document's object, replace takes the text's")
            ->type_name("RULE")
            ->check(CLI::IsMember({"error", "keep", "replace"}))
            ->capture_default_str();
    }

    std::vector<std::string> VerbNames() const {
        std::vector<std::string> names;
        for (CLI::App const* verb : m_app.get_subcommands([](CLI::App const*) { return true; }))
            names.push_back(verb->get_name());
        return names;
    }
    static std::string NoVerb(std::string const& word, std::vector<std::string> const& names) {
        return "there is no verb " + Quoted(word) + DidYouMean(word, names);
    }
    std::string Misuse(int argc, char const* const* argv, CLI::ParseError const& failure) {
        std::vector<std::string> const names = VerbNames();
        std::string help = "nga --help";
        bool verb = false;
        for (int i = 1; i < argc; ++i) {
            std::string const word = argv[i];
            if (word.empty() || word[0] == '-') continue;
            if (std::find(names.begin(), names.end(), word) == names.end())
                return NoVerb(word, names) + "; see " + help;
            help = "nga " + word + " --help";
            verb = true;
            break;
        }
        if (!verb && dynamic_cast<CLI::RequiredError const*>(&failure))
            return "a verb is missing; see " + help;
        return Printable(failure.what()) + "; see " + help;
    }

    int Help() {
        if (m_arguments.verb.empty()) {
            // The application's own help() gives that of the verb at work, which is this one.
            m_console.Result(m_app.get_formatter()->make_help(&m_app, m_app.get_name(),
                                                              CLI::AppFormatMode::Normal));
            return exitFine;
        }
        std::vector<std::string> const names = VerbNames();
        if (std::find(names.begin(), names.end(), m_arguments.verb) == names.end())
            throw Error(NoVerb(m_arguments.verb, names));
        m_console.Result(m_app.get_subcommand(m_arguments.verb)->help("nga"));
        return exitFine;
    }

    /// Names that no path shows well come only from files: they are told, and can be used.
    Document Opened(std::string const& file) {
        Document document = OpenAny(file);
        for (std::string const& path : UnusableNames(document))
            m_console.Say("warning: " + Printable(file) + ": " + path +
                          ": the name has a quote, a backslash or a control character, is "
                          "empty, or is kept for the solver; no import could bring it back");
        return document;
    }

    int New() {
        RefuseTextName(m_arguments.file);
        RefuseExisting(m_arguments.file, "the name of a new file");
        Document document = Document::New(Document::StemOf(m_arguments.file));
        document.SaveAsNew(m_arguments.file);
        m_console.Say("made " + Printable(m_arguments.file));
        return exitFine;
    }

    Document Target(std::string const& file) {
        std::error_code ignored;
        if (std::filesystem::exists(file, ignored)) return Document::Open(file);
        return InFile(file, [&] { return Document::New(Document::StemOf(file)); });
    }

    int Import() {
        std::string into = m_arguments.into;
        if (!into.empty()) {
            RefuseTextName(into);
        } else {
            into = NameFor(m_arguments.file) + ".nga";
            RefuseExisting(into, "--into to say that this document is meant");
        }
        std::string const text = ReadText(m_arguments.file);
        Document document = Target(into);
        std::vector<Imported> const report = InFile(m_arguments.file, [&] {
            return ImportJson(document, text, ConflictRule(m_arguments.onConflict));
        });
        if (document.File().empty())
            document.SaveAsNew(into);
        else
            document.Save();
        if (m_arguments.json) {
            m_console.Result(ReportJson(into, report));
        } else {
            for (Imported const& line : report) SayImported(line, into);
        }
        return exitFine;
    }
    static std::string ReportJson(std::string const& into, std::vector<Imported> const& report) {
        JsonWriter writer;
        writer.BeginObject();
        writer.Key("file");
        writer.String(into);
        for (Imported const& line : report) {
            writer.Key(line.collection);
            writer.BeginObject();
            writer.Key("added");
            writer.Int(line.added);
            writer.Key("replaced");
            writer.Int(line.replaced);
            writer.Key("kept");
            writer.Int(line.kept);
            writer.EndObject();
        }
        writer.EndObject();
        return writer.Take();
    }
    void SayImported(Imported const& line, std::string const& into) {
        if (line.added + line.replaced + line.kept == 0) return;
        std::string text = line.collection + ": " + std::to_string(line.added) + " added";
        if (line.replaced) text += ", " + std::to_string(line.replaced) + " replaced";
        if (line.kept) text += ", " + std::to_string(line.kept) + " kept as they were";
        m_console.Say(text + " in " + Printable(into));
    }

    int Export() {
        Document const document = Opened(m_arguments.file);
        std::string const text = ExportJson(document);
        if (m_arguments.output.empty() || m_arguments.output == "-")
            m_console.Result(text);
        else
            WriteText(m_arguments.output, text);
        return exitFine;
    }

    int Tree() {
        Document const document = Opened(m_arguments.file);
        Selection const from = Resolve(document, m_arguments.path);
        if (from.what != Selection::What::Document && from.what != Selection::What::Collection &&
            from.what != Selection::What::Object)
            throw Error("no object stands there, and show prints what does", from.path, 0,
                        "the path of an object, of a collection or of the document");
        TreeNode const tree = BuildTree(document, from);
        m_console.Result(m_arguments.json ? TreeJson(tree) : TreeText(tree, m_arguments.paths));
        std::size_t const unnamed =
            document.Unnamed().objects.size() + document.Unnamed().unreadable.size();
        if (unnamed > 0 && from.what == Selection::What::Document)
            m_console.Say("no name leads to " + Counted(static_cast<long long>(unnamed), "object") +
                          " more, which the file keeps");
        return exitFine;
    }

    int Show() {
        Document const document = Opened(m_arguments.file);
        Selection const selection = Resolve(document, m_arguments.path);
        if (!m_arguments.output.empty()) return WriteSvg(selection);
        if (m_arguments.json) {
            m_console.Result(ShowJson(document, selection));
            return exitFine;
        }
        bool const seen = m_console.OutIsTerminal();
        std::string const fields = ShowText(document, selection, seen);
        if (m_arguments.plot) {
            // What was asked for and cannot be had is a failure, and half a result none.
            Picture const picture = PictureOrFail(selection);
            m_console.Result(fields + "\n" + PlotText(picture));
            return exitFine;
        }
        m_console.Result(fields);
        // A terminal shows everything, and most of that has no picture by its nature.
        if (seen && !m_arguments.noPlot && MayHavePicture(selection)) Plot(selection, fields);
        return exitFine;
    }
    static Picture PictureOrFail(Selection const& selection) {
        Picture picture = PictureOf(selection);
        if (!picture.none.empty())
            throw Error("there is no picture: " + picture.none, selection.path);
        return picture;
    }
    int WriteSvg(Selection const& selection) {
        std::string const& file = m_arguments.output;
        if (file != "-" && !EndsWith(file, ".svg"))
            throw Error("a picture cannot stand there", file, 0, "a name that ends in .svg");
        std::string const text = SvgText(PictureOrFail(selection));
        if (file == "-")
            m_console.Result(text);
        else
            WriteText(file, text);
        return exitFine;
    }
    void Plot(Selection const& selection, std::string const& above) {
        Picture const picture = PictureOf(selection);
        if (picture.none.empty())
            m_console.Result("\n" + PlotText(picture));
        else if (above.find(picture.none) == std::string::npos)
            m_console.Say("no picture: " + picture.none);
    }

    int Check() {
        Document const document = Opened(m_arguments.file);
        std::vector<Finding> const all =
            nga::Check(document, m_arguments.deep ? CheckDepth::All : CheckDepth::Asked);
        std::vector<Finding> findings, notes;
        for (Finding const& one : all) (one.note ? notes : findings).push_back(one);
        if (m_arguments.json) {
            m_console.Result(FindingsJson(document, findings, m_arguments.deep ? &notes : nullptr));
        } else {
            for (Finding const& finding : findings) ResultLine(finding);
            for (Finding const& note : notes) ResultLine(note);
            m_console.Say((findings.empty() ? "no findings" : Count(findings, "finding")) +
                          (notes.empty() ? "" : ", " + Count(notes, "note")));
        }
        return findings.empty() ? exitFine : exitFindings;
    }
    static std::string Count(std::vector<Finding> const& findings, char const* what) {
        return Counted(static_cast<long long>(findings.size()), what);
    }
    void ResultLine(Finding const& finding) {
        m_console.Result(std::string(finding.note ? "note: " : "") +
                         m_console.Strong(finding.path) + ": " +
                         m_console.Alarming(CodeText(finding)) + Printable(finding.message) + "\n");
    }
    static std::string FindingsJson(Document const& document, std::vector<Finding> const& findings,
                                    std::vector<Finding> const* notes) {
        JsonWriter writer;
        writer.BeginObject();
        writer.Key("path");
        writer.String(DocumentPath(document));
        AddFindings(writer, "findings", findings);
        if (notes) AddFindings(writer, "notes", *notes);
        writer.EndObject();
        return writer.Take();
    }
    /// "[#####               ]  25 %".
    static std::string Bar(double done) {
        constexpr int width = 20;
        int const marks = static_cast<int>(done * width);
        std::string const percent = std::to_string(static_cast<int>(done * 100));
        return "[" + std::string(static_cast<std::size_t>(marks), '#') +
               std::string(static_cast<std::size_t>(width - marks), ' ') + "] " +
               std::string(3 - percent.size(), ' ') + percent + " %";
    }

    int Upgrade() {
        if (!m_arguments.output.empty()) {
            RefuseTextName(m_arguments.output);
            RefuseExisting(m_arguments.output, "the name of a new file");
        }
        UpgradeFileOptions options;
        options.output = m_arguments.output;
        options.dryRun = m_arguments.dryRun;
        options.complete = !m_arguments.noComplete;
        bool shown = false;
        if (m_console.ShowsProgress())
            options.progress = [&](double done) {
                shown = true;
                m_console.Progress("upgrading " + Bar(done));
            };
        // Also where the upgrade fails: the line would stand before the failure.
        struct Shown {
            Console& console;
            bool const& shown;
            ~Shown() {
                if (shown) console.Progress("");
            }
        };
        UpgradeOutcome const outcome = [&] {
            Shown const ending{m_console, shown};
            return nga::Upgrade(m_arguments.file, options);
        }();
        m_console.Result(m_arguments.json ? UpgradeJson(outcome) : UpgradeText(outcome));
        if (!outcome.file.backup.empty())
            m_console.Say(std::string(outcome.dryRun ? "the old database would be "
                                                     : "the old database is ") +
                          Printable(outcome.file.backup));
        return outcome.HasFindings() ? exitFindings : exitFine;
    }

    int Diff() {
        Document const before = Opened(m_arguments.file);
        Document const after = Opened(m_arguments.other);
        Tolerance tolerance;
        if (!m_arguments.tolerance.empty()) tolerance.relative = m_arguments.tolerance[0];
        if (m_arguments.tolerance.size() > 1) tolerance.absolute = m_arguments.tolerance[1];
        DiffReport const report = ReportDiff(before, m_arguments.file, after, m_arguments.other,
                                             tolerance, m_arguments.json);
        m_console.Result(report.text);
        if (!m_arguments.json)
            m_console.Say(report.count == 0 ? "no differences"
                                            : Counted(report.count, "difference"));
        return report.count == 0 ? exitFine : exitFindings;
    }

    int Schema() {
        if (m_arguments.stubs) {
            Start();
            m_console.Result(StubText());
            return exitFine;
        }
        auto const classes =
            m_arguments.className.empty() ? SchemaClasses() : SchemaClasses(m_arguments.className);
        m_console.Result(m_arguments.markdown ? ReferencePage(classes)
                         : m_arguments.json   ? SchemaJson(classes)
                                              : SchemaText(classes));
        return exitFine;
    }

    int Journal() {
        std::string const text = ReadText(m_arguments.file);
        Document document =
            m_arguments.into.empty()
                ? InFile(m_arguments.file, [&] { return Document::New(NameFor(m_arguments.file)); })
                : Opened(m_arguments.into);
        nga::Journal journal;
        OnConflict const rule = ConflictRule(m_arguments.onConflict);
        if (m_arguments.script) {
            std::string const opening = ScriptOpening(document);
            History history(document.Model());
            InFile(m_arguments.file, [&] { ImportRecorded(document, history, text, rule); });
            m_console.Result(ScriptText(opening, history));
            return exitFine;
        }
        InFile(m_arguments.file, [&] { ImportJson(document, text, rule); });
        m_console.Result(m_arguments.json ? journal.Json() : journal.Text());
        return exitFine;
    }

    int Completion() {
        m_console.Result(CompletionScript(m_app, m_arguments.shell));
        return exitFine;
    }

    Console& m_console;
    CLI::App m_app{"Attribute definitions of analysis models: in, checked, stored, and out again.",
                   "nga"};
    Arguments m_arguments;
    Action m_chosen = nullptr;
};

}  // namespace

int RunTool(int argc, char const* const* argv) {
    Console console;
    try {
        return Tool(console).Run(argc, argv);
    } catch (nex_Exception const& failure) {
        console.Fail(Printable(failure.UserReport().View()));
    } catch (std::bad_alloc const&) {
        console.Fail("the memory does not suffice for this");
    } catch (std::exception const& failure) {
        console.Fail(Printable(failure.what()));
    }
    return exitFailure;
}

}  // namespace nga
