#include "nga_Budget.h"

#include "nga_Error.h"

namespace nga {

void Budget::Exhausted() {
    throw Error(
        "the objects share parts level on level, too many times over to be told one by one");
}

}  // namespace nga
