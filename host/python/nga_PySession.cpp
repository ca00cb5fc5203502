#include "nga_PySession.h"

#include "nga_Names.h"
#include "nga_Script.h"
#include "omu_ChangeHistory.h"
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

namespace {

thread_local Session* recorded = nullptr;

/// One listener a thread is enough for all documents, and it is never taken away.
void Listen() {
    static thread_local bool const listening = [] {
        thr_ThreadSingleton<omu_ChangeHistory>::Instance().Listen([](omu_PrimTuple const& change) {
            if (recorded) recorded->records.push_back(change);
        });
        return true;
    }();
    static_cast<void>(listening);
}

}  // namespace

Recording::Recording(Session& session) : m_former(recorded) {
    Listen();
    recorded = &session;
}
Recording::~Recording() { recorded = m_former; }

}  // namespace nga::python
