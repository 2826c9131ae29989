// Opens what the fuzzer makes up with each of the readers of sound/, and has every writer write what they found.

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>

#include "files/FileDescriptor.h"
#include "files/PositionedIo.h"
#include "sound/HeaderDuration.h"
#include "sound/SoundRepair.h"
#include "sound/adts/AdtsStream.h"
#include "sound/alac/AlacDecoder.h"
#include "sound/caf/CafWriter.h"
#include "sound/caf/Ima4Cut.h"
#include "sound/caf/Ima4Source.h"
#include "sound/mp4/Mp4Finalizer.h"
#include "sound/mp4/Mp4MovieWriter.h"
#include "sound/mp4/Mp4PacketReader.h"
#include "sound/wav/WavSource.h"

namespace {

using tavi::FileDescriptor;
using Bytes = std::vector<std::uint8_t>;

void require(bool isTrue) {
    if (!isTrue) {
        std::abort();
    }
}

FileDescriptor again(const FileDescriptor& file) {
    return FileDescriptor(::fcntl(file.get(), F_DUPFD_CLOEXEC, 0));
}

Bytes contents(const FileDescriptor& file) {
    Bytes bytes(static_cast<std::size_t>(tavi::regularFileSize(file.get())));
    tavi::readFully(file.get(), bytes.data(), bytes.size(), 0);
    return bytes;
}

/// Reads from the start, the middle and the end, but not hours of it.
void readSource(tavi::SoundSource* source) {
    constexpr std::size_t kPiece = 1000;
    if (source == nullptr) {
        return;
    }
    const std::int64_t length = source->length();
    require(length >= 0 && source->format().channelsPerFrame > 0);
    std::vector<std::vector<float>> sound(source->format().channelsPerFrame, std::vector<float>(kPiece));
    std::vector<std::int16_t> samples(sound.size() * kPiece);
    std::vector<float*> planes;
    for (auto& plane : sound) {
        planes.push_back(plane.data());
    }
    for (const std::int64_t from : {std::int64_t{0}, length / 2, std::max<std::int64_t>(0, length - 3), length}) {
        source->seek(from);
        std::int64_t at = from;
        for (int pieces = 0; pieces < 20; ++pieces) {
            const bool isShort = source->has16Bits() && pieces % 2 == 0;
            const std::size_t count =
                isShort ? source->read16(samples.data(), kPiece) : source->read(planes.data(), kPiece);
            require(count <= kPiece);
            at += static_cast<std::int64_t>(count);
        }
        require(at <= length);
    }
}

void cutCaf(const FileDescriptor& file) {
    const auto header = tavi::readCafHeader(file.get());
    FileDescriptor copy = again(file);
    if (!header || !tavi::Ima4Source::open(copy)) {
        return;
    }
    tavi::cafHeaderLike(file.get(), tavi::CafPacketTable{}, 0);
    // The search for codes takes long: now and then is enough.
    constexpr int kNowAndThen = 16;
    const std::int64_t packets = header->dataBytes / header->packetBytes;
    if (packets % kNowAndThen == 0) {
        tavi::Ima4Cut cut(file.get(), *header, [] { return false; });
        const auto changed = cut.firstPackets(packets / 2);
        require(!changed || changed->size() % header->packetBytes == 0);
    }
}

void decodeLossless(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kFields = 6;
    if (size < kFields) {
        return;
    }
    Bytes cookie = {0, 0, 0, 36, 'a', 'l', 'a', 'c', 0, 0, 0, 0, 0, 0, data[0], data[1], 0, 16};
    cookie.insert(cookie.end(), data + 2, data + kFields);
    cookie.resize(36);
    auto decoder = tavi::AlacDecoder::create(cookie);
    Bytes packet(data + kFields, data + size);
    packet.resize(packet.size() + tavi::AlacDecoder::kPadding);
    if (decoder) {
        decoder->decode(std::span(packet).first(size - kFields));
    }
}

void readMp4(const FileDescriptor& file) {
    if (auto reader = tavi::Mp4PacketReader::open(file.get())) {
        auto decoder = tavi::AlacDecoder::create(reader->configuration());
        Bytes packet;
        for (const std::int64_t from : {std::int64_t{0}, std::int64_t{4096}}) {
            reader->seek(from);
            while (const auto found = reader->next()) {
                packet.assign(found->bytes.begin(), found->bytes.end());
                packet.resize(found->bytes.size() + tavi::AlacDecoder::kPadding);
                if (decoder) {
                    decoder->decode(std::span(packet).first(found->bytes.size()));
                }
            }
        }
        require(reader->seconds() >= 0);
    }
    const auto sound = tavi::Mp4Sound::open(file.get());
    if (!sound) {
        return;
    }
    // Only so many that tables of nothing do not take all the time.
    constexpr std::size_t kMost = 100000;
    std::vector<tavi::Mp4Sample> samples;
    sound->forEachPacket(sound->start(), 2, [&](std::int64_t, const tavi::Mp4Packet& packet) {
        samples.push_back({packet.size, packet.duration});
        return samples.size() < kMost;
    });
    const auto userData = sound->movie().readUserData(file.get());
    const tavi::Mp4Runs runs = tavi::mp4RunsOf(samples, 44);
    const auto totals = tavi::Mp4Totals::of(runs);
    std::size_t written = 0;
    tavi::writeMp4Movie({sound->timeScale(), sound->description().box(), userData, sound->start(), 1}, *totals, runs,
                        [&](std::span<const std::uint8_t> bytes) { written += bytes.size(); });
    require(written > samples.size() * 4);
}

void finalize(const FileDescriptor& file, const std::optional<double>& seconds) {
    const Bytes before = contents(file);
    if (tavi::finalizeMp4(file.get())) {
        const auto after = tavi::headerDuration(file.get());
        require(seconds.has_value() == after.has_value() && std::abs(seconds.value_or(0) - after.value_or(0)) < 1e-3);
        require(tavi::finalizeMp4(file.get()).has_value());
    } else {
        require(contents(file) == before);
    }
}

/// Completed once, a file stays as it is.
void repair(const FileDescriptor& file) {
    const auto hasSound = tavi::repairSound(file.get());
    if (hasSound) {
        const Bytes once = contents(file);
        const auto same = tavi::repairSound(file.get());
        require(same && *same == *hasSound && contents(file) == once);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FileDescriptor file(::memfd_create("sound", MFD_CLOEXEC));
    require(tavi::writeFully(tavi::systemPwrite(), file.get(), data, size, 0).error == 0);
    const auto seconds = tavi::headerDuration(file.get());
    require(!seconds || (*seconds >= 0 && std::isfinite(*seconds)));
    FileDescriptor wav = again(file);
    readSource(tavi::WavSource::open(wav).get());
    FileDescriptor caf = again(file);
    readSource(tavi::Ima4Source::open(caf).get());
    cutCaf(file);
    if (auto adts = tavi::AdtsPacketReader::open(file.get())) {
        adts->seek(adts->stream().blocks() / 2);
        while (adts->next()) {
        }
    }
    decodeLossless(data, size);
    readMp4(file);
    const FileDescriptor interrupted(::memfd_create("interrupted", MFD_CLOEXEC));
    require(tavi::writeFully(tavi::systemPwrite(), interrupted.get(), data, size, 0).error == 0);
    repair(interrupted);
    finalize(file, seconds);
    return 0;
}
