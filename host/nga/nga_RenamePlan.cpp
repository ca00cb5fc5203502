#include "nga_RenamePlan.h"

#include <map>
#include <set>

namespace nga {

namespace {

using Name = std::pair<Collection const*, std::string>;
constexpr std::size_t nothing = static_cast<std::size_t>(-1);

class Planner {
public:
    explicit Planner(EditRun const& run) : m_changes(run.changes) {
        std::map<Name, std::size_t> places;
        for (std::size_t i = 0; i < m_changes.size(); ++i) {
            places.emplace(Name(m_changes[i].collection, m_changes[i].key.View()), i);
            m_source.push_back(m_changes[i].before ? i : nothing);
            m_isTaken.push_back(m_changes[i].before.has_value());
        }
        for (EntryRename const& rename : run.renames) {
            auto const from = places.find(Name(rename.collection, rename.from.View()));
            auto const to = places.find(Name(rename.collection, rename.to.View()));
            if (from == places.end() || to == places.end()) continue;
            m_source[to->second] = m_source[from->second];
            m_source[from->second] = nothing;
        }
        m_goal.assign(m_changes.size(), nothing);
        for (std::size_t i = 0; i < m_changes.size(); ++i) {
            if (m_source[i] != nothing && !IsStillThere(i)) m_source[i] = nothing;
            if (m_source[i] != nothing) m_goal[m_source[i]] = i;
        }
    }

    RenamePlan Plan() {
        for (std::size_t i = 0; i < m_changes.size(); ++i)
            if (IsMoving(i) && m_isTaken[i] && m_goal[i] == nothing) MakeRoom(i);
        for (std::size_t i = 0; i < m_changes.size(); ++i)
            if (IsMoving(i) && !m_isTaken[i]) FillFrom(i);
        for (std::size_t i = 0; i < m_changes.size(); ++i)
            if (IsMoving(i) && !m_isFilled.count(i)) Turn(i);
        for (std::size_t i = 0; i < m_changes.size(); ++i) {
            EntryChange change{m_changes[i].collection, m_changes[i].key, std::nullopt,
                               std::nullopt};
            bool const isGone = m_goal[i] != nothing && m_goal[i] != i;
            std::size_t const before = IsMoving(i) ? m_source[i] : isGone ? nothing : i;
            if (before != nothing && m_changes[before].before)
                change.before.emplace(*m_changes[before].before);
            if (m_changes[i].after) change.after.emplace(*m_changes[i].after);
            m_plan.left.push_back(change);
        }
        return std::move(m_plan);
    }

private:
    /// Whether what came to stand there by renames does so behind the run: it was not replaced by
    /// something of another class since.
    bool IsStillThere(std::size_t i) const {
        EntryChange const& now = m_changes[i];
        return now.after &&
               now.collection->DynTypeIdOf(now.after->ErasedReferent()) ==
                   now.collection->DynTypeIdOf(m_changes[m_source[i]].before->ErasedReferent());
    }
    bool IsMoving(std::size_t i) const { return m_source[i] != nothing && m_source[i] != i; }

    void Step(std::size_t from, cow_String const& to) {
        m_plan.steps.push_back({m_changes[from].collection, m_changes[from].key, to});
    }
    void MakeRoom(std::size_t i) {
        Step(i, cow_String());
        m_isTaken[i] = false;
    }
    /// Fills a free name, then the one that this makes free, and so on.
    void FillFrom(std::size_t i) {
        while (IsMoving(i) && m_isFilled.insert(i).second) {
            std::size_t const from = m_source[i];
            Step(from, m_changes[i].key);
            m_isTaken[i] = true;
            m_isTaken[from] = false;
            i = from;
        }
    }
    /// Objects that change places in a ring: one waits elsewhere meanwhile.
    void Turn(std::size_t i) {
        std::size_t const aside = FreeBeside(i);
        if (aside == nothing) {
            // Nobody could have renamed them like this; their contents are compared in place.
            for (std::size_t at = i; IsMoving(at);) {
                std::size_t const from = m_source[at];
                m_source[at] = at;
                m_goal[at] = at;
                at = from;
            }
            return;
        }
        std::size_t const last = m_goal[i];
        Step(i, m_changes[aside].key);
        m_isTaken[i] = false;
        m_isFilled.insert(last);
        FillFrom(i);
        Step(aside, m_changes[last].key);
        m_isTaken[last] = true;
    }
    std::size_t FreeBeside(std::size_t i) const {
        for (std::size_t at = 0; at < m_changes.size(); ++at)
            if (!m_isTaken[at] && m_changes[at].collection == m_changes[i].collection) return at;
        return nothing;
    }

    std::vector<EntryChange> const& m_changes;
    /// By the place of a change: where its object was before the run, and where that of before it
    /// is now.
    std::vector<std::size_t> m_source;
    std::vector<std::size_t> m_goal;
    std::vector<bool> m_isTaken;
    std::set<std::size_t> m_isFilled;
    RenamePlan m_plan;
};

}  // namespace

RenamePlan PlanRenames(EditRun const& run) {
    if (run.renames.empty()) return {{}, run.changes};
    return Planner(run).Plan();
}

void DropPassing(std::vector<EditRun>& runs) {
    std::set<Name> renamed;
    for (EditRun const& run : runs)
        for (EntryRename const& rename : run.renames) {
            renamed.emplace(rename.collection, rename.from.View());
            renamed.emplace(rename.collection, rename.to.View());
        }
    // The changes of each object since it was made, as long as it may still go.
    std::map<Name, std::vector<EntryChange*>> made;
    for (EditRun& run : runs)
        for (EntryChange& change : run.changes) {
            Name const name(change.collection, change.key.View());
            if (renamed.count(name) != 0) continue;
            std::vector<EntryChange*>& since = made[name];
            if (since.empty() && change.before) continue;
            since.push_back(&change);
            if (change.after) continue;
            for (EntryChange* passing : since) {
                passing->before.reset();
                passing->after.reset();
            }
            since.clear();
        }
}

}  // namespace nga
