#pragma once

#include "kmaC_ConcreteCompressionDamage.h"
#include "kmaC_ConcreteCompressionHardening.h"
#include "kmaC_ConcreteTensionDamage.h"
#include "kmaC_ConcreteTensionStiffening.h"
#include "kmaC_MaterialOption.h"

/// Concrete as a plastic material whose stiffness is damaged, apart in tension and compression.
class kmaC_ConcreteDamagedPlasticity : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ConcreteDamagedPlasticity, kmaC_MaterialOption, 0x2380077, 205,
             "ConcreteDamagedPlasticity")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_ConcreteCompressionHardening, concreteCompressionHardening)
    DD_OPTION(kmaC_ConcreteTensionStiffening, concreteTensionStiffening)
    DD_OPTION(kmaC_ConcreteCompressionDamage, concreteCompressionDamage)
    DD_OPTION(kmaC_ConcreteTensionDamage, concreteTensionDamage)
    DD_END
};
