#include "platform/linux/WaveFile.h"

#include "platform/FileStore.h"

#include <algorithm>

namespace ondrilo {
namespace {

std::uint32_t LittleEndian(TextView bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return value;
}

} // namespace

std::optional<Milliseconds> LengthOfWave(const std::filesystem::path& file) {
    constexpr std::size_t kHeader = 12;
    constexpr std::size_t kChunkHeader = 8;
    constexpr std::size_t kByteRatePlace = 8;
    const auto content = ReadFile(file);
    TextView rest = content.bytes;
    if (!rest.starts_with("RIFF") || rest.size() < kHeader || rest.substr(8, 4) != "WAVE")
        return std::nullopt;
    rest.remove_prefix(kHeader);
    std::uint32_t bytesPerSecond = 0;
    while (rest.size() >= kChunkHeader) {
        const TextView name = rest.substr(0, 4);
        const std::uint64_t size = LittleEndian(rest.substr(4));
        rest.remove_prefix(kChunkHeader);
        if (name == "fmt " && rest.size() >= kByteRatePlace + 4)
            bytesPerSecond = LittleEndian(rest.substr(kByteRatePlace));
        if (name == "data" && bytesPerSecond > 0)
            return Milliseconds(std::min<std::uint64_t>(size, rest.size()) * 1000 / bytesPerSecond);
        rest.remove_prefix(std::min<std::uint64_t>(size + size % 2, rest.size())); // chunks are padded
    }
    return std::nullopt;
}

} // namespace ondrilo
