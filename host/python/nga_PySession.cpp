#include "nga_PySession.h"

#include <filesystem>

#include "nga_Json.h"
#include "nga_Names.h"
#include "nga_Script.h"
#include "omu_ChangeHistory.h"
#include "omu_PrimValues.h"
#include "thr_ThreadSingleton.h"

namespace nga::python {

Session::Session(Document made)
    : document(std::move(made)), history(document.Model()), opening(ScriptOpening(document)) {}

void Session::RefuseThread() const {
    Fail(PyExc_RuntimeError,
         "the document " + Quoted(document.Name()) +
             " belongs to the thread that opened it, and cannot be used from another; open it "
             "there, or hand over its text (to_dict)");
}

void Session::RefuseAtWork() const {
    Fail(PyExc_RuntimeError, "the document " + Quoted(document.Name()) +
                                 " is in the midst of a call, and cannot be used by the handler of "
                                 "a signal");
}

void Session::NoteSaved() {
    std::error_code none;
    if (!opened.empty() && std::filesystem::equivalent(opened, document.File(), none))
        opening.clear();
}

std::string Session::StartText() {
    Document start = Document::New(document.Name());
    ddr_Model& model = start.Model();
    for (Collection const* collection : Collection::All())
        collection->Each(document.Model(), [&](cow_String const& key, void const*) {
            collection->Restore(model, key, collection->Hold(document.Model(), key));
        });
    std::vector<EditRun> const runs = history.Runs();
    for (std::size_t i = runs.size(); i-- > 0;)
        for (EntryChange const& change : runs[i].changes)
            change.collection->Restore(model, change.key, change.before);
    return ExportJson(start);
}

void Session::RollBackDropped() {
    Recording const recording(*this);
    ++stamp;
    for (std::size_t const edit : std::exchange(m_dropped, {}))
        if (history.IsOpen(edit)) history.RollBack(edit);
}

namespace {

thread_local Session* recorded = nullptr;

char const* KnownText(std::string_view text) {
    for (char const* known : {"Modify", "Insert", "Remove"})
        if (text == known) return known;
    return nullptr;
}

ChangeRecord RecordOf(omu_PrimTuple const& change) {
    ChangeRecord record;
    int const size = change.Size();
    if (size == 2 || size == 3) {
        auto const* what = dynamic_cast<omu_PrimString const*>(&change.Get(0));
        auto const* key = dynamic_cast<omu_PrimString const*>(&change.Get(1));
        auto const* mark = size == 3 ? dynamic_cast<omu_PrimInt const*>(&change.Get(2)) : nullptr;
        if (what && key && (size == 2 || mark)) record.what = KnownText(what->Value().View());
        if (record.what) {
            record.key = key->Value();
            record.hasMark = mark != nullptr;
            if (mark) record.mark = mark->Value();
            return record;
        }
    }
    record.whole = std::make_shared<omu_PrimTuple const>(change);
    return record;
}

/// One listener a thread is enough for all documents, and it is never taken away.
void Listen() {
    static thread_local bool const listening = [] {
        thr_ThreadSingleton<omu_ChangeHistory>::Instance().Listen([](omu_PrimTuple const& change) {
            if (recorded) recorded->records.push_back(RecordOf(change));
        });
        return true;
    }();
    static_cast<void>(listening);
}

}  // namespace

Interruptible::Interruptible(Session* session)
    : m_session(session), m_former(mdl_Interruption::Set([] {
          if (PyErr_CheckSignals() != 0) throw Failure();
      })) {
    if (m_session) m_session->isAtWork = true;
}
Interruptible::~Interruptible() {
    if (m_session) m_session->isAtWork = false;
    mdl_Interruption::Set(m_former);
}

Recording::Recording(Session& session) : m_former(recorded) {
    Listen();
    recorded = &session;
}
Recording::~Recording() { recorded = m_former; }

}  // namespace nga::python
