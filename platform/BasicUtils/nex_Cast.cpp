#include "nex_Cast.h"

#include "atr_translate.h"
#include "nex_TextException.h"
#include "typ_ArchCompTable.h"

namespace {

// The text must hold the number of a type that no table names.
char const* nexTypeText(unsigned typeId, char (&number)[11]) {
    char const* const name = typ_ArchCompTable::GetName(typeId);
    if (*name != '\0') return name;
    char const* const digits = "0123456789abcdef";
    number[0] = '0';
    number[1] = 'x';
    for (int i = 0; i < 8; ++i) number[2 + i] = digits[(typeId >> (28 - 4 * i)) & 15];
    number[10] = '\0';
    return number;
}

}  // namespace

bool nex_canDynamicCastRef(unsigned targetType, unsigned dynamicType, char const* file, int line) {
    if (typ_ArchCompTable::IsParent(dynamicType, targetType)) return true;
    char dynamicNumber[11];
    char targetNumber[11];
    atr_translate message("Cannot cast %s to %s");
    atr_SubstituteFormat(message, 1, nexTypeText(dynamicType, dynamicNumber));
    atr_SubstituteFormat(message, 2, nexTypeText(targetType, targetNumber));
    nex_TextException(message.Result()).Throw(file, line);
}
