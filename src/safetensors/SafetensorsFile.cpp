#include "safetensors/SafetensorsFileHeader.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <limits>
#include <new>

#ifdef _WIN32
#define NOMINMAX
#include <windows.h>
#endif

namespace {

#ifdef _WIN32
// Empty for a path that is no UTF-8, which then fails to open.
std::filesystem::path nativeModelPath(const std::string& path) {
    const auto convert = [&path](wchar_t* out, int size) {
        return MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(), static_cast<int>(path.size()),
                                   out, size);
    };
    std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(wide.data(), static_cast<int>(wide.size()));
    return wide;
}
#else
std::filesystem::path nativeModelPath(const std::string& path) {
    return path;
}
#endif

bool openModelFile(std::ifstream& stream, const std::string& path, std::string& err) {
    stream.open(nativeModelPath(path), std::ios::binary);
    if (!stream)
        err += "File open error : " + path + "\n";
    return stream.is_open();
}

bool failModelRead(const std::string& path, std::string& err) {
    err += "File read error. Maybe empty file or invalid file : " + path + "\n";
    return false;
}

// Leaves the stream at its start.
bool measureStream(std::istream& stream, const std::string& path, std::uint64_t& size, std::string& err) {
    stream.peek();
    if (!stream)
        return failModelRead(path, err);
    stream.seekg(0, std::ios::end);
    const std::streamoff end = stream.tellg();
    stream.clear();
    stream.seekg(0, std::ios::beg);
    if (end < 0)
        err += "Invalid file size : " + path + " (does the path point to a directory?)";
    else if (end == 0)
        err += "File is empty : " + path + "\n";
    else if (end == std::numeric_limits<std::int64_t>::max())
        err += "Invalid file size : " + path + "\n";
    size = end < 0 ? 0 : static_cast<std::uint64_t>(end);
    return end > 0 && end != std::numeric_limits<std::int64_t>::max();
}

bool readModelBytes(std::istream& stream, void* out, std::uint64_t count) {
    stream.read(static_cast<char*>(out), static_cast<std::streamsize>(count));
    return static_cast<std::uint64_t>(stream.gcount()) == count;
}

} // namespace

bool readWholeFile(const std::string& path, std::vector<std::uint8_t>& out, std::string& err) {
    std::ifstream stream;
    return openModelFile(stream, path, err) && readWholeStream(stream, path, out, err);
}

bool readWholeStream(std::istream& stream, const std::string& path, std::vector<std::uint8_t>& out,
                     std::string& err) {
    std::uint64_t size = 0;
    if (!measureStream(stream, path, size, err))
        return false;
    try {
        out.resize(size);
    } catch (const std::exception&) { // more than the memory holds
        err += "Invalid file size : " + path + "\n";
        return false;
    }
    return readModelBytes(stream, out.data(), size) || failModelRead(path, err);
}

bool readSafetensorsHeader(const std::string& path, SafetensorsData& out, std::uint64_t& dataSize,
                           std::string& warn, std::string& err) {
    std::ifstream stream;
    return openModelFile(stream, path, err) && readSafetensorsHeader(stream, path, out, dataSize, warn, err);
}

bool readSafetensorsHeader(std::istream& stream, const std::string& path, SafetensorsData& out,
                           std::uint64_t& dataSize, std::string& warn, std::string& err) {
    std::uint64_t fileSize = 0;
    if (!measureStream(stream, path, fileSize, err))
        return false;
    // The header parser says itself what it thinks of too small a file.
    std::array<std::uint8_t, safetensorsSmallestFile> start{};
    if (fileSize < start.size())
        return parseSafetensorsHeader(start.data(), fileSize, out, warn, err);
    std::uint64_t headerSize = 0;
    if (!readModelBytes(stream, start.data(), safetensorsPrefixSize))
        return failModelRead(path, err);
    if (!readHeaderSize(start.data(), fileSize, headerSize, err))
        return false;
    std::string text(headerSize, '\0');
    if (!readModelBytes(stream, text.data(), headerSize))
        return failModelRead(path, err);
    if (!parseHeaderText(text, out, err))
        return false;
    out.headerSize = headerSize;
    dataSize = fileSize - safetensorsPrefixSize - headerSize;
    return true;
}
