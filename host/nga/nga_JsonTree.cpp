#include "nga_JsonTree.h"

#include <algorithm>
#include <climits>
#include <iterator>
#include <nlohmann/json.hpp>

#include "mdl_Interruption.h"
#include "nga_Error.h"
#include "nga_JsonWriter.h"
#include "nga_Names.h"

namespace nga {

JsonNode const* JsonNode::Find(std::string_view key) const {
    for (JsonMember const& member : members)
        if (member.key == key) return &member.value;
    return nullptr;
}

char const* JsonNode::KindText() const {
    switch (kind) {
        case Kind::Null:
            return "null";
        case Kind::Bool:
            return boolean ? "true" : "false";
        case Kind::Integer:
            return "an integer";
        case Kind::Real:
            return "a real number";
        case Kind::String:
            return "a string";
        case Kind::Array:
            return "an array";
        case Kind::Object:
            return "an object";
    }
    return "";
}

void JsonPlace::AddKey(std::string& text, std::string_view key) {
    bool const plain = !key.empty() && std::all_of(key.begin(), key.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_';
    });
    if (!plain) {
        AddEntry(text, key);
        return;
    }
    if (!text.empty()) text += '.';
    text += key;
}

void JsonPlace::AddEntry(std::string& text, std::string_view key) {
    text += "[" + Quoted(key) + "]";
}

void JsonPlace::AddIndex(std::string& text, int index) {
    text += '[' + std::to_string(index) + ']';
}

std::string JsonPlace::Text() const {
    if (!m_parent) return std::string();
    std::string text = m_parent->Text();
    if (m_index >= 0)
        AddIndex(text, m_index);
    else if (m_isEntry)
        AddEntry(text, m_key);
    else
        AddKey(text, m_key);
    return text;
}

namespace {

/// How far the parser has read. Events do not tell where they happen, but the parser takes its
/// letters one by one and at most one ahead.
struct Reading {
    char const* position;
};

/// The letters of the text for the parser, telling how far it is.
class Letters {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = char const*;
    using reference = char const&;

    Letters(char const* at, Reading* reading) : m_at(at), m_reading(reading) {}
    reference operator*() const { return *m_at; }
    Letters& operator++() {
        m_reading->position = ++m_at;
        return *this;
    }
    Letters operator++(int) {
        Letters const before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(Letters const& a, Letters const& b) { return a.m_at == b.m_at; }

private:
    char const* m_at;
    Reading* m_reading;
};

/// What is wrong with a text, in words for those who write texts.
struct Fault {
    std::string message;
    std::string expected;
};

// A mark in what the parser reports, and what that means. The first mark that is found tells.
struct FaultRow {
    char const* mark;
    char const* message;
    char const* expected;
};
// clang-format off
constexpr FaultRow faultRows[] = {
    {"ill-formed UTF-8",         "a byte belongs to no character",       "UTF-8"},
    {"invalid BOM",              "a byte belongs to no character",       "UTF-8"},
    {"U+D800",                   "half of a character is escaped",       "both halves, one after the other"},
    {"U+DC00",                   "half of a character is escaped",       "both halves, one after the other"},
    {"after backslash",          "an escape in a string is unknown",     "\\n, \\t, \\\", \\\\ or their like"},
    {"hex digits",               "an escape in a string is incomplete",  "four hexadecimal digits behind \\u"},
    {"control character",        "a control character stands bare in a string", "its escape"},
    {"missing closing quote",    "the text ends within a string",        "a closing \""},
    {"invalid number",           "a number is misspelt",                 "digits, then perhaps a fraction and an exponent"},
    {"invalid comment",          "a comment cannot stand here",          ""},
    {"unexpected end of input",  "the text ends too soon",               ""},
    {"object key",               "this is no key",                       "a key in double quotes"},
    {"object separator",         "the key has no ':' behind it",         "a ':'"},
    {"; expected end of input",  "something stands behind the end",      "one value alone"},
    {"invalid literal",          "this is no value",                     "a number, a \"text\", true, false, null, an object or an array"},
    {"; expected '}'",           "the object does not go on like this",  "a ',' or a '}'"},
    {"; expected ']'",           "the array does not go on like this",   "a ',' or a ']'"},
    {"parsing value",            "a value is missing",                   "a number, a \"text\", true, false, null, an object or an array"},
};
// clang-format on

Fault FaultOf(std::string_view reported) {
    for (FaultRow const& row : faultRows)
        if (reported.find(row.mark) != std::string_view::npos) return {row.message, row.expected};
    return {"it cannot be read here", ""};
}

class Builder final : public nlohmann::json_sax<nlohmann::json> {
public:
    Builder(char const* start, Reading const& reading) : m_counted(start), m_reading(reading) {}

    JsonNode root;

