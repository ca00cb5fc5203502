#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nga {

struct JsonMember;

/// One value of a JSON text, with the line that it stands on.
struct JsonNode {
    enum class Kind : unsigned char { Null, Bool, Integer, Real, String, Array, Object };

    Kind kind = Kind::Null;
    bool boolean = false;
    int line = 0;
    /// Numbers have both: of an integer beyond 64 bits, the nearest that there is.
    long long integer = 0;
    double real = 0;
    std::string text;
    std::vector<JsonNode> elements;
    std::vector<JsonMember> members;

    /// The member of an object, null where there is none.
    JsonNode const* Find(std::string_view key) const;
    bool IsNumber() const { return kind == Kind::Integer || kind == Kind::Real; }
    /// "a string", for messages.
    char const* KindText() const;
};

struct JsonMember {
    std::string key;
    JsonNode value;
};

/// Where in a text something stands, in the words of paths: members by name, the entries of
/// collections and maps by key. Lives on the stack beside the value that it names, and is spelled
/// out only for an error.
class JsonPlace {
public:
    JsonPlace() = default;
    JsonPlace(JsonPlace const& parent, std::string_view key) : m_parent(&parent), m_key(key) {}
    JsonPlace(JsonPlace const& parent, std::size_t index)
        : m_parent(&parent), m_index(static_cast<int>(index)) {}
    /// The entry of a collection or map.
    static JsonPlace Entry(JsonPlace const& parent, std::string_view key) {
        JsonPlace place(parent, key);
        place.m_isEntry = true;
        return place;
    }

    std::string Text() const;
    /// Adds one step to the text of a place.
    static void AddKey(std::string& text, std::string_view key);
    static void AddEntry(std::string& text, std::string_view key);
    static void AddIndex(std::string& text, int index);

private:
    JsonPlace const* m_parent = nullptr;
    std::string_view m_key;
    int m_index = -1;
    bool m_isEntry = false;
};

/// Reads a whole text. Raises an Error with line and place for a text that is no JSON, and for a
/// duplicate key, a real number out of range, a nesting deeper than jsonMaxDepth and a text that is
/// no UTF-8. The escape of bytes in texts and keys is undone. Places take the text for a document:
/// the second level's members are the entries of collections.
JsonNode ParseJson(std::string_view text);

}  // namespace nga
