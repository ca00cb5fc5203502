#include "nga_SeparateIdentities.h"

#include <cstring>
#include <map>
#include <random>
#include <unordered_set>

#include "mdl_Interruption.h"
#include "nga_Collection.h"

namespace nga {

namespace {

/// The two words of an identity. Which is which does not matter here, only that running numbers of
/// one process differ in the second alone.
struct Words {
    explicit Words(cls_Uid const& uid) {
        static_assert(sizeof words == sizeof uid);
        std::memcpy(words, &uid, sizeof words);
    }
    std::uint64_t words[2];
};

/// A keyed hash: identities come out of files, and nobody shall be able to choose them so that all
/// fall into one place.
class Key {
public:
    Key() {
        std::random_device device;
        for (std::uint64_t& word : m_words) word = (std::uint64_t{device()} << 32) | device();
    }
    std::uint64_t operator()(std::uint64_t a, std::uint64_t b) const {
        Wide const product = Wide{a ^ m_words[0]} * ((b ^ m_words[1]) | 1);
        std::uint64_t const folded =
            static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
        return (folded ^ (folded >> 29)) * 0x94d049bb133111ebu;
    }

private:
    __extension__ using Wide = unsigned __int128;
    std::uint64_t m_words[2];
};

/// Open addressing over entries with a `hash`, which is never 0 in use.
template <class Entry>
class Table {
public:
    Table() : m_entries(1024) {}

    bool IsEmpty() const { return m_count == 0; }
    /// The entry that \p matches, or the free one where it belongs.
    template <class Matches>
    Entry& Find(std::uint64_t hash, Matches matches) {
        std::size_t i = hash & (m_entries.size() - 1);
        while (m_entries[i].hash != 0 && !(m_entries[i].hash == hash && matches(m_entries[i])))
            i = (i + 1) & (m_entries.size() - 1);
        return m_entries[i];
    }
    /// To be called when a free entry was taken. Entries move.
    void Took() {
        if (2 * ++m_count < m_entries.size()) return;
        std::vector<Entry> former(m_entries.size() * 4);
        former.swap(m_entries);
        for (Entry const& entry : former)
            if (entry.hash != 0) Find(entry.hash, [](Entry const&) { return false; }) = entry;
    }

private:
    std::vector<Entry> m_entries;
    std::size_t m_count = 0;
};

/// Which identities were met: a bit for each, 64 running numbers to an entry. Objects that were
/// made together bear numbers that follow each other, so most look-ups end at the entry before.
class Met {
public:
    /// Whether the identity is met for the first time.
    bool Add(cls_Uid const& uid) {
        Words const w(uid);
        std::uint64_t const block = w.words[1] >> 6;
        if (!m_last || m_last->prefix != w.words[0] || m_last->block != block) {
            std::uint64_t const hash = m_key(w.words[0], block) | 1;
            auto const matches = [&](Entry const& entry) {
                return entry.prefix == w.words[0] && entry.block == block;
            };
            m_last = &m_table.Find(hash, matches);
            if (m_last->hash == 0) {
                *m_last = {hash, w.words[0], block, 0};
                m_table.Took();
                m_last = &m_table.Find(hash, matches);
            }
        }
        std::uint64_t const bit = std::uint64_t{1} << (w.words[1] & 63);
        bool const fresh = (m_last->bits & bit) == 0;
        m_last->bits |= bit;
        return fresh;
    }

private:
    struct Entry {
        std::uint64_t hash = 0;
        std::uint64_t prefix = 0;
        std::uint64_t block = 0;
        std::uint64_t bits = 0;
    };
    Key m_key;
    Table<Entry> m_table;
    Entry* m_last = nullptr;
};

/// The identities that were met more than once, each with the place that may keep it.
class Repeated {
public:
    bool IsEmpty() const { return m_table.IsEmpty(); }
    void Add(cls_Uid const& uid) {
        Entry& entry = At(uid);
        if (entry.hash != 0) return;
        entry = {Hash(uid), uid, nullptr};
        m_table.Took();
    }
    /// The place that keeps the identity: the first for which this asks. Null for an identity that
    /// is not repeated.
    cls_Uid const* Keeper(cls_Uid const& place) {
        Entry& entry = At(place);
        if (entry.hash != 0 && !entry.place) entry.place = &place;
        return entry.place;
    }

private:
    struct Entry {
        std::uint64_t hash = 0;
        cls_Uid uid;
        cls_Uid const* place = nullptr;
    };
    std::uint64_t Hash(cls_Uid const& uid) const {
        Words const w(uid);
        return m_key(w.words[0], w.words[1]) | 1;
    }
    Entry& At(cls_Uid const& uid) {
        return m_table.Find(Hash(uid), [&](Entry const& entry) { return entry.uid == uid; });
    }

    Key m_key;
    Table<Entry> m_table;
};

/// The first walk: finds identities that are met more than once, be it that their object is shared
/// or that there are several. In most documents there are few, and then this is all that is done.
struct Survey {
    Met met;
    Repeated repeated;
    std::unordered_set<cls_Uid const*> again;
    int given = 0;

    /// Whether to leave what stands behind this place. A place that is met again is walked once
    /// more, as the first time may have been another object's.
    bool Meet(cls_Uid const& place) {
        if (place.IsNull()) {
            const_cast<cls_Uid&>(place).NewUid();
            ++given;
        }
        if (met.Add(place)) return false;
        repeated.Add(place);
        return !again.insert(&place).second;
    }
};

/// The second walk: all but one of the places that bear a repeated identity get a new one. An
/// identity is no part of an object's content but the name of its record, so giving a new one
/// through a constant object changes nothing that anybody reads; asking for the object to be
/// writable would detach it, which is the opposite of what a save may do.
struct Separation {
    Repeated& repeated;
    int given = 0;

