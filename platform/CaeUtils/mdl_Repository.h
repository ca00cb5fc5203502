#pragma once

#include "mdl_Extension.h"

class cow_String;

/// The parent of all repositories: persistent, named collections that report their changes.
class mdl_Repository : public mdl_Extension {
public:
    mdl_Repository();
    explicit mdl_Repository(cls_ReadVisitor const& visitor);
    mdl_Repository(mdl_Repository const&);
    mdl_Repository& operator=(mdl_Repository const&);

    mdl_Extension* Copy() const override = 0;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;
    void NewUid() override;
    /// How many objects it holds.
    virtual int Size() const = 0;

    static unsigned TypeId();
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
    // The change records of a repository, as they go to this thread's change history.
    static void SendRemove(cow_String const& key);
    static void SendRemove(int key);
    static void SendInsert(cow_String const& key);
    static void SendInsert(int key);
    static void SendModify(cow_String const& key);
    static void SendModify(int key);

private:
    cls_Uid m_uid;
};
