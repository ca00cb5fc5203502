#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "cow_ErasedHandle.h"
#include "ddr_Model.h"
#include "mdl_Description.h"

namespace nga {

/// One kind of named objects in a document, as generic code sees it: text forms, checks, paths and
/// the walk before a save need no class of object and no template. Objects pass as void pointers to
/// the whole object. One immortal instance a kind.
class Collection {
public:
    using Visit = std::function<void(cow_String const& key, void const* object)>;

    /// Its name in paths and texts.
    char const* Name() const { return m_name; }
    /// The declared class of its objects, which may be abstract.
    mdl_Description const& Held() const { return m_held; }
    /// The code, among those of the held class's module, of the failure that an object under this
    /// name is, or -1: a kind may keep a name for an object that the solver defines.
    virtual int CodeOfName(std::string_view key) const = 0;

    virtual int Size(ddr_Model const& model) const = 0;
    /// Null where there is none; neither detaches nor records.
    virtual void const* Find(ddr_Model const& model, cow_String const& key) const = 0;
    /// In the order of the names.
    virtual void Each(ddr_Model const& model, Visit const& visit) const = 0;
    virtual unsigned DynTypeIdOf(void const* object) const = 0;
    /// Takes ownership. A present name's object is replaced; change records are sent.
    virtual void Insert(ddr_Model& model, cow_String const& key, void* object) const = 0;
    /// The identity of the map itself, or null while the model has not made it.
    virtual cls_Uid const* MapUid(ddr_Model const& model) const = 0;

    // ---- one object ----
    /// The object for writing: detaches, and sends the record of a modification. Only for a name
    /// that is there.
    virtual void* Get(ddr_Model& model, cow_String const& key) const = 0;
    /// Whether something went.
    virtual bool Remove(ddr_Model& model, cow_String const& key) const = 0;
    /// A share of what stands under the name; empty where there is none.
    virtual std::optional<cow_ErasedHandle> Hold(ddr_Model const& model,
                                                 cow_String const& key) const = 0;
    /// Brings back what Hold() gave: shares it, or takes the name away. Sends change records, but
    /// none where the name has it already.
    virtual void Restore(ddr_Model& model, cow_String const& key,
                         std::optional<cow_ErasedHandle> const& held) const = 0;

    // ---- the content at one time ----
    /// A copy of the repository, which shares everything; null while the model has none.
    virtual std::shared_ptr<void const> Snap(ddr_Model const& model) const = 0;
    /// Tells where two such copies differ, in the order of the names, with null for an object that
    /// is on one side only. What the copies share is passed over, so that the cost is that of the
    /// differences.
    using Differing =
        std::function<void(cow_String const& key, void const* before, void const* after)>;
    virtual void Compare(void const* before, void const* after,
                         Differing const& differing) const = 0;
    /// Keeps the content as it is now, sharing it; calling the result brings it back.
    virtual std::function<void()> Keep(ddr_Model& model) const = 0;

    /// All of them, in the order of texts and trees.
    static std::vector<Collection const*> const& All();
    /// Null for a name that is none.
    static Collection const* FindByName(std::string_view name);

protected:
    Collection(char const* name, mdl_Description const& held) : m_name(name), m_held(held) {}
    ~Collection() = default;

private:
    char const* m_name;
    mdl_Description const& m_held;
};

}  // namespace nga
