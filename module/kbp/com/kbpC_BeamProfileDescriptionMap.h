#pragma once

#include "omi_Singleton.h"
#include "uti_TranslationMap.h"

/// The names of the profiles' classes where one profile is described.
class kbpC_BeamProfileDescriptionMap : public uti_TranslationMap,
                                       public omi_Singleton<kbpC_BeamProfileDescriptionMap> {
private:
    friend omi_Singleton<kbpC_BeamProfileDescriptionMap>;
    kbpC_BeamProfileDescriptionMap();
};
