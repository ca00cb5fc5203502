#pragma once

#include "nga_PyFailure.h"

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <vector>

#include "mdl_Interruption.h"
#include "nga_Diff.h"
#include "nga_Document.h"
#include "nga_History.h"
#include "omu_PrimTuple.h"

namespace nga::python {

struct Object;

/// A change record: the tuple that was sent, taken apart, since millions of them may be kept. The
/// text is one of the few that repositories send, or empty for a tuple that is none of theirs and
/// is kept whole.
struct ChangeRecord {
    char const* what = nullptr;
    cow_String key;
    int mark = 0;
    bool hasMark = false;
    std::shared_ptr<omu_PrimTuple const> whole;
};

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
    std::deque<ChangeRecord> records;
    /// How a script comes to the document as it was before the first step; empty where there is no
    /// way but the content itself, which StartText() gives.
    std::string opening;
    /// The file that this opens, if it opens one, and the state that it was in.
    std::string opened;
    FileStamp openedStamp;
    /// The same, empty also where somebody changed the file since.
    std::string Opening() const {
        return opened.empty() || FileStamp::Of(opened) == openedStamp ? opening : std::string();
    }
    /// To be called when the document was saved: that file may not be what it was any more.
    void NoteSaved();
    /// The text of the content as it was before the first step.
    std::string StartText();
    /// Goes up with every write: what a handle knows of addresses is good for one value.
    std::uint64_t stamp = 1;
    /// The handles of named objects, so that one object has one handle. None is owned.
    std::map<std::pair<Collection const*, std::string>, Object*> roots;

    /// A call walks through the document, and asks Python between two objects whether to end.
    bool isAtWork = false;

    /// Refuses a call from another thread, and from within a call that walks through the document.
    void Enter() {
        if (!IsHere()) RefuseThread();
        if (isAtWork) RefuseAtWork();
        if (!m_dropped.empty()) RollBackDropped();
    }
    bool IsHere() const { return PyThread_get_thread_ident() == m_thread; }
    /// Has an edit taken back that nobody can end any more. Objects of Python's end at any time, in
    /// any thread and in the midst of a reading, so this waits for the next call from our own.
    void Drop(std::size_t edit) { m_dropped.push_back(edit); }

private:
    [[noreturn]] void RefuseThread() const;
    [[noreturn]] void RefuseAtWork() const;
    void RollBackDropped();

    std::vector<std::size_t> m_dropped;
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

/// While it lives, calls that walk over many objects end with what a signal's handler raises, such
/// as KeyboardInterrupt. Handlers are Python code that runs in the midst of the walk, so the
/// document that is walked refuses them.
class Interruptible {
public:
    explicit Interruptible(Session* session = nullptr);
    ~Interruptible();
    Interruptible(Interruptible const&) = delete;
    Interruptible& operator=(Interruptible const&) = delete;

private:
    Session* m_session;
    mdl_Interruption::Question m_former;
};

/// One write to a document: an edit that is recorded, and that is rolled back unless closed.
class Writing {
public:
    explicit Writing(Session& session)
        : m_session(session), m_recording(session), m_edit(session.history) {
        // Before the write, so that what is found on the way to it stays known.
        ++session.stamp;
    }
    ~Writing() {
        if (!m_isClosed) ++m_session.stamp;
    }
    void Touch(Collection const& collection, cow_String const& key) {
        m_session.history.Touch(collection, key);
    }
    void Close() {
        m_edit.Close();
        m_isClosed = true;
    }

private:
    Session& m_session;
    Recording m_recording;
    HistoryEdit m_edit;
    bool m_isClosed = false;
};

}  // namespace nga::python
