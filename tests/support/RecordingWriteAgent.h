#pragma once

#include <cstdio>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "cls_WriteVisitor.h"

namespace nga_test {

/// What objects do to a write agent, one line a call, indented by depth. It knows what was written
/// already as a store does, by level and identity, and counts its agents and writers, so that a
/// test sees one that is not given back.
class WriteLog {
public:
    /// The agent of the outermost object.
    cls_WriteAgent* Agent();
    /// Writes an object and gives the lines since the last call.
    template <class T>
    std::string Write(T const& object) {
        lines.clear();
        {
            cls_WriteVisitor visitor(Agent());
            object.DBWrite(visitor);
        }
        return lines;
    }

    void Line(std::string const& line) {
        lines += std::string(static_cast<std::size_t>(2 * depth), ' ') + line + '\n';
    }

    std::string lines;
    int depth = 0;
    int liveAgents = 0;
    int liveWriters = 0;
    /// What the collection writers answer to MustDelete().
    bool callerDeletes = true;
    std::set<std::pair<unsigned, cls_Uid>> written;
    /// The identities in the order of StartWrite.
    std::vector<std::pair<unsigned, cls_Uid>> started;
    /// The handles given for fields, in order; null for those held by value.
    std::vector<cow_HandleBase const*> handles;
    /// Writers that the caller is not to delete.
    std::vector<cls_WriteListObj*> keptLists;
};

inline std::string Hex(unsigned number) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%X", number);
    return text;
}
inline std::string Number(double number) {
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", number);
    return text;
}
inline std::string NameOf(cls_FieldHandle const& field) {
    return std::to_string(field.Index()) + ":" + field.Name().Text();
}

class RecordingWriteAgent final : public cls_WriteAgent {
public:
    explicit RecordingWriteAgent(WriteLog& log) : m_log(log) { ++log.liveAgents; }

    void WriteNull(cls_FieldHandle const& field) override { m_log.Line("null " + NameOf(field)); }
    void WriteString(cls_FieldHandle const& field, cow_String const& value) override {
        m_log.Line("text " + NameOf(field) + "=" + value.Text());
    }
    void WriteDouble(cls_FieldHandle const& field, double const& value) override {
        m_log.Line("double " + NameOf(field) + "=" + Number(value));
    }
    void WriteInt(cls_FieldHandle const& field, int const& value) override {
        m_log.Line("int " + NameOf(field) + "=" + std::to_string(value));
    }
    void WriteBool(cls_FieldHandle const& field, bool const& value) override {
        m_log.Line("bool " + NameOf(field) + "=" + (value ? "true" : "false"));
    }

    cls_WriteListObj* OpenList(int one) override;
    cls_WriteMapInt2Obj* OpenMapInt() override;
    cls_WriteMapString2Obj* OpenMapString() override;

    void WriteList(cow_List<double> const& values) override {
        std::string line = "doubles";
        for (int i = 0; i < values.Size(); ++i) line += " " + Number(values.ConstGet(i));
        m_log.Line(line);
    }
    void WriteList(cow_List<int> const& values) override {
        std::string line = "ints";
        for (int i = 0; i < values.Size(); ++i) line += " " + std::to_string(values.ConstGet(i));
        m_log.Line(line);
    }
    void WriteMap(cow_Map<cow_String, float> const& values) override {
        std::string line = "floats";
        cow_ConstMapIterator<cow_String, float> at(values);
        for (at.First(); !at.IsDone(); at.Next())
            line += std::string(" ") + at.CurrentKey().Text() + "=" +
                    Number(static_cast<double>(at.CurrentValue()));
        m_log.Line(line);
    }
    void WriteArray(cow_2DArray<double> const& values) override {
        std::string line =
            "array " + std::to_string(values.Rows()) + "x" + std::to_string(values.Columns());
        for (int i = 0; i < values.Size(); ++i) line += " " + Number(values.Data()[i]);
        m_log.Line(line);
    }

    int StartWrite(unsigned typeId, cls_Uid const& uid) override {
        m_log.started.emplace_back(typeId, uid);
        bool const fresh = m_log.written.insert({typeId, uid}).second;
        m_log.Line("start " + Hex(typeId) + (fresh ? "" : " again"));
        return fresh ? 1 : 0;
    }
    void CheckCollectionType(cls_CollectionType collection) override {
        m_log.Line("check " + std::to_string(collection));
    }
    cls_WriteAgent* BaseAgent(unsigned typeId) override {
        return Nested(m_log, "base " + Hex(typeId));
    }
    cls_WriteAgent* FieldAgent(cls_FieldHandle const& field,
                               cow_HandleBase const* handle) override {
        m_log.handles.push_back(handle);
        return Nested(m_log, "field " + NameOf(field) + (handle ? " with handle" : ""));
    }
    /// An agent for what lies inside, indented until it ends.
    static cls_WriteAgent* Nested(WriteLog& log, std::string const& what) {
        log.Line(what + " {");
        auto* const agent = new RecordingWriteAgent(log);
        agent->m_nested = true;
        ++log.depth;
        return agent;
    }
    void End() noexcept override {
        if (m_nested) {
            --m_log.depth;
            m_log.Line("}");
        }
        --m_log.liveAgents;
        delete this;
    }

private:
    WriteLog& m_log;
    bool m_nested = false;
};

inline cls_WriteAgent* WriteLog::Agent() { return new RecordingWriteAgent(*this); }

/// The writer of any kind of collection: Key is nothing for a list.
template <class Base, class... Key>
class RecordingWriter final : public Base {
public:
    explicit RecordingWriter(WriteLog& log) : m_log(log) { ++log.liveWriters; }
    ~RecordingWriter() override {
        --m_log.liveWriters;
        m_log.Line("writer deleted");
    }
    bool MustDelete() const override {
        m_log.Line("must delete");
        return m_log.callerDeletes;
    }
    void WriteNull(unsigned typeId, Key... key) override {
        m_log.Line("null element" + Text(key...) + " " + Hex(typeId));
    }
    cls_WriteAgent* ElementAgent(Key... key) override {
        return RecordingWriteAgent::Nested(m_log, "element" + Text(key...));
    }

private:
    static std::string Text() { return {}; }
    static std::string Text(cow_String const& key) { return std::string(" ") + key.Text(); }
    static std::string Text(int key) { return " " + std::to_string(key); }

    WriteLog& m_log;
};

inline cls_WriteListObj* RecordingWriteAgent::OpenList(int one) {
    m_log.Line("list " + std::to_string(one));
    auto* const writer = new RecordingWriter<cls_WriteListObj>(m_log);
    if (!m_log.callerDeletes) m_log.keptLists.push_back(writer);
    return writer;
}
inline cls_WriteMapInt2Obj* RecordingWriteAgent::OpenMapInt() {
    m_log.Line("map of numbers");
    return new RecordingWriter<cls_WriteMapInt2Obj, int>(m_log);
}
inline cls_WriteMapString2Obj* RecordingWriteAgent::OpenMapString() {
    m_log.Line("map of names");
    return new RecordingWriter<cls_WriteMapString2Obj, cow_String const&>(m_log);
}

}  // namespace nga_test
