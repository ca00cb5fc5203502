#pragma once

#include "cls_ClassRegistrar.h"
#include "cls_TypeAdapter.h"
#include "mdl_Extension.h"
#include "mdl_RepositoryTraits.h"

/// Makes a repository an extension: holds it by value, and gives it as its payload.
template <class R>
class mdl_ExtensionWrapper : public mdl_Extension {
public:
    using Traits = mdl_RepositoryTraits<mdl_ExtensionWrapper>;

    explicit mdl_ExtensionWrapper(R const& repository)
        : m_repository(repository), m_uid(cls_Uid::AllocateUid()) {}
    explicit mdl_ExtensionWrapper(cls_ReadVisitor const& visitor)
        : mdl_Extension(visitor),
          m_repository(cls_ReadVisitor(visitor, ExtensionField()), true),
          m_uid(visitor.GetUid()) {}
    mdl_ExtensionWrapper(mdl_ExtensionWrapper const&) = default;
    mdl_ExtensionWrapper& operator=(mdl_ExtensionWrapper const&) = default;
    mdl_Extension* Copy() const override { return new mdl_ExtensionWrapper(*this); }

    mdl_Extension& GetValue() override { return m_repository; }
    mdl_Extension const& ConstGetValue() const override { return m_repository; }
    unsigned DynTypeId() const override { return TypeId(); }
    void DBWrite(cls_WriteVisitor const& visitor) const override {
        if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
        {
            cls_WriteVisitor base(visitor, mdl_Extension::TypeId());
            mdl_Extension::DBWrite(base);
        }
        cls_WriteVisitor extension(visitor, ExtensionField(), nullptr, nullptr);
        m_repository.DBWrite(extension, true);
    }
    void NewUid() override {
        m_uid.NewUid();
        mdl_Extension::NewUid();
    }
    cls_Uid const& Uid() const { return m_uid; }

    static constexpr unsigned TypeId() { return Traits::typeId; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        registrar
            .AddClassMD(new cls_TypeAdapter<mdl_ExtensionWrapper>(Traits::name, Traits::version,
                                                                  mdl_Extension::TypeId()))
            .AddAttribute(ExtensionField(), cls_AttributeObject, cls_MapTypeId,
                          cls_CollectionMapString);
    }

private:
    static cls_FieldHandle ExtensionField() { return cls_FieldHandle(0, cow_String("extension")); }

    R m_repository;
    cls_Uid m_uid;
};
