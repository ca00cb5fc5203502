#include "kbpC_BeamProfileDescriptionMap.h"

#include "kbpC_ArbitraryProfile.h"
#include "kbpC_BoxProfile.h"
#include "kbpC_CircularProfile.h"
#include "kbpC_GeneralizedProfile.h"
#include "kbpC_HexagonalProfile.h"
#include "kbpC_IbeamProfile.h"
#include "kbpC_LbeamProfile.h"
#include "kbpC_PipeProfile.h"
#include "kbpC_RectangularProfile.h"
#include "kbpC_TbeamProfile.h"
#include "kbpC_TrapezoidalProfile.h"

// What stands behind a backslash and an at sign tells a translator the context; catalogues know
// this one by the spelling that it has.
// clang-format off
kbpC_BeamProfileDescriptionMap::kbpC_BeamProfileDescriptionMap() {
    Insert(kbpC_GeneralizedProfile::TypeId(), atr_raw("Generalized"), "Generalized");
    Insert(kbpC_PipeProfile::TypeId(), atr_raw("Pipe"), "Pipe");
    Insert(kbpC_BoxProfile::TypeId(), atr_raw("Box"), "Box");
    Insert(kbpC_IbeamProfile::TypeId(), atr_raw("I"), "I");
    Insert(kbpC_LbeamProfile::TypeId(), atr_raw("L"), "L");
    Insert(kbpC_TbeamProfile::TypeId(), atr_raw("T"), "T");
    Insert(kbpC_CircularProfile::TypeId(), atr_raw("Circular"), "Circular");
    Insert(kbpC_RectangularProfile::TypeId(), atr_raw("Rectangular\\@RECTAGULAR_BEAM_PROFILE"), "Rectangular\\@RECTAGULAR_BEAM_PROFILE");
    Insert(kbpC_HexagonalProfile::TypeId(), atr_raw("Hexagonal"), "Hexagonal");
    Insert(kbpC_TrapezoidalProfile::TypeId(), atr_raw("Trapezoidal"), "Trapezoidal");
    Insert(kbpC_ArbitraryProfile::TypeId(), atr_raw("Arbitrary"), "Arbitrary");
}
// clang-format on
