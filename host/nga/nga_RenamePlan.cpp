#include "nga_RenamePlan.h"

#include <map>
#include <set>

#include "nga_Names.h"

namespace nga {

namespace {

using Name = std::pair<Collection const*, std::string>;
constexpr std::size_t nothing = static_cast<std::size_t>(-1);

/// What renames made of the objects of a run. By the place of a change: where the object that is
/// there behind the run was before it, and where the one that was there before is behind it.
struct Moves {
    explicit Moves(EditRun const& run) : changes(run.changes) {
        std::map<Name, std::size_t> places;
        for (std::size_t i = 0; i < changes.size(); ++i) {
            places.emplace(Name(changes[i].collection, changes[i].key.View()), i);
            source.push_back(changes[i].before ? i : nothing);
        }
        isTarget.assign(changes.size(), false);
        for (EntryRename const& rename : run.renames) {
            auto const from = places.find(Name(rename.collection, rename.from.View()));
            auto const to = places.find(Name(rename.collection, rename.to.View()));
            if (from == places.end() || to == places.end()) continue;
            isTarget[to->second] = true;
            source[to->second] = source[from->second];
            source[from->second] = nothing;
        }
        goal.assign(changes.size(), nothing);
        for (std::size_t i = 0; i < changes.size(); ++i) {
            if (source[i] != nothing && !IsStillThere(i)) source[i] = nothing;
            if (source[i] != nothing) goal[source[i]] = i;
        }
    }
    /// Whether what came to stand there does so behind the run: it was not replaced by something of
    /// another class since.
    bool IsStillThere(std::size_t i) const {
        EntryChange const& now = changes[i];
        return now.after &&
               now.collection->DynTypeIdOf(now.after->ErasedReferent()) ==
                   now.collection->DynTypeIdOf(changes[source[i]].before->ErasedReferent());
    }

    std::vector<EntryChange> const& changes;
    std::vector<std::size_t> source;
    std::vector<std::size_t> goal;
    /// Whether a rename of the run led there.
    std::vector<bool> isTarget;
};

class Planner {
public:
    explicit Planner(EditRun const& run)
        : m_moves(run), m_changes(run.changes), m_source(m_moves.source), m_goal(m_moves.goal) {
        for (EntryChange const& change : m_changes) m_isTaken.push_back(change.before.has_value());
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
            // Their contents are compared in place.
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
    /// A free name that the run gave to an object, or at least one that can be given: files may
    /// have brought in others.
    std::size_t FreeBeside(std::size_t i) const {
        std::size_t found = nothing;
        for (std::size_t at = 0; at < m_changes.size(); ++at) {
            EntryChange const& change = m_changes[at];
            if (m_isTaken[at] || change.collection != m_changes[i].collection) continue;
            if (m_moves.isTarget[at]) return at;
            if (found == nothing && IsUsableName(change.key.View()) &&
                change.collection->CodeOfName(change.key.View()) < 0)
                found = at;
        }
        return found;
    }

    Moves m_moves;
    std::vector<EntryChange> const& m_changes;
    std::vector<std::size_t>& m_source;
    std::vector<std::size_t>& m_goal;
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
    // What one run alone made and took away is not among its changes.
    if (runs.size() < 2) return;
    // For each object that a run made, by its name: all that says of it that it is there.
    using Traces = std::vector<std::optional<cow_ErasedHandle>*>;
    std::map<Name, Traces> made;
    for (EditRun& run : runs) {
        std::vector<EntryChange>& changes = run.changes;
        Moves const moves(run);
        auto const nameOf = [&](std::size_t i) {
            return Name(changes[i].collection, changes[i].key.View());
        };
        std::vector<std::pair<Name, Traces>> moved;
        std::vector<Traces> gone;
        for (std::size_t i = 0; i < changes.size(); ++i) {
            auto const found = made.find(nameOf(i));
            if (found == made.end()) continue;
            Traces traces = std::move(found->second);
            made.erase(found);
            traces.push_back(&changes[i].before);
            std::size_t const goal = moves.goal[i];
            if (goal == nothing) {
                gone.push_back(std::move(traces));
                continue;
            }
            traces.push_back(&changes[goal].after);
            moved.emplace_back(nameOf(goal), std::move(traces));
        }
        for (auto& [name, traces] : moved) made[name] = std::move(traces);
        for (std::size_t i = 0; i < changes.size(); ++i)
            if (changes[i].after && moves.source[i] == nothing)
                made[nameOf(i)] = {&changes[i].after};
        for (Traces const& traces : gone)
            for (std::optional<cow_ErasedHandle>* trace : traces) trace->reset();
    }
}

}  // namespace nga
