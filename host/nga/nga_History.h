#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "cow_ErasedHandle.h"
#include "cow_String.h"
#include "nga_Collection.h"

namespace nga {

/// A named object as it was: a share of it, so that keeping it copies nothing. Empty where there
/// was none of that name.
struct KeptEntry {
    Collection const* collection;
    cow_String key;
    std::optional<cow_ErasedHandle> state;
};

/// One named object before and after some steps.
struct EntryChange {
    Collection const* collection;
    cow_String key;
    std::optional<cow_ErasedHandle> before;
    std::optional<cow_ErasedHandle> after;
};

/// A named object that was given another name.
struct EntryRename {
    Collection const* collection;
    cow_String from;
    cow_String to;
};

/// What was done under one reason, or, without a reason, in a run of single steps.
struct EditRun {
    std::string why;
    std::vector<EntryChange> changes;
    /// In their order. Both names of each are among the changes.
    std::vector<EntryRename> renames;
};

/// The steps of a session on one model, which can be undone and done again. Whoever writes to a
/// named object says so first, within an edit; the object as it stood is kept by sharing, so a step
/// costs what the write makes of it. An edit that fails is rolled back. Steps are kept until
/// somebody has them forgotten: nothing else bounds them.
class History {
public:
    explicit History(ddr_Model& model) : m_model(model) {}
    History(History const&) = delete;
    History& operator=(History const&) = delete;

    /// A group of writes that is one step, or nothing if it is not closed. Edits nest: an inner one
    /// is a part of the outer step, but can be rolled back alone. The number knows the edit:
    /// whoever ends one ends that one. It cannot be closed while an inner one is open, and is rolled
    /// back together with those. An Error for an edit that is not open.
    std::size_t Open(std::string const& why = std::string());
    void Close(std::size_t edit);
    void RollBack(std::size_t edit);
    bool IsOpen() const { return !m_open.empty(); }
    bool IsOpen(std::size_t edit) const;

    /// Keeps the object of this name, or that there is none, as it is before the open edit.
    void Touch(Collection const& collection, cow_String const& key);
    /// Notes that what stood under a name stands under another one now. Both were touched by the
    /// open edit before.
    void Renamed(Collection const& collection, cow_String const& from, cow_String const& to);

    /// Lets go of all steps, those to redo too, and with them of what only they still hold. Not
    /// while an edit is open.
    void Forget();

    /// False where there is nothing to undo. Not while an edit is open.
    bool Undo();
    bool Redo();
    std::size_t UndoCount() const { return m_done.size(); }
    std::size_t RedoCount() const { return m_undone.size(); }
    /// Why the next step to undo was done; empty where nobody said.
    std::string NextUndo() const { return m_done.empty() ? std::string() : m_done.back().why; }
    std::string NextRedo() const { return m_undone.empty() ? std::string() : m_undone.back().why; }

    /// All that was done and not undone, oldest first: a run for each edit with a reason, and for
    /// each run of others, with every object as it was before and behind that run.
    std::vector<EditRun> Runs() const;

private:
    struct Step {
        std::size_t number = 0;
        std::string why;
        std::vector<KeptEntry> kept;
        std::vector<EntryRename> renames;
        /// The names in kept, once there are too many to look through.
        std::unique_ptr<std::unordered_set<std::string>> names;
    };

    static std::string NameOf(Collection const& collection, cow_String const& key);
    static bool Has(Step& step, Collection const& collection, cow_String const& key);
    /// Refuses an edit that is not open.
    void Require(std::size_t edit) const;
    void RollBackInnermost();
    /// Brings a step's objects back, and keeps them as they were instead.
    void Exchange(Step& step);

    ddr_Model& m_model;
    std::size_t m_opened = 0;
    std::vector<Step> m_open;
    std::vector<Step> m_done;
    std::vector<Step> m_undone;
};

/// An edit that is rolled back unless it is closed.
class HistoryEdit {
public:
    explicit HistoryEdit(History& history) : m_history(history), m_edit(history.Open()) {}
    ~HistoryEdit() {
        if (!m_isOpen) return;
        try {
            m_history.RollBack(m_edit);
        } catch (...) {
            // Only for want of memory; the failure that brought us here goes on.
        }
    }
    HistoryEdit(HistoryEdit const&) = delete;
    HistoryEdit& operator=(HistoryEdit const&) = delete;
    void Close() {
        m_isOpen = false;
        m_history.Close(m_edit);
    }

private:
    History& m_history;
    std::size_t m_edit;
    bool m_isOpen = true;
};

}  // namespace nga
