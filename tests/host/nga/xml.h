#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nga_Names.h"

/// What is wrong with a text as XML, as far as a simple reader sees: tags that do not match, quotes
/// that do not end, ampersands that begin nothing, characters that XML lacks. Empty for none.
inline std::string XmlMistake(std::string_view text) {
    std::vector<std::string> open;
    bool root = false;
    while (!text.empty()) {
        int const length = nga::Utf8Length(text);
        unsigned char const c = static_cast<unsigned char>(text[0]);
        if (length == 0) return "no UTF-8";
        if (c < 0x20 && c != '\n') return "a control character";
        std::size_t taken = static_cast<std::size_t>(length);
        if (c == '&') {
            std::size_t const end = text.find(';');
            std::string const name(text.substr(0, end + 1));
            if (name != "&amp;" && name != "&lt;" && name != "&gt;" && name != "&quot;")
                return "an ampersand: " + name;
            taken = name.size();
        } else if (c == '<') {
            std::size_t end = 1;
            bool quoted = false;
            while (end < text.size() && (quoted || text[end] != '>')) {
                if (text[end] == '<') return "a tag in a tag";
                if (text[end] == '"') quoted = !quoted;
                ++end;
            }
            if (end == text.size()) return "a tag that does not end";
            std::string const tag(text.substr(1, end - 1));
            std::string const name = tag.substr(0, tag.find_first_of(" /", 1));
            taken = end + 1;
            if (tag[0] == '?') {
                if (root) return "a declaration behind the beginning";
            } else if (tag[0] == '/') {
                if (open.empty() || "/" + open.back() != tag) return "the end " + tag;
                open.pop_back();
            } else if (tag.back() != '/') {
                if (open.empty() && root) return "a second root";
                open.push_back(name);
                root = true;
            }
        } else if (c == '>') {
            return "a tag's end without its beginning";
        }
        text.remove_prefix(taken);
    }
    return open.empty() && root ? "" : "an element that does not end";
}
