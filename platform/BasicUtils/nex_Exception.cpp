#include "nex_Exception.h"

#include <memory>
#include <typeinfo>

#include "atr_translate.h"
#include "cls_TypeIds.h"
#include "typ_ArchCompTable.h"

namespace {

// A failure during start comes before the tables are there; then the compiler's name has to do,
// whose plain form is the class's name behind its length.
char const* nexClassName(nex_Exception const& exception) {
    char const* name = typ_ArchCompTable::GetName(exception.DynTypeId());
    if (*name != '\0') return name;
    name = typeid(exception).name();
    while (*name >= '0' && *name <= '9') ++name;
    return name;
}

}  // namespace

nex_Exception::nex_Exception() : uid_(cls_Uid::AllocateUid()) {}
nex_Exception::~nex_Exception() = default;

std::uint32_t nex_Exception::TypeId() { return nex_ExceptionType; }
std::uint32_t nex_Exception::DynTypeId() const { return TypeId(); }

atr_String nex_Exception::UserReport() const { return AsString(); }

atr_String nex_Exception::DeveloperReport() const {
    atr_translate report("%s at %s:%d: %s");
    atr_SubstituteFormat(report, 1, nexClassName(*this));
    atr_SubstituteFormat(report, 2, site_.file ? site_.file : "");
    atr_SubstituteFormat(report, 3, site_.line);
    atr_SubstituteFormat(report, 4, AsString().Text());
    return report.Result();
}

void nex_Exception::Throw(char const* file, int line) {
    site_.file = file;
    site_.line = line;
    std::unique_ptr<nex_Exception const> const raised(Copy());
    raised->Propagate();
}
