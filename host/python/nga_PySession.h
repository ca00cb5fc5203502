#pragma once

#include "nga_PyFailure.h"

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "nga_Diff.h"
#include "nga_Document.h"
#include "nga_History.h"
#include "omu_PrimTuple.h"

namespace nga::python {

struct Object;

/// A document as scripts work on it: with its history, the change records it sent, and the handles
/// that scripts hold on its objects. It belongs to the thread that made it.
class Session {
public:
    explicit Session(Document document);
    Session(Session const&) = delete;
    Session& operator=(Session const&) = delete;

    Document document;
    History history;
    /// Everything that was sent while this document was written to.
    std::vector<omu_PrimTuple> records;
    /// How a script comes to the document as it was before the first step.
    std::string opening;
    /// Goes up with every write: what a handle knows of addresses is good for one value.
    std::uint64_t stamp = 1;
    /// The handles of named objects, so that one object has one handle. None is owned.
    std::map<std::pair<Collection const*, std::string>, Object*> roots;

    /// Refuses a call from another thread.
    void Enter() const {
        if (PyThread_get_thread_ident() != m_thread) RefuseThread();
    }

private:
    [[noreturn]] void RefuseThread() const;

    unsigned long m_thread = PyThread_get_thread_ident();
};

/// While it lives, change records of this thread go to this session.
class Recording {
public:
    explicit Recording(Session& session);
    ~Recording();
    Recording(Recording const&) = delete;
    Recording& operator=(Recording const&) = delete;

private:
    Session* m_former;
};

/// One write to a document: an edit that is recorded, and that is rolled back unless closed.
class Writing {
public:
    explicit Writing(Session& session)
        : m_session(session), m_recording(session), m_edit(session.history) {}
    ~Writing() { ++m_session.stamp; }
    void Touch(Collection const& collection, cow_String const& key) {
        m_session.history.Touch(collection, key);
    }
    void Close() { m_edit.Close(); }

private:
    Session& m_session;
    Recording m_recording;
    HistoryEdit m_edit;
};

}  // namespace nga::python
