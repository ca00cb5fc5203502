#include "kamC_BaselineCorrectionShortcut.h"

#include "kamC_EquallySpaced.h"
#include "kamC_Tabular.h"

namespace {

using InEquallySpaced = ddr_StepTraits<kamC_BaselineCorrectionInEquallySpacedShortcut>;
using InTabular = ddr_StepTraits<kamC_BaselineCorrectionInTabularShortcut>;
using InAmplitude = ddr_StepTraits<kamC_BaselineCorrectionInAmplitudeShortcut>;

template <class Amplitude, class Given>
auto& CastTo(Given& amplitude, int line) {
    nex_canDynamicCastRef(Amplitude::TypeId(), amplitude.DynTypeId(),
                          ddr_ShortcutBaseImpl::Source(), line);
    using Cast = std::conditional_t<std::is_const_v<Given>, Amplitude const, Amplitude>;
    return static_cast<Cast&>(amplitude);
}

}  // namespace

kamC_BaselineCorrection const& InEquallySpaced::ConstGet(kamC_Amplitude const& amplitude) {
    return CastTo<kamC_EquallySpaced>(amplitude, __LINE__).baselineCorrection.ConstGet();
}
kamC_BaselineCorrection& InEquallySpaced::Get(kamC_Amplitude& amplitude) {
    return CastTo<kamC_EquallySpaced>(amplitude, __LINE__).baselineCorrection.Get();
}
kamC_BaselineCorrection const& InTabular::ConstGet(kamC_Amplitude const& amplitude) {
    return CastTo<kamC_Tabular>(amplitude, __LINE__).baselineCorrection.ConstGet();
}
kamC_BaselineCorrection& InTabular::Get(kamC_Amplitude& amplitude) {
    return CastTo<kamC_Tabular>(amplitude, __LINE__).baselineCorrection.Get();
}
// Whatever is not tabular goes the way of the equally spaced, which refuses it.
kamC_BaselineCorrection const& InAmplitude::ConstGet(kamC_Amplitude const& amplitude) {
    return amplitude.DynTypeId() == kamC_Tabular::TypeId() ? InTabular::ConstGet(amplitude)
                                                           : InEquallySpaced::ConstGet(amplitude);
}
kamC_BaselineCorrection& InAmplitude::Get(kamC_Amplitude& amplitude) {
    return amplitude.DynTypeId() == kamC_Tabular::TypeId() ? InTabular::Get(amplitude)
                                                           : InEquallySpaced::Get(amplitude);
}

template class ddr_ShortcutImpl<kamC_BaselineCorrection>;
template class ddr_Shortcut<kamC_BaselineCorrection>;
template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 1>;
template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 2>;
template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 3>;
