#include "nga_History.h"

#include <map>

#include "nga_Error.h"

namespace nga {

std::size_t History::Open(std::string const& why) {
    m_open.emplace_back();
    m_open.back().number = ++m_opened;
    if (!why.empty()) m_open.back().why = why;
    return m_opened;
}

bool History::IsOpen(std::size_t edit) const {
    for (Step const& step : m_open)
        if (step.number == edit) return true;
    return false;
}

void History::Require(std::size_t edit) const {
    if (!IsOpen(edit)) throw Error("the edit is not open, or not any more");
}

void History::Close(std::size_t edit) {
    Require(edit);
    // Taken back now, it would go on without whoever writes in it knowing.
    if (m_open.back().number != edit)
        throw Error("an edit that was begun within this one" +
                    (m_open.back().why.empty() ? "" : ", '" + m_open.back().why + "',") +
                    " is still open; end that one first");
    Step step = std::move(m_open.back());
    m_open.pop_back();
    if (step.kept.empty()) return;
    if (m_open.empty()) {
        m_done.push_back(std::move(step));
        m_done.back().names.reset();
        m_undone.clear();
        return;
    }
    Step& outer = m_open.back();
    for (KeptEntry& entry : step.kept)
        if (!Has(outer, *entry.collection, entry.key)) outer.kept.push_back(std::move(entry));
    for (EntryRename& rename : step.renames) outer.renames.push_back(std::move(rename));
}

void History::RollBack(std::size_t edit) {
    Require(edit);
    while (m_open.back().number != edit) RollBackInnermost();
    RollBackInnermost();
}

void History::RollBackInnermost() {
    Step step = std::move(m_open.back());
    m_open.pop_back();
    for (std::size_t i = step.kept.size(); i-- > 0;)
        step.kept[i].collection->Restore(m_model, step.kept[i].key, step.kept[i].state);
}

std::string History::NameOf(Collection const& collection, cow_String const& key) {
    std::string name = collection.Name();
    name += '\0';
    name += key.View();
    return name;
}

bool History::Has(Step& step, Collection const& collection, cow_String const& key) {
    constexpr std::size_t few = 16;
    if (step.kept.size() < few) {
        for (KeptEntry const& entry : step.kept)
            if (entry.collection == &collection && entry.key == key) return true;
        return false;
    }
    // Entries join at the end, so the names lag behind by the last ones.
    if (!step.names) step.names = std::make_unique<std::unordered_set<std::string>>();
    for (std::size_t i = step.names->size(); i < step.kept.size(); ++i)
        step.names->insert(NameOf(*step.kept[i].collection, step.kept[i].key));
    return step.names->count(NameOf(collection, key)) != 0;
}

void History::Touch(Collection const& collection, cow_String const& key) {
    if (m_open.empty()) throw Error("a write belongs to an edit, and none is open");
    Step& step = m_open.back();
    if (!Has(step, collection, key))
        step.kept.push_back({&collection, key, collection.Hold(m_model, key)});
}

void History::Renamed(Collection const& collection, cow_String const& from, cow_String const& to) {
    if (m_open.empty()) throw Error("a write belongs to an edit, and none is open");
    m_open.back().renames.push_back({&collection, from, to});
}

void History::Forget() {
    if (IsOpen()) throw Error("an edit is open, so its steps cannot be forgotten");
    m_done.clear();
    m_undone.clear();
}

void History::Exchange(Step& step) {
    for (std::size_t i = step.kept.size(); i-- > 0;) {
        KeptEntry& entry = step.kept[i];
        std::optional<cow_ErasedHandle> now = entry.collection->Hold(m_model, entry.key);
        entry.collection->Restore(m_model, entry.key, entry.state);
        entry.state.reset();
        if (now) entry.state.emplace(*now);
    }
}

bool History::Undo() {
    if (IsOpen()) throw Error("an edit is open, so nothing can be undone");
    if (m_done.empty()) return false;
    Exchange(m_done.back());
    m_undone.push_back(std::move(m_done.back()));
    m_done.pop_back();
    return true;
}

bool History::Redo() {
    if (IsOpen()) throw Error("an edit is open, so nothing can be done again");
    if (m_undone.empty()) return false;
    Exchange(m_undone.back());
    m_done.push_back(std::move(m_undone.back()));
    m_undone.pop_back();
    return true;
}

std::vector<EditRun> History::Runs() const {
    using Name = std::pair<Collection const*, std::string>;
    std::vector<EditRun> runs;
    std::vector<std::map<Name, std::size_t>> places;
    auto const add = [&](Step const& step) {
        if (runs.empty() || !step.why.empty() || !runs.back().why.empty()) {
            runs.push_back({step.why, {}, {}});
            places.emplace_back();
        }
        for (KeptEntry const& entry : step.kept) {
            Name const name(entry.collection, entry.key.View());
            if (!places.back().emplace(name, runs.back().changes.size()).second) continue;
            runs.back().changes.push_back({entry.collection, entry.key, entry.state, std::nullopt});
        }
        for (EntryRename const& rename : step.renames) runs.back().renames.push_back(rename);
    };
    for (Step const& step : m_done) add(step);
    for (Step const& step : m_open) add(step);
    // Behind a run an object is as it was before the next run that touched it, or as it is now.
    std::map<Name, std::optional<cow_ErasedHandle>> later;
    for (std::size_t i = runs.size(); i-- > 0;) {
        for (EntryChange& change : runs[i].changes) {
            Name const name(change.collection, change.key.View());
            auto found = later.find(name);
            std::optional<cow_ErasedHandle> const after =
                found == later.end() ? change.collection->Hold(m_model, change.key) : found->second;
            if (after) change.after.emplace(*after);
            later.erase(name);
            later.emplace(name, change.before);
        }
    }
    return runs;
}

}  // namespace nga
