// [whole-program]
#include <DDB_NonGeometricAttributes.h>

#include <cstdio>

int main() {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    int result = 1;
    {
        kmaC_Material steel;
        steel.density = new kmaC_Density;
        steel.density.Get().table = kmaC_MaterialTable(1, 1);
        try {
            steel.AssertValid();  // the one row of the table is all zero
        } catch (nex_Exception const& failure) {
            std::printf("refused: %s\n", failure.UserReport().Text());
            steel.density.Get().table.MutableCell(0, 0) = 7850.0;
            steel.AssertValid();
            std::printf("density %g\n", steel.density.ConstGet().table.Cell(0, 0));
            result = 0;
        }
    }  // objects end before the library does
    DDB_NonGeometricAttributes_finalize(count);
    return result;
}
// [/whole-program]
