// Repositories and materials: what copying, filling and checking cost, against a tree, against
// themselves at another size, and against plain structs of the same data.

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"
#include "ratio.h"

namespace {

cow_String Name(int number) {
    char text[32];
    std::snprintf(text, sizeof text, "Material-%06d", number);
    return cow_String(text);
}

// ---- copying and filling ---------------------------------------------------------------------

void CopyAndDrop(ratio::Table& table) {
    constexpr int copies = 20000;
    std::vector<double> times;
    for (int size : {1000, 100000, 1000000}) {
        kmaC_MaterialContainer repository;
        kmaC_Material const material;
        // One object under all names: its own size plays no part in a copy of what holds it.
        kmaC_MaterialContainer::Handle const shared(material.Copy());
        for (int i = 0; i < size; ++i) repository.GetMap().InsertUnlessMember(Name(i), shared);
        auto const ours = [&] {
            return ratio::Seconds([&] {
                for (int i = 0; i < copies; ++i) {
                    kmaC_MaterialContainer const copy(repository);
                    ratio::Keep(copy);
                }
            });
        };
        auto const tree = [&] {
            return ratio::Seconds([&] {
                for (int i = 0; i < copies; ++i) {
                    cow_Btree<cow_String, kmaC_MaterialContainer::Handle> const copy(
                        repository.ConstGetMap());
                    ratio::Keep(copy);
                }
            });
        };
        table.Row("copy and drop a repository of " + std::to_string(size) + ", against a tree", 10,
                  ours, tree, copies);
        times.push_back(ours());
    }
    table.Row(
        "the same, one million against one thousand", 1.5, [&] { return times[2]; },
        [&] { return times[0]; }, copies, 1);
}

double InsertNew(int count) {
    kmaC_MaterialContainer repository;
    kmaC_MaterialContainer::Handle const shared(kmaC_Material().Copy());
    std::vector<kmaC_Material*> fresh;
    std::vector<cow_String> names;
    for (int i = 0; i < count; ++i) {
        fresh.push_back(new kmaC_Material);
        names.push_back(Name(i));
    }
    return ratio::Seconds([&] {
        for (int i = 0; i < count; ++i)
            repository.Insert(names[static_cast<std::size_t>(i)],
                              fresh[static_cast<std::size_t>(i)]);
    });
}

// ---- checking and copying materials ----------------------------------------------------------

// The same data as five options, plainly.
struct PlainTable {
    int rows = 0;
    int columns = 0;
    std::vector<double> cells;
    bool allowEmptyFirstRow = false;

    bool IsValid() const {
        for (int row = 0; row < rows; ++row) {
            int column = 0;
            while (column < columns &&
                   cells[static_cast<std::size_t>(row * columns + column)] == 0.0)
                ++column;
            if (column == columns && columns > 0 && !(row == 0 && allowEmptyFirstRow)) return false;
        }
        return true;
    }
};
struct PlainOption {
    bool temperatureDependency = false;
    int dependencies = 0;
    PlainTable table;
};
struct PlainElastic : PlainOption {
    int type = 0;
    bool noCompression = false;
    bool noTension = false;
    int moduli = 1;
    std::optional<PlainOption> failStress;
    std::optional<PlainOption> failStrain;
};
struct PlainMaterial {
    std::unique_ptr<PlainElastic> elastic;
    std::unique_ptr<PlainOption> density;
    std::unique_ptr<PlainOption> conductivity;
    std::unique_ptr<PlainOption> specificHeat;
    std::unique_ptr<PlainOption> expansion;

