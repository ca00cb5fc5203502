#include "nga_SeparateIdentities.h"

#include <cstring>
#include <random>
#include <vector>

#include "nga_Collection.h"

namespace nga {

namespace {

/// Which address bears which identity. Open addressing: an entry holds the identity's hash and the
/// place that bears it, so that a look-up reads one line of memory and follows the pointer only on
/// a match. The hash is keyed: identities come out of files, and nobody shall be able to choose
/// them so that all fall into one place.
class Bearers {
public:
    explicit Bearers(std::size_t expected) {
        std::size_t size = 1024;
        while (size < 2 * expected) size *= 2;
        m_entries.resize(size);
        std::random_device device;
        m_keyA = (std::uint64_t{device()} << 32) | device();
        m_keyB = (std::uint64_t{device()} << 32) | device();
    }

    /// True if the place bears its identity alone, false if another place bore it before. *known
    /// tells that this very place was met before.
    bool Claim(cls_Uid const* place, bool* known) {
        if (2 * m_count >= m_entries.size()) Grow();
        std::uint64_t const hash = Hash(*place);
        std::size_t i = hash & (m_entries.size() - 1);
        for (; m_entries[i].place; i = (i + 1) & (m_entries.size() - 1)) {
            if (m_entries[i].hash != hash || *m_entries[i].place != *place) continue;
            *known = m_entries[i].place == place;
            return *known;
        }
        m_entries[i] = {hash, place};
        ++m_count;
        *known = false;
        return true;
    }

private:
    struct Entry {
        std::uint64_t hash = 0;
        cls_Uid const* place = nullptr;
    };
    __extension__ using Wide = unsigned __int128;

    std::uint64_t Hash(cls_Uid const& uid) const {
        std::uint64_t words[2];
        static_assert(sizeof words == sizeof uid);
        std::memcpy(words, &uid, sizeof words);
        Wide const product = Wide{words[0] ^ m_keyA} * ((words[1] ^ m_keyB) | 1);
        std::uint64_t const folded =
            static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
        return (folded ^ (folded >> 29)) * 0x94d049bb133111ebu;
    }
    void Grow() {
        std::vector<Entry> former(m_entries.size() * 2);
        former.swap(m_entries);
        for (Entry const& entry : former) {
            if (!entry.place) continue;
            std::size_t i = entry.hash & (m_entries.size() - 1);
            while (m_entries[i].place) i = (i + 1) & (m_entries.size() - 1);
            m_entries[i] = entry;
        }
    }

    std::vector<Entry> m_entries;
    std::size_t m_count = 0;
    std::uint64_t m_keyA;
    std::uint64_t m_keyB;
};

class Walk {
public:
    explicit Walk(std::size_t expected) : m_bearers(expected) {}

    void Object(mdl_Description const& description, void const* object) {
        // The own identity of the most derived level stands for the whole object: what was met at
        // this address was walked then.
        for (mdl_Description const* level = &description; level; level = level->Base()) {
            bool const known = Identity(level->Uid(const_cast<void*>(object)));
            if (known) return;
        }
        for (mdl_Description const* level = &description; level; level = level->Base())
            for (mdl_Field const& field : level->Fields()) Field(field, field.At(object));
    }

    /// Whether this very place was met before. An identity is no part of an object's content but
    /// the name of its record, so giving a new one through a constant object changes nothing that
    /// anybody reads; asking for the object to be writable would detach it, which is the opposite
    /// of what a save may do.
    bool Identity(cls_Uid const& place) {
        bool known = false;
        if (!place.IsNull() && m_bearers.Claim(&place, &known)) return known;
        const_cast<cls_Uid&>(place).NewUid();
        m_bearers.Claim(&place, &known);
        ++given;
        return false;
    }

    mdl_Description const* Find(unsigned typeId) {
        for (mdl_Description const* description : m_found)
            if (description->TypeId() == typeId) return description;
        mdl_Description const* description = mdl_Description::Find(typeId);
        if (description) m_found.push_back(description);
        return description;
    }

    int given = 0;

private:
    void Field(mdl_Field const& field, void const* at) {
        mdl_FieldType const& type = field.Type();
        if (cls_Uid const* own = type.Uid(at)) Identity(*own);
        if (!type.Held()) return;
        int const count = type.Count(at);
        for (int i = 0; i < count; ++i) {
            void const* const object = type.ConstObject(at, i);
            if (!object) continue;
            mdl_Description const* description = type.Held();
            unsigned const typeId = type.DynTypeIdOf(object);
            if (typeId != description->TypeId()) description = Find(typeId);
            if (description) Object(*description, object);
        }
    }

    Bearers m_bearers;
    /// The few classes that occur in one model; a scan of them beats the directory's tree.
    std::vector<mdl_Description const*> m_found;
};

}  // namespace

int SeparateIdentities(ddr_Model& model) {
    std::size_t expected = 0;
    for (Collection const* collection : Collection::All())
        expected += 16 * static_cast<std::size_t>(collection->Size(model));
    Walk walk(expected);
    for (Collection const* collection : Collection::All()) {
        if (cls_Uid const* map = collection->MapUid(model)) walk.Identity(*map);
        collection->Each(model, [&](cow_String const&, void const* object) {
            if (!object) return;
            mdl_Description const* description = walk.Find(collection->DynTypeIdOf(object));
            if (description) walk.Object(*description, object);
        });
    }
    return walk.given;
}

}  // namespace nga
