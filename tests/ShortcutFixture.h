#pragma once

#include <gtest/gtest.h>

#include "DDB_NonGeometricAttributes.h"

/// A session with one model, and shortcuts that start at it.
class ShortcutFixture : public testing::Test {
protected:
    ShortcutFixture() {
        DDB_NonGeometricAttributes_initialize(m_count);
        // Descriptions are found by number once a domain has been asked for.
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
        session.Add(model);
        thr_ThreadSingleton<omu_ChangeHistory>::Instance().StartKeeping();
    }
    ~ShortcutFixture() override {
        thr_ThreadSingleton<omu_ChangeHistory>::Instance().StopKeeping();
        DDB_NonGeometricAttributes_finalize(m_count);
    }

    kmaC_MaterialContainer& Materials() {
        return static_cast<kmaC_MaterialContainer&>(
            model.GetExtension(ddr_Model::materialCmd()).GetValue());
    }
    /// How many changes were sent since the last call.
    static std::size_t Changes() {
        return thr_ThreadSingleton<omu_ChangeHistory>::Instance().Drain().size();
    }

    static kmaC_MaterialContainerShortcut ToMaterials() {
        return kmaC_MaterialContainerShortcut(
            new kmaC_MaterialContainerInModelShortcut(ddr_ShortcutToModel("bridge")));
    }
    static kmaC_MaterialShortcut ToMaterial(cow_String const& name) {
        return kmaC_MaterialShortcut(
            new kmaC_MaterialInMaterialContainerShortcut(ToMaterials(), name));
    }
    static kmaC_MaterialOptionShortcut ToOption(cow_String const& material, cow_String const& key) {
        return kmaC_MaterialOptionShortcut(
            new kmaC_MaterialOptionInMaterialShortcut(ToMaterial(material), key));
    }
    static kmaC_MaterialOptionShortcut ToSuboption(kmaC_MaterialOptionShortcut const& option,
                                                   cow_String const& key) {
        return kmaC_MaterialOptionShortcut(
            new kmaC_MaterialOptionInMaterialOptionShortcut(option, key));
    }

    /// The text that \p action fails with; "nothing raised" otherwise.
    template <class Action>
    static std::string TextOf(Action action) {
        try {
            action();
        } catch (nex_TextException const& failure) {
            return failure.UserReport().Text();
        }
        return "nothing raised";
    }
    struct Access {
        std::string key;
        std::string file;
        int line = 0;
    };
    template <class Action>
    static Access AccessFailureOf(Action action) {
        try {
            action();
        } catch (omu_AccessErrorException const& failure) {
            return {failure.AsString().Text(), failure.File(), failure.Line()};
        }
        return {"nothing raised", "", 0};
    }

    ddr_Model model{cow_String("bridge")};
    ddr_Session session;

private:
    int m_count = 0;
};
