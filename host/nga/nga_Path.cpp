#include "nga_Path.h"

#include <charconv>

#include "cls_xp.h"
#include "kmaC_MaterialOptionShortcut.h"
#include "nga_Error.h"
#include "nga_Names.h"
#include "nga_TextForm.h"

namespace nga {

std::string DocumentPath(std::string const& name) { return "documents" + KeyStep(name); }
std::string DocumentPath(Document const& document) { return DocumentPath(document.Name()); }

std::string EntryPath(std::string const& documentPath, Collection const& collection,
                      std::string_view key) {
    return documentPath + "." + collection.Name() + KeyStep(key);
}

std::string KeyStep(std::string_view key) { return "[" + Quoted(key) + "]"; }
std::string IndexStep(int index) { return "[" + std::to_string(index) + "]"; }

namespace {

/// Whether scripts reach the member as .options['...'], as they do most of those of materials and
/// their options. Only what a key leads to has that form, else the path could not be typed back.
bool IsKeyed(mdl_Description const& owner, mdl_Field const& field) {
    return field.Type().Kind() == mdl_FieldKind::Option &&
           kmaC_IsOptionKey(owner.TypeId(), field.Script());
}

}  // namespace

std::string FieldStep(mdl_Description const& owner, mdl_Field const& field) {
    if (IsKeyed(owner, field)) return ".options" + KeyStep(field.Script());
    return std::string(".") + field.Script();
}

namespace {

/// One step as it is written: .name, ['key'] or [7].
struct Step {
    enum class Kind { Name, Key, Index } kind;
    std::string text;
    int index = 0;
    std::size_t begin = 0;
};

class Splitter {
public:
    explicit Splitter(std::string_view path) : m_path(path) {}

    std::vector<Step> All() {
        std::vector<Step> steps;
        while (m_at < m_path.size()) {
            // The first name may do without its dot.
            if (m_path[m_at] == '[')
                steps.push_back(Bracket());
            else if (m_path[m_at] == '.' || m_at == 0)
                steps.push_back(Name());
            else
                Fail("a '.' or a '['");
        }
        return steps;
    }

private:
    [[noreturn]] void Fail(std::string const& expected) const {
        throw Error("the path cannot be read at character " + std::to_string(m_at + 1),
                    std::string(m_path), 0, expected);
    }
    bool Is(char c) const { return m_at < m_path.size() && m_path[m_at] == c; }
    void Take(char c) {
        if (!Is(c)) Fail(std::string("a '") + c + "'");
        ++m_at;
    }
    Step Name() {
        std::size_t const begin = m_at;
        if (Is('.')) ++m_at;
        std::size_t const first = m_at;
        while (m_at < m_path.size() && m_path[m_at] != '.' && m_path[m_at] != '[') ++m_at;
        if (m_at == first) Fail("a name");
        return {Step::Kind::Name, std::string(m_path.substr(first, m_at - first)), 0, begin};
    }
    Step Bracket() {
        Step step{Step::Kind::Key, {}, 0, m_at};
        Take('[');
        if (Is('\'') || Is('"')) {
            step.text = Literal();
        } else {
            char const* const first = m_path.data() + m_at;
            char const* const end = m_path.data() + m_path.size();
            auto const [rest, failure] = std::from_chars(first, end, step.index);
            if (failure != std::errc() || rest == first) Fail("a number or a name in quotes");
            m_at += static_cast<std::size_t>(rest - first);
            step.kind = Step::Kind::Index;
        }
        Take(']');
        return step;
    }
    std::string Literal() {
        char const quote = m_path[m_at++];
        std::string text;
        while (!Is(quote)) {
            if (m_at >= m_path.size()) Fail(std::string("a closing ") + quote);
            char const c = m_path[m_at++];
            text += c == '\\' ? Escaped() : c;
        }
        ++m_at;
        return text;
    }
    char Escaped() {
        if (m_at >= m_path.size()) Fail("a character behind the backslash");
        char const c = m_path[m_at++];
        switch (c) {
            case 'n':
                return '\n';
            case 'r':
                return '\r';
            case 't':
                return '\t';
            case 'x': {
                unsigned code = 0;
                char const* const first = m_path.data() + m_at;
                if (m_path.size() - m_at < 2 ||
                    std::from_chars(first, first + 2, code, 16).ptr != first + 2)
                    Fail("two hexadecimal digits");
                m_at += 2;
                return static_cast<char>(code);
            }
            default:
                return c;
        }
    }

