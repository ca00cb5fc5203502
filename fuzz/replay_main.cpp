// Runs a fuzz target on stored inputs: every file of the folders and files named on the command
// line. What a fuzzer once found stays found.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace {

bool Replay(std::filesystem::path const& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        return false;
    }
    std::vector<char> const bytes{std::istreambuf_iterator<char>(file),
                                  std::istreambuf_iterator<char>()};
    LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        std::filesystem::path const given(argv[i]);
        if (!std::filesystem::is_directory(given)) {
            if (!Replay(given)) return 1;
            ++replayed;
            continue;
        }
        for (auto const& entry : std::filesystem::directory_iterator(given)) {
            if (!Replay(entry.path())) return 1;
            ++replayed;
        }
    }
    std::printf("%d inputs replayed\n", replayed);
    // A corpus that is not there would pass without testing anything.
    return replayed > 0 ? 0 : 1;
}
