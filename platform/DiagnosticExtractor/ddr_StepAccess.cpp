#include "ddr_StepAccess.h"

#include "nex_TextException.h"

void ddr_RequireOwner(unsigned typeId, std::initializer_list<unsigned> owners, char const* text,
                      char const* file, int line) {
    for (unsigned owner : owners)
        if (typeId == owner) return;
    nex_TextException(atr_raw(text)).Throw(file, line);
}
