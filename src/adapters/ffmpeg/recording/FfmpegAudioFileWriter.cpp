#include "adapters/ffmpeg/recording/FfmpegAudioFileWriter.h"

#include <unistd.h>

#include <algorithm>

#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "files/PathText.h"
#include "sound/mp4/Mp4Finalizer.h"

namespace tavi {

namespace {

/// A power cut loses at most five: these, what has not been flushed, and the time that the disk takes.
constexpr double kSecondsUntilSync = 3.5;

}  // namespace

Result<std::unique_ptr<AudioFileWriter>> FfmpegAudioFileWriters::create(const std::filesystem::path& path,
                                                                        const AudioRecordSettings& settings) {
    av_log_set_level(AV_LOG_QUIET);
    const Result<RecordingFormat> format = recordingFormat(path, settings);
    if (!format) {
        return tl::unexpected(format.error());
    }
    Result<std::unique_ptr<RecordingFile>> file = RecordingFile::create(path, m_pwrite, m_sync);
    if (!file) {
        return tl::unexpected(file.error());
    }
    Result<std::unique_ptr<AudioFileWriter>> writer = FfmpegAudioFileWriter::create(std::move(*file), *format);
    if (!writer) {
        ::unlink(path.c_str());
    }
    return writer;
}

FfmpegAudioFileWriter::FfmpegAudioFileWriter(std::unique_ptr<RecordingFile> file, const RecordingFormat& format,
                                             RecordingEncoder encoder)
    : m_file(std::move(file)), m_format(format), m_encoder(std::move(encoder)) {}

Result<std::unique_ptr<AudioFileWriter>> FfmpegAudioFileWriter::create(std::unique_ptr<RecordingFile> file,
                                                                       const RecordingFormat& format) {
    auto encoder = RecordingEncoder::create(format);
    if (!encoder) {
        return tl::unexpected(encoder.error());
    }
    std::unique_ptr<FfmpegAudioFileWriter> writer(
        new FfmpegAudioFileWriter(std::move(file), format, std::move(*encoder)));
    auto container = RecordingContainer::create(*writer->m_file, format, writer->m_encoder.context());
    if (!container) {
        return tl::unexpected(container.error());
    }
    writer->m_container = std::move(*container);
    return writer;
}

Result<void> FfmpegAudioFileWriter::setInputFormat(const AudioInputFormat& format) {
    if (m_converter) {
        return fail({QStringLiteral("The shape of the sound was given twice.")});
    }
    Result<SampleConverter> converter = SampleConverter::create(format, m_format);
    if (!converter) {
        return fail(converter.error());
    }
    m_channelsIn = format.channels;
    m_converter = std::move(*converter);
    return {};
}

Result<void> FfmpegAudioFileWriter::write(const float* interleaved, std::size_t frames) {
    if (m_failure) {
        return tl::unexpected(*m_failure);
    }
    if (!m_converter || m_finished) {
        return fail({QStringLiteral("Sound came before its shape was known or after the end.")});
    }
    while (frames > 0) {
        const int count = static_cast<int>(std::min<std::size_t>(frames, SampleConverter::kMaximumFrames));
        int offered = count;
        std::uint8_t* planes[AV_NUM_DATA_POINTERS] = {};
        for (int taken = 1; taken > 0; offered = 0) {
            const int capacity = m_encoder.room(planes);
            taken = m_converter->convert(interleaved, offered, planes, capacity);
            if (const Result<void> result = take(taken); !result) {
                return fail(result.error());
            }
        }
        interleaved += static_cast<std::ptrdiff_t>(count) * m_channelsIn;
        frames -= static_cast<std::size_t>(count);
        if (m_file->error() != 0) {
            return fail({QString::fromStdString(writeErrorText(m_file->error()))});
        }
    }
    return {};
}

Result<void> FfmpegAudioFileWriter::flush() {
    return keep(static_cast<double>(m_encoder.frames() - m_framesSynced) >= kSecondsUntilSync * m_format.sampleRate);
}

Result<void> FfmpegAudioFileWriter::pause() {
    const Result<void> result = m_failure ? Result<void>() : m_encoder.encodeShort(*m_container);
    return result ? keep(true) : fail(result.error());
}

Result<void> FfmpegAudioFileWriter::sync() {
    Result<void> result = pause();
    m_file->waitForSync();
    return result;
}

Result<void> FfmpegAudioFileWriter::keep(bool isSyncDue) {
    if (m_failure) {
        return tl::unexpected(*m_failure);
    }
    m_container->flush();
    if (m_file->error() != 0) {
        return fail({QString::fromStdString(writeErrorText(m_file->error()))});
    }
    if (isSyncDue) {
        m_framesSynced = m_encoder.frames();
        m_file->beginSync();
    }
    return {};
}

Result<void> FfmpegAudioFileWriter::take(int frames) {
    if (frames < 0) {
        return failure(QStringLiteral("The sound could not be converted: ") + avErrorText(frames));
    }
    return m_encoder.take(frames, *m_container);
}

Result<void> FfmpegAudioFileWriter::drain() {
    if (!m_converter) {
        return {};
    }
    const std::int64_t end = m_converter->expectedFrames();
    Result<void> result;
    for (bool isEmpty = false; result && m_encoder.frames() < end;) {
        std::uint8_t* planes[AV_NUM_DATA_POINTERS] = {};
        int count = static_cast<int>(std::min<std::int64_t>(m_encoder.room(planes), end - m_encoder.frames()));
        const int drained = isEmpty ? 0 : m_converter->drain(planes, count);
        if (drained == 0) {
            // The resampler can come out short by a frame.
            isEmpty = true;
            m_encoder.silence(count);
        } else {
            count = drained;
        }
        result = take(count);
    }
    return result ? m_encoder.finish(*m_container) : result;
}

Result<void> FfmpegAudioFileWriter::finish() {
    if (m_finished) {
        return {};
    }
    m_finished = true;
    Result<void> result;
    if (!m_file->isBroken()) {
        result = drain();
    }
    m_container->close();
    // What follows has to do with whatever room there is.
    m_file->releaseReserve();
    if (m_format.isFragmented) {
        const Result<void> finalized = resultOf(finalizeMp4(m_file->fd(), m_file->pwrite()));
        result = result ? finalized : result;
    }
    if (m_file->isBroken()) {
        result = failure(QString::fromStdString(writeErrorText(m_file->error())));
    }
    if (const int error = m_file->sync(); error != 0 && result) {
        result = failure(QString::fromStdString(writeErrorText(error)));
    }
    m_container.reset();
    m_file.reset();
    // What write() has said already is not said again.
    return m_failure ? Result<void>() : result;
}

Result<void> FfmpegAudioFileWriter::fail(const Error& error) {
    m_failure = error;
    return tl::unexpected(error);
}

}  // namespace tavi
