// Headers of model files against nlohmann-json, which parses them to a tree only.

#include "Ratio.h"
#include "safetensors/JsonParser.h"
#include "safetensors/SafetensorsFile.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// Memory that is returned to the system between two runs would be mapped again page by page, which depends on
// the order of releases and takes as long as the parsing.
[[maybe_unused]] const bool memoryIsKept = [] {
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
#endif
    return true;
}();

// Names and shapes as in a diffusion model, sorted as the format's usual writers leave them.
std::string modelHeader(std::size_t tensors) {
    std::string text = R"({"__metadata__":{"format":"pt","modelspec.title":"bench"})";
    std::uint64_t offset = 0;
    for (std::size_t i = 0; i < tensors; ++i) {
        const std::string begin = std::to_string(offset);
        offset += std::uint64_t{320} * 4 * 3 * 3 * 2;
        text += ",\"model.diffusion_model.input_blocks." + std::to_string(1000000 + i) +
                ".1.transformer_blocks.0.attn1.to_q.weight\":{\"dtype\":\"F16\",\"shape\":[320,4,3,3],"
                "\"data_offsets\":[" +
                begin + "," + std::to_string(offset) + "]}";
    }
    return text + "}";
}

std::vector<std::uint8_t> fileStart(const std::string& header) {
    std::vector<std::uint8_t> bytes;
    for (int shift = 0; shift < 64; shift += 8)
        bytes.push_back(static_cast<std::uint8_t>(std::uint64_t{header.size()} >> shift));
    bytes.insert(bytes.end(), header.begin(), header.end());
    return bytes;
}

void setBytes(benchmark::State& state, const std::string& text) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(text.size()));
}

void jsonTree(benchmark::State& state) {
    const std::string text = modelHeader(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        const char* cursor = text.c_str();
        JsonValue value;
        if (jsonParse(cursor, value) != JsonError::NoError)
            state.SkipWithError("the header does not parse");
        benchmark::DoNotOptimize(value);
    }
    setBytes(state, text);
}
// The last size is just below the limit of 100 MiB: time per byte is to stay.
BENCHMARK(jsonTree)->Arg(5000)->Arg(50000)->Arg(600000)->Unit(benchmark::kMillisecond);

void sparseFileOf100GB(benchmark::State& state) {
    const auto path = std::filesystem::temp_directory_path() / "tessarine_sparse_bench.safetensors";
    const std::vector<std::uint8_t> start = fileStart(modelHeader(5000));
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(start.data()), static_cast<std::streamsize>(start.size()));
    std::error_code error;
    std::filesystem::resize_file(path, 100'000'000'000, error);
    for (auto _ : state) {
        SafetensorsData data;
        std::uint64_t dataSize = 0;
        std::string warn;
        std::string err;
        if (error || !readSafetensorsHeader(path.string(), data, dataSize, warn, err))
            state.SkipWithError("no sparse file");
        benchmark::DoNotOptimize(data);
    }
    std::filesystem::remove(path);
}
BENCHMARK(sparseFileOf100GB)->Unit(benchmark::kMillisecond);

void requireEqual(const SafetensorsData& ours, const nlohmann::json& other) {
    if (ours.tensors.size() + 1 != other.size())
        qFatal("different tensors");
    for (std::size_t i = 0; i < ours.tensors.size(); ++i) {
        const TensorInfo& tensor = *ours.tensors.at(i);
        const nlohmann::json& entry = other.at(ours.tensors.keys()[i]);
        if (tensor.dtype != DType::Float16 || entry.at("dtype") != "F16" ||
            entry.at("shape") != nlohmann::json(tensor.shape) ||
            entry.at("data_offsets") != nlohmann::json{tensor.dataOffsets.begin, tensor.dataOffsets.end})
            qFatal("different tensors");
    }
}

void header(std::size_t tensors) {
    const std::string text = modelHeader(tensors);
    const std::vector<std::uint8_t> bytes = fileStart(text);
    const auto ours = [&] {
        SafetensorsData data;
        std::string warn;
        std::string err;
        if (!parseSafetensorsHeader(bytes.data(), bytes.size(), data, warn, err))
            qFatal("%s", err.c_str());
        return data;
    };
    const auto bound = [&] { return nlohmann::json::parse(text); };
    Ratio::report(
        QString("header of %1 tensors").arg(tensors), [&] { (void)ours(); }, [&] { (void)bound(); });
    requireEqual(ours(), bound());
}

} // namespace

int main(int argc, char* argv[]) {
    Ratio::header();
    for (const std::size_t tensors : {5000, 50000, 600000})
        header(tensors);
    std::printf("\n");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
