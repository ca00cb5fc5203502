#include "nga_Journal.h"

#include "nga_JsonWriter.h"
#include "nga_Names.h"
#include "omu_ChangeHistory.h"
#include "omu_PrimEnumBase.h"
#include "omu_PrimValues.h"
#include "thr_ThreadSingleton.h"

namespace nga {

namespace {

class JsonOfPrimitive final : public omu_PrimVisitor {
public:
    explicit JsonOfPrimitive(JsonWriter& writer) : m_writer(writer) {}

    void Visit(omu_PrimEnumBase const& value) override { m_writer.String(value.GetString()); }
    void Visit(omu_PrimInt const& value) override { m_writer.Int(value.Value()); }
    void Visit(omu_PrimDouble const& value) override { m_writer.Double(value.Value()); }
    void Visit(omu_PrimString const& value) override { m_writer.String(value.Value().View()); }
    void Visit(omu_PrimTuple const& value) override {
        m_writer.BeginArray(true);
        for (int i = 0; i < value.Size(); ++i) value.Get(i).Accept(this);
        m_writer.EndArray();
    }

private:
    JsonWriter& m_writer;
};

}  // namespace

Journal::Journal()
    : m_listener(thr_ThreadSingleton<omu_ChangeHistory>::Instance().Listen(
          [this](omu_PrimTuple const& change) { m_records.push_back(change); })) {}

Journal::~Journal() {
    thr_ThreadSingleton<omu_ChangeHistory>::Instance().StopListening(m_listener);
}

std::string Journal::Text() const {
    std::string text;
    for (omu_PrimTuple const& record : m_records) text += Printable(record.AsRepr().View()) + "\n";
    return text;
}

std::string Journal::Json() const {
    JsonWriter writer;
    JsonOfPrimitive visitor(writer);
    writer.BeginArray();
    for (omu_PrimTuple const& record : m_records) record.Accept(&visitor);
    writer.EndArray();
    return writer.Take();
}

}  // namespace nga
