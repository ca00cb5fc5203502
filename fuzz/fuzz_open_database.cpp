// Whatever bytes a file holds, opening it gives a model or one clear error, in bounded time and
// memory. The input is either the file itself or, to reach deeper, a list of changes to a good one.

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "DDB_NonGeometricAttributes.h"
#include "nga_Store.h"

namespace {

// Where the input starts so, records of five bytes follow: page, two of place, two of what is put
// there (the second only if the first is odd).
constexpr char const changesMark[] = "changes";

kmaC_MaterialContainer& Materials(ddr_Model& model) {
    return static_cast<kmaC_MaterialContainer&>(
        model.GetExtension(cow_String(ddr_Model::materialCmd())).GetValue());
}

std::string GoodFile(std::string const& path) {
    ddr_Model model(cow_String("good"));
    for (int i = 0; i < 12; ++i) {
        auto* elastic = new kmaC_Elastic;
        elastic->table = kmaC_MaterialTable(1 + i % 3, 2);
        if (i % 2) elastic->failStress = new kmaC_FailStress;
        auto* material = new kmaC_Material;
        material->description = cow_String("a material");
        material->elastic = elastic;
        if (i % 3) material->density = new kmaC_Density;
        Materials(model).Insert(cow_String(("m" + std::to_string(i)).c_str()), material);
    }
    nga::SaveModel(model, path);
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

struct World {
    World() {
        DDB_NonGeometricAttributes_initialize(count);
        std::string pattern = "/dev/shm/nga_fuzz_XXXXXX";
        if (!std::filesystem::is_directory("/dev/shm")) pattern = "/tmp/nga_fuzz_XXXXXX";
        if (!mkdtemp(pattern.data())) std::abort();
        folder = pattern;
        good = GoodFile(folder + "/good.nga");
        path = folder + "/input.nga";
    }
    ~World() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    int count = 0;
    std::string folder;
    std::string path;
    std::string good;
};

std::string Bytes(World const& world, std::uint8_t const* data, std::size_t size) {
    std::size_t const mark = std::strlen(changesMark);
    std::string input(reinterpret_cast<char const*>(data), size);
    if (input.compare(0, mark, changesMark) != 0) return input;
    std::string bytes = world.good;
    std::size_t constexpr page = 16384;
    for (std::size_t at = mark; at + 5 <= input.size(); at += 5) {
        std::uint8_t const* change = data + at;
        std::size_t const place =
            change[0] % (bytes.size() / page) * page + (change[1] | change[2] << 8) % page;
        bytes[place] = static_cast<char>(change[3]);
        if (change[3] & 1 && place + 1 < bytes.size())
            bytes[place + 1] = static_cast<char>(change[4]);
    }
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static World const world;
    std::string const bytes = Bytes(world, data, size);
    std::ofstream(world.path, std::ios::binary | std::ios::trunc) << bytes;
    try {
        nga::LoadModel(world.path);
    } catch (nga::StoreError const& error) {
        // The file and a cause.
        if (error.Path() != world.path || error.Cause().empty()) std::abort();
    }
    try {
        nga::ReadNamed(world.path, cow_String(ddr_Model::materialCmd()), cow_String("m7"),
                       kmaC_Material::TypeId());
    } catch (nga::StoreError const&) {
    }
    std::ifstream in(world.path, std::ios::binary);
    if (std::string(std::istreambuf_iterator<char>(in), {}) != bytes) std::abort();
    return 0;
}
