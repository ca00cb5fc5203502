#pragma once

#include <initializer_list>

#include "ddr_Model.h"
#include "ddr_ShortcutBaseImpl.h"
#include "mdl_Repository.h"
#include "nex_Cast.h"
#include "omu_AccessErrorException.h"

// The accesses that occur in many steps, as bases for ddr_StepTraits. The lines at which failures
// are raised are fixed.

/// A repository R that is an extension of the model.
template <class R>
struct ddr_RepositoryInModel {
protected:
    static R const& ConstRepository(ddr_Model const& model, omn_FixedString extension) {
        mdl_Extension const& payload =
            model.ConstGetExtension(cow_String(extension)).ConstGetValue();
        Check(payload.DynTypeId());
        return static_cast<R const&>(payload);
    }
    static R& Repository(ddr_Model& model, omn_FixedString extension) {
        mdl_Extension& payload = model.GetExtension(cow_String(extension)).GetValue();
        Check(payload.DynTypeId());
        return static_cast<R&>(payload);
    }

private:
    static void Check(unsigned payload) {
        nex_canDynamicCastRef(mdl_Repository::TypeId(), payload, ddr_ShortcutBaseImpl::Source(),
                              __LINE__);
        nex_canDynamicCastRef(R::TypeId(), payload, ddr_ShortcutBaseImpl::Source(), __LINE__);
    }
};

/// An object M by name in a repository R. A missing key is refused before the repository is
/// touched, so that no change is recorded.
template <class R, class M>
struct ddr_EntryByName {
    /// The key goes in as it stands.
    static cow_String PathStep(cow_String const& key) { return cow_String("['") + key + "']"; }
    static M const& ConstGet(R const& repository, cow_String const& key) {
        if (!repository.IsMember(key))
            omu_AccessErrorException(key).Throw(ddr_ShortcutBaseImpl::Source(), 109);
        return repository.ConstGet(key);
    }
    static M& Get(R& repository, cow_String const& key) {
        if (!repository.IsMember(key))
            omu_AccessErrorException(key).Throw(ddr_ShortcutBaseImpl::Source(), 121);
        return repository.Get(key);
    }
};

/// An object M by number in a repository R, whose own answer to a missing number stands.
template <class R, class M>
struct ddr_EntryByNumber {
    static M const& ConstGet(R const& repository, int index) { return repository.ConstGet(index); }
    static M& Get(R& repository, int index) { return repository.Get(index); }
};

/// An element of a list L of handles. An index outside ends the process.
template <class L, class M>
struct ddr_ElementOfHandles {
    static M const& ConstGet(L const& list, int index) { return list.ConstGet(index).ConstGet(); }
    static M& Get(L& list, int index) { return list.Get(index).Get(); }
};

/// An element of a list L of objects by value. An index outside ends the process; the elements of a
/// list that is absent are absent.
template <class L, class M>
struct ddr_ElementByValue {
    static M const& ConstGet(L const& list, int index) {
        L const* const present = &list;
        M const* const none = nullptr;
        return present ? list.ConstGet(index) : *none;
    }
    static M& Get(L& list, int index) {
        L* const present = &list;
        M* const none = nullptr;
        return present ? list.Get(index) : *none;
    }
};

/// The test of a step whose member exists in some classes of a family only: raises the text unless
/// \p typeId is one of \p owners.
void ddr_RequireOwner(unsigned typeId, std::initializer_list<unsigned> owners, char const* text,
                      char const* file, int line);
