#include "nex_Exception.h"

#include <cstdlib>
#include <memory>
#include <typeinfo>

#include "atr_translate.h"
#include "nex_TypeIds.h"
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

nex_Exception::nex_Exception() : m_uid(cls_Uid::AllocateUid()) {}
nex_Exception::~nex_Exception() = default;

unsigned nex_Exception::TypeId() { return nex_ExceptionTypeId; }
unsigned nex_Exception::DynTypeId() const { return TypeId(); }

atr_String nex_Exception::UserReport() const { return AsString(); }

atr_String nex_Exception::DeveloperReport() const {
    atr_translate report("%s at %s:%d: %s");
    atr_SubstituteFormat(report, 1, nexClassName(*this));
    atr_SubstituteFormat(report, 2, m_site.file ? m_site.file : "");
    atr_SubstituteFormat(report, 3, m_site.line);
    atr_SubstituteFormat(report, 4, AsString().Text());
    return report.Result();
}

void nex_Exception::Throw(char const* file, int line) {
    m_site.file = file;
    m_site.line = line;
    std::unique_ptr<nex_Exception const> const raised(Copy());
    raised->Propagate();
    std::abort();  // a class whose Propagate returns breaks every caller's contract
}