    bool IsValid() const {
        if (conductivity && !(conductivity->dependencies >= 0 && conductivity->table.IsValid()))
            return false;
        if (density && !(density->dependencies >= 0 && density->table.IsValid())) return false;
        if (elastic && (!(!(elastic->noCompression && elastic->noTension)) ||
                        elastic->dependencies < 0 || !elastic->table.IsValid()))
            return false;
        if (expansion && expansion->dependencies < 0) return false;
        return !specificHeat || (specificHeat->dependencies >= 0 && specificHeat->table.IsValid());
    }
};

kmaC_MaterialTable Cells(double first, double second) {
    kmaC_MaterialTable table(1, 2);
    table.MutableCell(0, 0) = first;
    table.MutableCell(0, 1) = second;
    return table;
}

kmaC_Material FiveOptions() {
    kmaC_Material material;
    auto* elastic = new kmaC_Elastic;
    elastic->table = Cells(210e3, 0.3);
    material.elastic = elastic;
    auto* density = new kmaC_Density;
    density->table = Cells(7.85e-9, 20);
    material.density = density;
    auto* conductivity = new kmaC_Conductivity;
    conductivity->table = Cells(50, 20);
    material.conductivity = conductivity;
    auto* specificHeat = new kmaC_SpecificHeat;
    specificHeat->table = Cells(460, 20);
    material.specificHeat = specificHeat;
    auto* expansion = new kmaC_Expansion;
    expansion->table = Cells(1.2e-5, 20);
    material.expansion = expansion;
    return material;
}

void CheckMaterials(ratio::Table& table) {
    constexpr int count = 100000;
    PlainTable const cells{1, 2, {210e3, 0.3}, false};
    std::vector<kmaC_Material> materials;
    std::vector<PlainMaterial> plain;
    materials.reserve(count);
    for (int i = 0; i < count; ++i) {
        materials.push_back(FiveOptions());
        PlainMaterial& same = plain.emplace_back();
        same.elastic = std::make_unique<PlainElastic>();
        same.elastic->table = cells;
        for (auto* option :
             {&same.density, &same.conductivity, &same.specificHeat, &same.expansion}) {
            *option = std::make_unique<PlainOption>();
            (*option)->table = cells;
        }
    }
    table.Row(
        "check 100,000 materials of five options, against plain structs", ratio::forInformation,
        [&] {
            return ratio::Seconds([&] {
                for (kmaC_Material const& material : materials) material.AssertValid();
            });
        },
        [&] {
            return ratio::Seconds([&] {
                int valid = 0;
                for (PlainMaterial const& material : plain) valid += material.IsValid();
                ratio::Keep(valid);
            });
        },
        count);
}

void CopyFullMaterial(ratio::Table& table) {
    constexpr int copies = 20000;
    kmaC_Material full;
    mdl_Description const& description = kmaC_Material::Description();
    std::vector<std::shared_ptr<PlainOption>> plain;
    for (mdl_Field const& field : description.Fields()) {
        if (field.Type().Kind() != mdl_FieldKind::Option) continue;
        field.Type().Adopt(field.At(static_cast<void*>(&full)), field.Type().Held()->Create());
        plain.push_back(std::make_shared<PlainOption>());
    }
    std::printf("a material with %zu options\n", plain.size());
    table.Row(
        "copy and drop it, against a vector of as many shared pointers", ratio::forInformation,
        [&] {
            return ratio::Seconds([&] {
                for (int i = 0; i < copies; ++i) {
                    kmaC_Material const copy(full);
                    ratio::Keep(copy);
                }
            });
        },
        [&] {
            return ratio::Seconds([&] {
                for (int i = 0; i < copies; ++i) {
                    std::vector<std::shared_ptr<PlainOption>> const copy(plain);
                    ratio::Keep(copy);
                }
            });
        },
        copies);
}

}  // namespace

int main() {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    int missed = 0;
    {
        ratio::Table table(9);
        CopyAndDrop(table);
        table.Row(
            "insert 100,000 new names, against 10,000", 12, [] { return InsertNew(100000); },
            [] { return InsertNew(10000); }, 1, 7);
        CheckMaterials(table);
        CopyFullMaterial(table);
        missed = table.Missed();
    }
    DDB_NonGeometricAttributes_finalize(count);
    return missed ? 1 : 0;
}