    bool Meet(cls_Uid const& place) {
        cls_Uid const* const keeper = repeated.Keeper(place);
        if (!keeper) return false;
        // What is truly shared is met at one address and was walked the first time.
        if (keeper == &place) return !walked.insert(&place).second;
        const_cast<cls_Uid&>(place).NewUid();
        ++given;
        // It may be shared itself, and shall be walked once all the same.
        repeated.Add(place);
        repeated.Keeper(place);
        walked.insert(&place);
        return false;
    }
    std::unordered_set<cls_Uid const*> walked;
};

/// What of a class bears an identity, drawn out of its description once: a material has 68 fields,
/// of which the walk needs few or none.
struct Plan {
    struct Part {
        mdl_Field const* field;
        bool isRecord;   ///< the field itself bears an identity
        bool isPresent;  ///< the object is always there, in the owner
        Plan* held;      ///< of the declared class; null where that is not known yet
    };
    mdl_Description const* description;
    std::vector<mdl_Description const*> levels;  ///< most derived first
    std::vector<Part> parts;
};

/// Meets every identity of a model, in one order.
template <class Visitor>
class Walk {
public:
    explicit Walk(Visitor& visitor) : m_visitor(visitor) {}

    void Objects(std::vector<TypedObject> const& objects) {
        for (TypedObject const& object : objects)
            if (Plan* plan = PlanOf(object.typeId)) Object(*plan, object.object);
    }
    void Model(ddr_Model const& model) {
        for (Collection const* collection : Collection::All()) {
            if (cls_Uid const* map = collection->MapUid(model)) m_visitor.Meet(*map);
            collection->Each(model, [&](cow_String const&, void const* object) {
                if (!object) return;
                if (Plan* plan = PlanOf(collection->DynTypeIdOf(object))) Object(*plan, object);
            });
        }
    }

private:
    void Object(Plan& plan, void const* object) {
        mdl_Interruption::Poll();
        // The identity of the most derived level stands for the whole object: what was met at this
        // address was walked then. The cast only asks where the identity is.
        cls_Uid const& own = plan.levels.front()->Uid(const_cast<void*>(object));
        if (m_visitor.Meet(own)) return;
        for (std::size_t i = 1; i < plan.levels.size(); ++i) {
            // A base that was read bears its object's identity, in a table of its own.
            cls_Uid const& base = plan.levels[i]->Uid(const_cast<void*>(object));
            if (base != own && m_visitor.Meet(base)) return;
        }
        for (Plan::Part& part : plan.parts) {
            void const* const at = part.field->At(object);
            mdl_FieldType const& type = part.field->Type();
            if (part.isRecord) m_visitor.Meet(*type.Uid(at));
            if (part.isPresent) {
                if (!part.held) part.held = PlanOf(type.Held()->TypeId());
                if (part.held) Object(*part.held, at);
            } else if (type.Held()) {
                Objects(part, at);
            }
        }
    }
    void Objects(Plan::Part& part, void const* at) {
        mdl_FieldType const& type = part.field->Type();
        int const count = type.Count(at);
        for (int i = 0; i < count; ++i) {
            void const* const object = type.ConstObject(at, i);
            if (!object) continue;
            unsigned const typeId = type.DynTypeIdOf(object);
            if (!part.held || part.held->description->TypeId() != typeId)
                part.held = PlanOf(typeId);
            if (part.held) Object(*part.held, object);
        }
    }

    Plan* PlanOf(unsigned typeId) {
        if (m_last && m_last->description->TypeId() == typeId) return m_last;
        auto found = m_plans.find(typeId);
        if (found == m_plans.end()) {
            mdl_Description const* description = mdl_Description::Find(typeId);
            if (!description) return nullptr;
            found = m_plans.emplace(typeId, Draw(*description)).first;
        }
        return m_last = &found->second;
    }
    static Plan Draw(mdl_Description const& description) {
        Plan plan{&description, {}, {}};
        for (mdl_Description const* level = &description; level; level = level->Base()) {
            plan.levels.push_back(level);
            for (mdl_Field const& field : level->Fields()) {
                mdl_FieldKind const kind = field.Type().Kind();
                bool const isRecord =
                    kind == mdl_FieldKind::OptionList || kind == mdl_FieldKind::ObjectList ||
                    kind == mdl_FieldKind::IntList || kind == mdl_FieldKind::DoubleList ||
                    kind == mdl_FieldKind::FloatMap || kind == mdl_FieldKind::Array;
                if (isRecord || field.Type().Held())
                    plan.parts.push_back(
                        {&field, isRecord, kind == mdl_FieldKind::Object, nullptr});
            }
        }
        return plan;
    }

    Visitor& m_visitor;
    // Plans point at each other, and in this map they stay where they are.
    std::map<unsigned, Plan> m_plans;
    Plan* m_last = nullptr;
};

}  // namespace

namespace {

/// Walks once, and again where that found something; \p start says what to walk.
template <class Start>
int Separate(Start start) {
    Survey survey;
    start(Walk<Survey>(survey));
    if (survey.repeated.IsEmpty()) return survey.given;
    Separation separation{survey.repeated, 0, {}};
    start(Walk<Separation>(separation));
    return survey.given + separation.given;
}

}  // namespace

int SeparateIdentities(ddr_Model& model, std::vector<TypedObject> const& others) {
    return Separate([&](auto walk) {
        walk.Model(model);
        walk.Objects(others);
    });
}

int SeparateIdentities(std::vector<TypedObject> const& objects) {
    return Separate([&](auto walk) { walk.Objects(objects); });
}

}  // namespace nga