    bool null() override {
        Add(JsonNode::Kind::Null);
        return true;
    }
    bool boolean(bool value) override {
        Add(JsonNode::Kind::Bool).boolean = value;
        return true;
    }
    bool number_integer(number_integer_t value) override {
        // Only what has a minus comes here, so this zero is a negative one.
        return Number(JsonNode::Kind::Integer, value, value ? static_cast<double>(value) : -0.0);
    }
    bool number_unsigned(number_unsigned_t value) override {
        long long const nearest = value > static_cast<number_unsigned_t>(LLONG_MAX)
                                      ? LLONG_MAX
                                      : static_cast<long long>(value);
        return Number(JsonNode::Kind::Integer, nearest, static_cast<double>(value));
    }
    bool number_float(number_float_t value, string_t const& letters) override {
        // Digits alone are an integer, however many.
        if (letters.find_first_of(".eE") == std::string::npos)
            return Number(JsonNode::Kind::Integer, value < 0 ? LLONG_MIN : LLONG_MAX, value);
        // A number that is not zero must not become it.
        std::string const digits = letters.substr(0, letters.find_first_of("eE"));
        if (value == 0 && digits.find_first_of("123456789") != std::string::npos)
            throw Error("the number is out of range", Place(true), Line(true));
        return Number(JsonNode::Kind::Real, 0, value);
    }
    bool string(string_t& value) override {
        Add(JsonNode::Kind::String).text = JsonWriter::Unescaped(value);
        return true;
    }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return Open(JsonNode::Kind::Object); }
    bool start_array(std::size_t) override { return Open(JsonNode::Kind::Array); }
    bool end_object() override {
        RefuseDuplicates(*m_open.back());
        m_open.pop_back();
        return true;
    }
    bool end_array() override {
        m_open.pop_back();
        return true;
    }
    bool key(string_t& value) override {
        JsonMember& member = m_open.back()->members.emplace_back();
        member.key = JsonWriter::Unescaped(value);
        member.value.line = Line(false);
        return true;
    }
    bool parse_error(std::size_t, std::string const&,
                     nlohmann::json::exception const& failure) override {
        int const line = Line(false);
        if (failure.id == 406) throw Error("the number is out of range", Place(true), line);
        Fault const fault = FaultOf(failure.what());
        throw Error("the text is no JSON: " + fault.message, Place(true), line, fault.expected);
    }

private:
    /// The line of what was read last. A number's end is known only from the letter behind it.
    int Line(bool number) {
        char const* const end = m_reading.position - (number ? 1 : 0);
        for (; m_counted < end; ++m_counted)
            if (*m_counted == '\n') ++m_line;
        return m_line;
    }
    JsonNode& Add(JsonNode::Kind kind) {
        mdl_Interruption::Poll();
        JsonNode* node = &root;
        if (!m_open.empty()) {
            JsonNode& owner = *m_open.back();
            node = owner.kind == JsonNode::Kind::Object ? &owner.members.back().value
                                                        : &owner.elements.emplace_back();
        }
        node->kind = kind;
        node->line = Line(kind == JsonNode::Kind::Integer || kind == JsonNode::Kind::Real);
        return *node;
    }
    bool Number(JsonNode::Kind kind, long long integer, double real) {
        JsonNode& node = Add(kind);
        node.integer = integer;
        node.real = real;
        return true;
    }
    bool Open(JsonNode::Kind kind) {
        JsonNode& node = Add(kind);
        if (m_open.size() >= static_cast<std::size_t>(jsonMaxDepth))
            throw Error("the text nests too deep", Place(false), node.line,
                        "at most " + std::to_string(jsonMaxDepth) + " levels");
        // Pointers stay good: an owner's list grows only while none of its children is open.
        m_open.push_back(&node);
        return true;
    }
    void RefuseDuplicates(JsonNode const& object) {
        std::vector<JsonMember const*> sorted;
        sorted.reserve(object.members.size());
        for (JsonMember const& member : object.members) sorted.push_back(&member);
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](auto const* a, auto const* b) { return a->key < b->key; });
        for (std::size_t i = 1; i < sorted.size(); ++i) {
            if (sorted[i]->key != sorted[i - 1]->key) continue;
            m_open.pop_back();
            std::string place = Place(false);
            AddMember(place, m_open.size(), sorted[i]->key);
            throw Error(
                "the key stands twice, first in line " + std::to_string(sorted[i - 1]->value.line),
                place, sorted[i]->value.line, "each key once");
        }
    }
    /// Where the parser is. With \p ahead, it has not got so far as to add the value that it reads.
    /// Of a place that is very deep the first steps say enough.
    std::string Place(bool ahead) const {
        constexpr std::size_t mostSteps = 12;
        std::string place;
        for (std::size_t i = 0; i < m_open.size(); ++i) {
            JsonNode const* const open = m_open[i];
            if (i == mostSteps) return place + "...";
            if (open->kind == JsonNode::Kind::Array) {
                bool const next = ahead && open == m_open.back();
                JsonPlace::AddIndex(place,
                                    static_cast<int>(open->elements.size()) - (next ? 0 : 1));
            } else if (!open->members.empty()) {
                AddMember(place, i, open->members.back().key);
            }
        }
        return place;
    }
    static void AddMember(std::string& place, std::size_t depth, std::string_view key) {
        if (depth == 1)
            JsonPlace::AddEntry(place, key);
        else
            JsonPlace::AddKey(place, key);
    }

    std::vector<JsonNode*> m_open;
    char const* m_counted;
    Reading const& m_reading;
    int m_line = 1;
};

}  // namespace

JsonNode ParseJson(std::string_view text) {
    char const* const begin = text.data();
    Reading reading{begin};
    Builder builder(begin, reading);
    nlohmann::json::sax_parse(Letters(begin, &reading), Letters(begin + text.size(), &reading),
                              &builder);
    return std::move(builder.root);
}

}  // namespace nga
