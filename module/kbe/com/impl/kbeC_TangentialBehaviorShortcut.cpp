#include "kbeC_TangentialBehaviorShortcut.h"

#include "kbeC_StepSupport.h"

template class ddr_ShortcutImpl<kbeC_TangentialBehavior>;
template class ddr_Shortcut<kbeC_TangentialBehavior>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_TangentialBehavior, 1>;

namespace {

char const* const kbeTangentialSource =
    "generated/module/kbe/com/impl/kbeC_TangentialBehaviorShortcut";

}  // namespace

using Law = ddr_StepTraits<kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut>;
kbeC_TangentialBehavior const& Law::ConstGet(kbeC_ConnectorBehaviorOption const& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_TangentialBehavior>();
    return kbe::Cast<kbeC_ConnectorFriction>(parent, kbeTangentialSource, __LINE__)
        .tangentialBehavior.ConstGet();
}
kbeC_TangentialBehavior& Law::Get(kbeC_ConnectorBehaviorOption& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_TangentialBehavior>();
    return kbe::Cast<kbeC_ConnectorFriction>(parent, kbeTangentialSource, __LINE__)
        .tangentialBehavior.Get();
}
