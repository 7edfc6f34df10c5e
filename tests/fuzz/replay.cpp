// Replaces the fuzzer in the build of the tests: runs a target once on each file of a directory.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count);
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

int main(int argc, char** argv) {
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&argc, &argv);
    int replayed = 0;
    for (const auto& seed : std::filesystem::directory_iterator(argv[1])) {
        std::ifstream stream(seed.path(), std::ios::binary);
        const std::vector<char> input{std::istreambuf_iterator<char>(stream), {}};
        std::printf("%s\n", seed.path().c_str());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
        ++replayed;
    }
    return replayed > 0 ? 0 : 1;
}