    std::string_view m_path;
    std::size_t m_at = 0;
};

class Resolver {
public:
    Resolver(Document const& document, std::string_view path)
        : m_document(document), m_path(path), m_steps(Splitter(path).All()) {}

    Selection Run() {
        m_now.path = DocumentPath(m_document);
        SkipDocument();
        while (m_next < m_steps.size()) {
            switch (m_now.what) {
                case Selection::What::Document:
                    FromDocument();
                    break;
                case Selection::What::Collection:
                    FromCollection();
                    break;
                case Selection::What::Object:
                    FromObject();
                    break;
                case Selection::What::Value:
                    FromValue();
                    break;
                case Selection::What::Row:
                    FromRow();
                    break;
                default:
                    Fail("nothing lies behind this value", "the end of the path");
            }
        }
        return m_now;
    }

private:
    [[noreturn]] void Fail(std::string const& message, std::string const& expected) const {
        throw Error(message, m_now.path, 0, expected);
    }
    [[noreturn]] void FailName(std::string const& what, std::string const& name,
                               std::vector<std::string> const& known) const {
        Fail("there is no " + what + " " + Quoted(name) + DidYouMean(name, known), std::string());
    }
    Step const& Current() const { return m_steps[m_next]; }
    Step const& Expect(Step::Kind kind, char const* expected) {
        Step const& step = Current();
        if (step.kind != kind)
            Fail("the step at character " + std::to_string(step.begin + 1) + " of '" +
                     std::string(m_path) + "' leads nowhere",
                 expected);
        ++m_next;
        return step;
    }

    void SkipDocument() {
        if (m_steps.empty() || m_steps[0].kind != Step::Kind::Name ||
            m_steps[0].text != "documents" || m_path[0] == '.')
            return;
        m_next = 1;
        if (m_steps.size() < 2)
            throw Error("the document's name is missing", std::string(m_path), 0,
                        DocumentPath(m_document));
        Step const& name = Expect(Step::Kind::Key, "a name in brackets");
        if (name.text != m_document.Name())
            throw Error("there is no document " + Quoted(name.text) + " here", std::string(m_path),
                        0, DocumentPath(m_document));
    }

    void FromDocument() {
        Step const& step = Expect(Step::Kind::Name, "a collection's name");
        m_now.collection = Collection::FindByName(step.text);
        if (!m_now.collection) {
            std::vector<std::string> known;
            for (Collection const* collection : Collection::All())
                known.emplace_back(collection->Name());
            FailName("collection", step.text, known);
        }
        m_now.what = Selection::What::Collection;
        m_now.path += std::string(".") + m_now.collection->Name();
    }

    void FromCollection() {
        Step const& step = Expect(Step::Kind::Key, "a name in brackets and quotes");
        cow_String const key{std::string_view(step.text)};
        m_now.object = m_now.collection->Find(m_document.Model(), key);
        if (!m_now.object) {
            std::vector<std::string> known;
            m_now.collection->Each(m_document.Model(), [&](cow_String const& name, void const*) {
                known.emplace_back(name.View());
            });
            FailName("entry", step.text, known);
        }
        m_now.description = mdl_Description::Find(m_now.collection->DynTypeIdOf(m_now.object));
        if (!m_now.description) Fail("the object is of a class without a description", "");
        m_now.key = step.text;
        m_now.what = Selection::What::Object;
        m_now.path += KeyStep(step.text);
        m_now.entry = m_now.path;
    }

    void FromObject() {
        // What stands in for its rows goes on as they do.
        if (IsTable(*m_now.description) && Current().kind == Step::Kind::Index) {
            m_now.field = &CellsOf(*m_now.description);
            m_now.at = m_now.field->At(m_now.object);
            m_now.what = Selection::What::Value;
            return;
        }
        Step const& step = Expect(Step::Kind::Name, "an attribute's name");
        mdl_Description const& owner = *m_now.description;
        if (step.text == "options" && !owner.FindScript("options")) {
            Option(owner);
            return;
        }
        mdl_Field const* field = owner.FindScript(step.text.c_str());
        if (!field) FailName("attribute", step.text, ScriptNames(owner));
        To(owner, *field);
    }

