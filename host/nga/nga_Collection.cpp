#include "nga_Collection.h"

#include "cow_BtreeIterator.h"
#include "cow_Destroy.h"
#include "kamC_Amplitude.h"
#include "kbpC_BeamProfile.h"
#include "kflC_Filter.h"
#include "kmaC_Material.h"
#include "nga_ConnectorSection.h"
#include "nga_HostExtension.h"
#include "nga_TreeDifference.h"

namespace nga {

namespace {

/// Where a kind's repository stands in a model. Reading a model that never had the extension must
/// not make it one, or every look would leave a record behind in the next save.
struct InWrapper {
    template <class Repository>
    static Repository const* Find(ddr_Model const& model, char const* extension) {
        cow_String const name(extension);
        if (!model.HasInstance(name)) return nullptr;
        return static_cast<Repository const*>(&model.ConstGetExtension(name).ConstGetValue());
    }
    template <class Repository>
    static Repository& Get(ddr_Model& model, char const* extension) {
        return static_cast<Repository&>(model.GetExtension(cow_String(extension)).GetValue());
    }
};

struct InHost {
    template <class Repository>
    static klcC_LoadCaseCont const* Find(ddr_Model const& model, char const*) {
        cow_String const name(HostExtension::extensionCmd());
        if (!model.HasInstance(name)) return nullptr;
        return &static_cast<HostExtension const&>(model.ConstGetExtension(name)).loadCases;
    }
    template <class Repository>
    static klcC_LoadCaseCont& Get(ddr_Model& model, char const*) {
        cow_String const name(HostExtension::extensionCmd());
        return static_cast<HostExtension&>(model.GetExtension(name)).loadCases;
    }
};

template <class T, class Place>
class RepositoryCollection final : public Collection {
    using Repository = mdl_MapString2ObjCow<T>;

public:
    explicit RepositoryCollection(omn_FixedString name)
        : Collection(name.Text(), T::Description()) {}
    RepositoryCollection(omn_FixedString name, char const* reserved, int code)
        : Collection(name.Text(), T::Description()), m_reserved(reserved), m_codeOfReserved(code) {}

    int CodeOfName(std::string_view key) const override {
        return m_reserved && key == m_reserved ? m_codeOfReserved : -1;
    }

    int Size(ddr_Model const& model) const override {
        Repository const* repository = Found(model);
        return repository ? repository->Size() : 0;
    }
    void const* Find(ddr_Model const& model, cow_String const& key) const override {
        Repository const* repository = Found(model);
        return repository ? repository->ConstGetPtr(key) : nullptr;
    }
    void Each(ddr_Model const& model, Visit const& visit) const override {
        Repository const* repository = Found(model);
        if (!repository) return;
        cow_BtreeIterator<cow_String, typename Repository::Handle> position(
            repository->ConstGetMap());
        for (position.First(); !position.IsDone(); position.Next())
            visit(position.CurrentKey(), position.CurrentValue().GetPtr());
    }
    unsigned DynTypeIdOf(void const* object) const override {
        return static_cast<T const*>(object)->DynTypeId();
    }
    void Insert(ddr_Model& model, cow_String const& key, void* object) const override {
        // The repository may have to be made first, and that may fail with the object in hand.
        cow_Owned<T> owned(static_cast<T*>(object));
        Repository& repository = Place::template Get<Repository>(model, Name());
        repository.Insert(key, owned.Release());
    }
    cls_Uid const* MapUid(ddr_Model const& model) const override {
        Repository const* repository = Found(model);
        return repository ? &repository->ConstGetMap().uid : nullptr;
    }
    std::function<void()> Keep(ddr_Model& model) const override {
        Repository& repository = Place::template Get<Repository>(model, Name());
        return [&repository, kept = repository] { repository = kept; };
    }

    void* Get(ddr_Model& model, cow_String const& key) const override {
        return Place::template Get<Repository>(model, Name()).GetPtr(key);
    }
    bool Remove(ddr_Model& model, cow_String const& key) const override {
        return Find(model, key) && Place::template Get<Repository>(model, Name()).Remove(key);
    }
    std::optional<cow_ErasedHandle> Hold(ddr_Model const& model,
                                         cow_String const& key) const override {
        Repository const* repository = Found(model);
        auto const* node = repository ? repository->ConstGetMap().ConstFind(key) : nullptr;
        if (!node) return std::nullopt;
        return cow_ErasedHandle(node->Value(), cow_ErasedDestroy<T>);
    }
    void Restore(ddr_Model& model, cow_String const& key,
                 std::optional<cow_ErasedHandle> const& held) const override {
        if (!held) {
            Remove(model, key);
            return;
        }
        Repository& repository = Place::template Get<Repository>(model, Name());
        auto const* node = repository.ConstGetMap().ConstFind(key);
        if (node && node->Value().SharesWith(*held)) return;
        repository.Insert(key, typename Repository::Handle(cow_ShareErased(), *held));
    }
    std::shared_ptr<void const> Snap(ddr_Model const& model) const override {
        Repository const* repository = Found(model);
        return repository ? std::make_shared<Repository const>(*repository) : nullptr;
    }
    void Compare(void const* before, void const* after, Differing const& differing) const override {
        typename Repository::Tree const none;
        TreeDifference<cow_String, typename Repository::Handle>(
            before ? static_cast<Repository const*>(before)->ConstGetMap() : none,
            after ? static_cast<Repository const*>(after)->ConstGetMap() : none)
            .Run([&](cow_String const& key, auto const* one, auto const* other) {
                differing(key, one ? one->GetPtr() : nullptr, other ? other->GetPtr() : nullptr);
            });
    }

private:
    Repository const* Found(ddr_Model const& model) const {
        return Place::template Find<Repository>(model, Name());
    }

    char const* m_reserved = nullptr;
    int m_codeOfReserved = -1;
};

}  // namespace

std::vector<Collection const*> const& Collection::All() {
    static RepositoryCollection<kmaC_Material, InWrapper> const materials(
        kmaC_Material::materialRepositoryCmd());
    static RepositoryCollection<kamC_Amplitude, InWrapper> const amplitudes(
        kamC_Amplitude::amplitudeRepositoryCmd());
    static RepositoryCollection<kbpC_BeamProfile, InWrapper> const profiles(
        kbpC_BeamProfile::profileRepositoryCmd());
    static RepositoryCollection<kflC_Filter, InWrapper> const filters(
        kflC_Filter::filterRepositoryCmd(), "Antialiasing", 6);
    static RepositoryCollection<nga_ConnectorSection, InWrapper> const sections(
        nga_ConnectorSection::sectionRepositoryCmd());
    static RepositoryCollection<klcC_LoadCase, InHost> const loadCases(
        klcC_LoadCase::loadCaseCmd());
    static std::vector<Collection const*> const all = {&materials, &amplitudes, &profiles,
                                                       &filters,   &sections,   &loadCases};
    return all;
}

Collection const* Collection::FindByName(std::string_view name) {
    for (Collection const* collection : All())
        if (name == collection->Name()) return collection;
    return nullptr;
}

}  // namespace nga
