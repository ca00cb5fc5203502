#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "cls_WriteVisitor.h"

/// Keeps what an object writes as lines, in order, the lines of a field's object indented.
class RecordingAgent final : public cls_WriteAgent {
public:
    /// What was written, and the identities that count as written before.
    struct Log {
        std::vector<std::string> lines;
        std::vector<cls_Uid> known;
    };

    explicit RecordingAgent(Log& log, int depth = 0) : m_log(log), m_depth(depth) {}

    void WriteNull(cls_FieldHandle const& field) override { Line(Field(field) + " null"); }
    void WriteString(cls_FieldHandle const& field, cow_String const& value) override {
        Line(Field(field) + " \"" + value.Text() + "\"");
    }
    void WriteLiteral(cls_FieldHandle const& field, char const*) override { Line(Field(field)); }
    void WriteDouble(cls_FieldHandle const& field, double const&) override { Line(Field(field)); }
    void WriteInt(cls_FieldHandle const& field, int const& value) override {
        Line(Field(field) + " " + std::to_string(value));
    }
    void WriteBool(cls_FieldHandle const& field, bool const&) override { Line(Field(field)); }
    cls_WriteListObj* OpenList(int) override { return nullptr; }
    cls_WriteMapInt2Obj* OpenMapInt() override { return nullptr; }
    cls_WriteMapString2Obj* OpenMapString() override { return nullptr; }
    void WriteList(cow_List<double> const&) override {}
    void WriteList(cow_List<int> const&) override {}
    void WriteMap(cow_Map<cow_String, float> const&) override {}
    void WriteArray(cow_2DArray<double> const&) override {}
    int StartWrite(unsigned typeId, cls_Uid const& uid) override {
        Line("start " + Hex(typeId));
        for (cls_Uid const& known : m_log.known)
            if (known == uid) return 0;
        return 1;
    }
    void CheckCollectionType(cls_CollectionType) override {}
    cls_WriteAgent* BaseAgent(unsigned typeId) override {
        Line("base " + Hex(typeId));
        return new RecordingAgent(m_log, m_depth + 1);
    }
    cls_WriteAgent* FieldAgent(cls_FieldHandle const& field,
                               cow_HandleBase const* handle) override {
        Line(Field(field) + (handle ? " behind a handle" : " by value"));
        return new RecordingAgent(m_log, m_depth + 1);
    }
    void End() noexcept override { delete this; }

private:
    static std::string Field(cls_FieldHandle const& field) {
        return std::string(field.Name().Text()) + "(" + std::to_string(field.Index()) + ")";
    }
    static std::string Hex(unsigned typeId) {
        char text[16];
        std::snprintf(text, sizeof text, "0x%x", typeId);
        return text;
    }
    void Line(std::string const& text) {
        m_log.lines.push_back(std::string(static_cast<std::size_t>(m_depth) * 2, ' ') + text);
    }

    Log& m_log;
    int m_depth;
};

template <class T>
std::vector<std::string> WrittenLines(T const& object, RecordingAgent::Log log = {}) {
    {
        cls_WriteVisitor visitor(new RecordingAgent(log));
        object.DBWrite(visitor);
    }
    return log.lines;
}
