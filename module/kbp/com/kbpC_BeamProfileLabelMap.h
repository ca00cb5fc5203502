#pragma once

#include "omi_Singleton.h"
#include "uti_TranslationMap.h"

/// The names of the profiles' classes in lists of a dialog.
class kbpC_BeamProfileLabelMap : public uti_TranslationMap,
                                 public omi_Singleton<kbpC_BeamProfileLabelMap> {
private:
    friend omi_Singleton<kbpC_BeamProfileLabelMap>;
    kbpC_BeamProfileLabelMap();
};
