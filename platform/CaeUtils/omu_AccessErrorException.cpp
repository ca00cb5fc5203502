#include "omu_AccessErrorException.h"

#include "atr_translate.h"
#include "mdl_TypeIds.h"

omu_AccessErrorException::omu_AccessErrorException(cow_String const& key)
    : key_(key), uid_(cls_Uid::AllocateUid()) {}
omu_AccessErrorException::~omu_AccessErrorException() = default;

std::uint32_t omu_AccessErrorException::TypeId() { return omu_AccessErrorExceptionType; }
std::uint32_t omu_AccessErrorException::DynTypeId() const { return TypeId(); }

void omu_AccessErrorException::Propagate() const { throw omu_AccessErrorException(*this); }

nex_Exception* omu_AccessErrorException::Copy() const {
    return new omu_AccessErrorException(*this);
}

atr_String omu_AccessErrorException::JournalMessage() const {
    // A key is somebody's name for a thing: it goes around the translation, not through it.
    atr_translate text("%s");
    atr_SubstituteFormat(text, 1, key_.Text());
    return text.Result();
}

cow_String omu_AccessErrorException::PythonType() const { return cow_String("KeyError"); }
