#include <DDB_NonGeometricAttributes.h>

#include <cstdio>

// A missing key gives a reference to null, which a caller recognises by its address. A compiler may
// assume that no reference has that address, unless the package tells it otherwise.

namespace {

#if defined(__clang__)
#pragma clang diagnostic ignored "-Wtautological-undefined-compare"
#elif defined(__GNUC__)
#pragma GCC diagnostic ignored "-Waddress"
#endif

bool IsThere(kmaC_Material const& material) { return &material != nullptr; }

}  // namespace

int main() {
    kmaC_MaterialContainer materials;
    materials.Insert("steel", kmaC_Material());
    std::printf("steel %d, gold %d\n", IsThere(materials.ConstGet("steel")),
                IsThere(materials.ConstGet("gold")));
}
