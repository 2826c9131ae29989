// What a user would take instead of "tavi waveform": plain_waveform FILE POINTS reads the samples of a WAV file by
// itself, those of any other from FFmpeg's program, and prints the least and the greatest of each stretch in 8 bits.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// 16-bit or 8-bit samples, on one core, in one pass.
template <typename Sample>
void reduce(std::FILE* file, std::size_t samplesAPoint) {
    std::vector<Sample> block(samplesAPoint);
    std::printf("[");
    for (const char* comma = "";; comma = ",") {
        const std::size_t count = std::fread(block.data(), sizeof(Sample), block.size(), file);
        if (count == 0) {
            break;
        }
        const auto [least, greatest] =
            std::minmax_element(block.begin(), block.begin() + static_cast<std::ptrdiff_t>(count));
        constexpr int kShift = sizeof(Sample) == 2 ? 8 : 0;
        constexpr int kMiddle = sizeof(Sample) == 2 ? 0 : 128;
        std::printf("%s%d,%d", comma, (*least - kMiddle) >> kShift, (*greatest - kMiddle) >> kShift);
    }
    std::printf("]\n");
}

}  // namespace

int main(int argc, char** argv) {
    constexpr std::size_t kSeconds = 3600;
    if (argc != 3) {
        return EXIT_FAILURE;
    }
    const std::string path = argv[1];
    const std::size_t points = std::max<std::size_t>(1, std::strtoul(argv[2], nullptr, 10));
    if (std::string_view(path).ends_with(".wav")) {
        std::FILE* file = std::fopen(path.c_str(), "rb");
        std::array<std::uint8_t, 44> header{};
        if (file == nullptr || std::fread(header.data(), 1, header.size(), file) != header.size()) {
            return EXIT_FAILURE;
        }
        const std::size_t bytesASecond = header[28] | std::size_t{header[29]} << 8 | std::size_t{header[30]} << 16;
        reduce<std::uint8_t>(file, kSeconds * bytesASecond / points);
        std::fclose(file);
        return EXIT_SUCCESS;
    }
    const std::string command = "exec ffmpeg -v error -nostdin -i '" + path + "' -f s16le -";
    std::FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return EXIT_FAILURE;
    }
    reduce<std::int16_t>(pipe, kSeconds * 44100 * 2 / points);
    return pclose(pipe) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
