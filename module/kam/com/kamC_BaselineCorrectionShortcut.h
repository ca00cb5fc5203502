#pragma once

#include "kamC_AmplitudeContainerShortcut.h"
#include "kamC_BaselineCorrection.h"

// The shortcuts from an amplitude to its baseline correction. The first two are for one class of
// amplitude each and refuse every other; the third looks at what the amplitude is. A correction
// that is absent comes back as a reference to null when read, and when written to.

using kamC_BaselineCorrectionIMPLSC = ddr_ShortcutImpl<kamC_BaselineCorrection>;
using kamC_BaselineCorrectionShortcut = ddr_Shortcut<kamC_BaselineCorrection>;
using kamC_BaselineCorrectionInEquallySpacedShortcut =
    ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 1>;
using kamC_BaselineCorrectionInTabularShortcut =
    ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 2>;
using kamC_BaselineCorrectionInAmplitudeShortcut =
    ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 3>;

template <>
struct ddr_ShortcutTraits<kamC_BaselineCorrection> {
    static constexpr unsigned typeId = 0x2440012;
    static constexpr unsigned implTypeId = 0x2440015;
};
template <>
struct ddr_StepTraits<kamC_BaselineCorrectionInEquallySpacedShortcut> {
    static constexpr unsigned typeId = 0x2440013;
    static constexpr omn_FixedString Name() { return omn_FixedString("baselineCorrection"); }
    static kamC_BaselineCorrection const& ConstGet(kamC_Amplitude const& amplitude);
    static kamC_BaselineCorrection& Get(kamC_Amplitude& amplitude);
};
template <>
struct ddr_StepTraits<kamC_BaselineCorrectionInTabularShortcut> {
    static constexpr unsigned typeId = 0x2440014;
    static constexpr omn_FixedString Name() { return omn_FixedString("baselineCorrection"); }
    static kamC_BaselineCorrection const& ConstGet(kamC_Amplitude const& amplitude);
    static kamC_BaselineCorrection& Get(kamC_Amplitude& amplitude);
};
template <>
struct ddr_StepTraits<kamC_BaselineCorrectionInAmplitudeShortcut> {
    static constexpr unsigned typeId = 0x2440018;
    static constexpr omn_FixedString Name() { return omn_FixedString("baselineCorrection"); }
    static kamC_BaselineCorrection const& ConstGet(kamC_Amplitude const& amplitude);
    static kamC_BaselineCorrection& Get(kamC_Amplitude& amplitude);
};

extern template class ddr_ShortcutImpl<kamC_BaselineCorrection>;
extern template class ddr_Shortcut<kamC_BaselineCorrection>;
extern template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 1>;
extern template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 2>;
extern template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 3>;
