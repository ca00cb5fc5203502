#include "mdl_Repository.h"

#include "cls_AbsTypeAdapter.h"
#include "cls_ClassRegistrar.h"
#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "omu_ChangeHistory.h"
#include "omu_TypeIds.h"
#include "thr_ThreadSingleton.h"

mdl_Extension::mdl_Extension() : m_uid(cls_Uid::AllocateUid()) {}
// The extension's part of a record has no identity to read back: it is new in every process.
mdl_Extension::mdl_Extension(cls_ReadVisitor const&) : m_uid(cls_Uid::AllocateUid()) {}
mdl_Extension::mdl_Extension(mdl_Extension const&) = default;
mdl_Extension& mdl_Extension::operator=(mdl_Extension const&) = default;
mdl_Extension::~mdl_Extension() = default;

mdl_Extension& mdl_Extension::GetValue() { return *this; }
mdl_Extension const& mdl_Extension::ConstGetValue() const { return *this; }
unsigned mdl_Extension::DynTypeId() const { return TypeId(); }
void mdl_Extension::NewUid() { m_uid.NewUid(); }
unsigned mdl_Extension::TypeId() { return mdl_ExtensionTypeId; }

void mdl_Extension::DBWrite(cls_WriteVisitor const& visitor) const {
    visitor.StartWrite(TypeId(), m_uid);
}

void mdl_Extension::InitializeMetadata(cls_ClassRegistrar& registrar) {
    registrar.AddClassMD(
        new cls_AbsTypeAdapter<mdl_Extension>("mdl_Extension", 203, cls_RootTypeId));
}

mdl_Repository::mdl_Repository() : m_uid(cls_Uid::AllocateUid()) {}
mdl_Repository::mdl_Repository(cls_ReadVisitor const& visitor)
    : mdl_Extension(visitor), m_uid(cls_Uid::AllocateUid()) {}
mdl_Repository::mdl_Repository(mdl_Repository const&) = default;
mdl_Repository& mdl_Repository::operator=(mdl_Repository const&) = default;

unsigned mdl_Repository::DynTypeId() const { return TypeId(); }
unsigned mdl_Repository::TypeId() { return mdl_RepositoryTypeId; }

void mdl_Repository::DBWrite(cls_WriteVisitor const& visitor) const {
    if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
    cls_WriteVisitor base(visitor, mdl_Extension::TypeId());
    mdl_Extension::DBWrite(base);
}

void mdl_Repository::NewUid() {
    mdl_Extension::NewUid();
    m_uid.NewUid();
}

void mdl_Repository::InitializeMetadata(cls_ClassRegistrar& registrar) {
    registrar.AddClassMD(
        new cls_AbsTypeAdapter<mdl_Repository>("mdl_Repository", 203, mdl_Extension::TypeId()));
}

namespace {

constexpr char kOpen = '(';
/// Stands in the third place of every insertion; its meaning lies with the receiver.
constexpr int kInsertMark = -99;

template <class Key>
void Send(int capacity, char const* what, Key const& key, bool insertion) {
    omu_ChangeHistory& history = thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    if (!history.IsHeard()) return;
    omu_PrimTuple change(capacity, kOpen);
    change.Put(what);
    change.Put(key);
    if (insertion) change.Put(kInsertMark);
    history.addChange(change);
}

}  // namespace

void mdl_Repository::SendRemove(cow_String const& key) { Send(2, "Remove", key, false); }
void mdl_Repository::SendRemove(int key) { Send(2, "Remove", key, false); }
void mdl_Repository::SendInsert(cow_String const& key) { Send(4, "Insert", key, true); }
void mdl_Repository::SendInsert(int key) { Send(4, "Insert", key, true); }
void mdl_Repository::SendModify(cow_String const& key) { Send(4, "Modify", key, false); }
void mdl_Repository::SendModify(int key) { Send(4, "Modify", key, false); }