    void Option(mdl_Description const& owner) {
        if (m_next >= m_steps.size())
            throw Error("the key of the option is missing", m_now.path + ".options", 0,
                        "a name in brackets and quotes");
        Step const& step = Expect(Step::Kind::Key, "a name in brackets and quotes");
        std::vector<std::string> known;
        for (mdl_Field const* field : owner.AllFields()) {
            if (!IsKeyed(owner, *field)) continue;
            if (step.text == field->Script()) {
                To(owner, *field);
                if (m_now.what != Selection::What::Object) Fail("the option is not set", "");
                return;
            }
            known.emplace_back(field->Script());
        }
        FailName("option", step.text, known);
    }

    void To(mdl_Description const& owner, mdl_Field const& field) {
        m_now.path += FieldStep(owner, field);
        m_now.owner = &owner;
        m_now.field = &field;
        m_now.at = field.At(m_now.object);
        m_now.what = Selection::What::Value;
        if (field.Type().Kind() == mdl_FieldKind::Object ||
            field.Type().Kind() == mdl_FieldKind::Option)
            Enter(0);
    }

    /// Goes on to the object in a place of the current field, if there is one.
    void Enter(int index) {
        mdl_FieldType const& type = m_now.field->Type();
        void const* const object = type.ConstObject(m_now.at, index);
        if (!object) return;
        m_now.object = object;
        m_now.description = mdl_Description::Find(type.DynTypeIdOf(object));
        if (!m_now.description) Fail("the object is of a class without a description", "");
        m_now.what = Selection::What::Object;
    }

    int Index(int count, char const* what) {
        Step const& step = Expect(Step::Kind::Index, "a number in brackets");
        if (step.index < 0 || step.index >= count)
            Fail(std::string("there is no ") + what + " " + std::to_string(step.index),
                 count == 0 ? "nothing, as it is empty"
                            : "a number from 0 to " + std::to_string(count - 1));
        return step.index;
    }

    void FromValue() {
        switch (m_now.field->Type().Kind()) {
            case mdl_FieldKind::OptionList:
            case mdl_FieldKind::ObjectList: {
                int const index = Index(m_now.field->Type().Count(m_now.at), "element");
                m_now.path += IndexStep(index);
                Enter(index);
                if (m_now.what != Selection::What::Object) Fail("the place is empty", "");
                return;
            }
            case mdl_FieldKind::IntList:
                Element(static_cast<cls_xp1DArrayListInt const*>(m_now.at)->Size());
                return;
            case mdl_FieldKind::DoubleList:
                Element(static_cast<cls_xp1DArrayListDouble const*>(m_now.at)->Size());
                return;
            case mdl_FieldKind::FloatMap:
                Factor();
                return;
            case mdl_FieldKind::Array:
                m_now.row = Index(Cells().Rows(), "row");
                m_now.what = Selection::What::Row;
                m_now.path += IndexStep(m_now.row);
                return;
            case mdl_FieldKind::Option:
                Fail("the option is not set", "");
            default:
                Fail("nothing lies behind this value", "the end of the path");
        }
    }
    void Element(int count) {
        m_now.row = Index(count, "element");
        m_now.what = Selection::What::Element;
        m_now.path += IndexStep(m_now.row);
    }
    void Factor() {
        Step const& step = Expect(Step::Kind::Key, "a name in brackets and quotes");
        auto const& factors = *static_cast<cls_xpMapString2Float const*>(m_now.at);
        if (!factors.ConstFind(cow_String(std::string_view(step.text)))) {
            std::vector<std::string> known;
            cow_ConstMapIterator<cow_String, float> position(factors);
            for (position.First(); !position.IsDone(); position.Next())
                known.emplace_back(position.CurrentKey().View());
            FailName("entry", step.text, known);
        }
        m_now.key = step.text;
        m_now.what = Selection::What::Factor;
        m_now.path += KeyStep(step.text);
    }
    void FromRow() {
        m_now.column = Index(Cells().Columns(), "column");
        m_now.what = Selection::What::Cell;
        m_now.path += IndexStep(m_now.column);
    }
    cow_2DArrayRep<double> const& Cells() const {
        return static_cast<cls_xp2DArrayDouble const*>(m_now.at)->ConstGet();
    }

    Document const& m_document;
    std::string_view m_path;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    Selection m_now;
};

}  // namespace

Selection Resolve(Document const& document, std::string_view path) {
    return Resolver(document, path).Run();
}

}  // namespace nga
