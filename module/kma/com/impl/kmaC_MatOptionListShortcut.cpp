#include "kmaC_MatOptionListShortcut.h"

#include <type_traits>

template class ddr_ShortcutImpl<kmaC_MaterialOptionList>;
template class ddr_Shortcut<kmaC_MaterialOptionList>;
template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MaterialOptionList, 1>;
template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MaterialOptionList, 2>;
template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MaterialOptionList, 3>;
template class ddr_SequenceShortcut<kmaC_MaterialOptionList, kmaC_MaterialOption, 1>;

namespace {

char const* const kmaListSource = "generated/module/kma/com/impl/kmaC_MatOptionListShortcut";

// What the test is made on is the base's constant and not the object's class: it fails for every
// object. What follows it is what the step would do.
template <class Option>
auto& RequireMullinsEffect(Option& option, char const* text) {
    using MullinsEffect =
        std::conditional_t<std::is_const_v<Option>, kmaC_MullinsEffect const, kmaC_MullinsEffect>;
    ddr_RequireOwner(kmaC_MaterialOption::TypeId(), {kmaC_MullinsEffect::TypeId()}, text,
                     kmaListSource, __LINE__);
    nex_canDynamicCastRef(kmaC_MullinsEffect::TypeId(), option.DynTypeId(), kmaListSource,
                          __LINE__);
    return static_cast<MullinsEffect&>(option);
}

constexpr char const* kmaNoUniaxial = "uniaxial tests exists only for Mullins Effect object.";
constexpr char const* kmaNoBiaxial = "biaxial tests exists only for Mullins Effect object.";
constexpr char const* kmaNoPlanar = "planar tests exists only for Mullins Effect object.";

}  // namespace

using Uniaxial = ddr_StepTraits<kmaC_UniaxialTestsListInMaterialOptionShortcut>;
using Biaxial = ddr_StepTraits<kmaC_BiaxialTestsListInMaterialOptionShortcut>;
using Planar = ddr_StepTraits<kmaC_PlanarTestsListInMaterialOptionShortcut>;

kmaC_MaterialOptionList const& Uniaxial::ConstGet(kmaC_MaterialOption const& option) {
    return RequireMullinsEffect(option, kmaNoUniaxial).uniaxialTests;
}
kmaC_MaterialOptionList& Uniaxial::Get(kmaC_MaterialOption& option) {
    return RequireMullinsEffect(option, kmaNoUniaxial).uniaxialTests;
}
kmaC_MaterialOptionList const& Biaxial::ConstGet(kmaC_MaterialOption const& option) {
    return RequireMullinsEffect(option, kmaNoBiaxial).biaxialTests;
}
kmaC_MaterialOptionList& Biaxial::Get(kmaC_MaterialOption& option) {
    return RequireMullinsEffect(option, kmaNoBiaxial).biaxialTests;
}
kmaC_MaterialOptionList const& Planar::ConstGet(kmaC_MaterialOption const& option) {
    return RequireMullinsEffect(option, kmaNoPlanar).planarTests;
}
kmaC_MaterialOptionList& Planar::Get(kmaC_MaterialOption& option) {
    return RequireMullinsEffect(option, kmaNoPlanar).planarTests;
}
