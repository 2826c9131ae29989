#include "adapters/ffmpeg/converting/FfmpegAudioTempo.h"

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/channel_layout.h>
}

#include <algorithm>
#include <cstring>

#include "adapters/ffmpeg/AvHandles.h"

namespace tavi {

namespace {

struct GraphDeleter {
    void operator()(AVFilterGraph* graph) const { avfilter_graph_free(&graph); }
};
using Graph = std::unique_ptr<AVFilterGraph, GraphDeleter>;

tl::unexpected<Error> tempoFailure(int code) {
    return failure(QStringLiteral("The tempo cannot be changed: ") + avErrorText(code));
}

class FfmpegAudioTempo : public AudioTempo {
public:
    FfmpegAudioTempo(int sampleRate, int channels)
        : m_sampleRate(sampleRate), m_channels(channels), m_frame(av_frame_alloc()) {}

    Result<void> reset(double rate) override {
        av_frame_unref(m_frame.get());
        m_taken = 0;
        m_graph.reset(avfilter_graph_alloc());
        // A thread of the filter's own would only take turns with this one.
        m_graph->nb_threads = 1;
        const char* layout = m_channels == 1 ? "mono" : "stereo";
        const QByteArray source = QByteArray("sample_fmt=flt:time_base=1/") + QByteArray::number(m_sampleRate) +
                                  ":sample_rate=" + QByteArray::number(m_sampleRate) + ":channel_layout=" + layout;
        AVFilterContext* tempo = nullptr;
        int code = add("abuffer", source, m_source);
        if (code >= 0) {
            code = add("atempo", "tempo=" + QByteArray::number(rate, 'g', 10), tempo);
        }
        if (code >= 0) {
            code = add("abuffersink", QByteArray(), m_sink);
        }
        if (code >= 0) {
            code = avfilter_link(m_source, 0, tempo, 0);
        }
        if (code >= 0) {
            code = avfilter_link(tempo, 0, m_sink, 0);
        }
        if (code >= 0) {
            code = avfilter_graph_config(m_graph.get(), nullptr);
        }
        return code < 0 ? tempoFailure(code) : Result<void>();
    }

    Result<void> push(const float* interleaved, std::size_t frames) override {
        const AvFrame frame(av_frame_alloc());
        frame->format = AV_SAMPLE_FMT_FLT;
        frame->sample_rate = m_sampleRate;
        frame->nb_samples = static_cast<int>(frames);
        av_channel_layout_default(&frame->ch_layout, m_channels);
        int code = av_frame_get_buffer(frame.get(), 0);
        if (code >= 0) {
            std::memcpy(frame->data[0], interleaved, bytes(frames));
            code = av_buffersrc_add_frame(m_source, frame.get());
        }
        return code < 0 ? tempoFailure(code) : Result<void>();
    }

    Result<void> finish() override {
        const int code = av_buffersrc_add_frame(m_source, nullptr);
        return code < 0 ? tempoFailure(code) : Result<void>();
    }

    std::size_t take(float* interleaved, std::size_t capacity) override {
        std::size_t taken = 0;
        while (taken < capacity && fetch()) {
            const std::size_t count =
                std::min(capacity - taken, static_cast<std::size_t>(m_frame->nb_samples) - m_taken);
            std::memcpy(interleaved + taken * static_cast<std::size_t>(m_channels), m_frame->data[0] + bytes(m_taken),
                        bytes(count));
            taken += count;
            m_taken += count;
        }
        return taken;
    }

private:
    std::size_t bytes(std::size_t frames) const {
        return frames * static_cast<std::size_t>(m_channels) * sizeof(float);
    }
    int add(const char* filter, const QByteArray& arguments, AVFilterContext*& context) {
        return avfilter_graph_create_filter(&context, avfilter_get_by_name(filter), nullptr, arguments.constData(),
                                            nullptr, m_graph.get());
    }
    /// Whether there is something in the frame that has not been taken.
    bool fetch() {
        if (m_frame->nb_samples > 0 && m_taken < static_cast<std::size_t>(m_frame->nb_samples)) {
            return true;
        }
        av_frame_unref(m_frame.get());
        m_taken = 0;
        return av_buffersink_get_frame(m_sink, m_frame.get()) >= 0 && m_frame->nb_samples > 0;
    }

    const int m_sampleRate;
    const int m_channels;
    Graph m_graph;
    AVFilterContext* m_source = nullptr;
    AVFilterContext* m_sink = nullptr;
    AvFrame m_frame;
    std::size_t m_taken = 0;
};

}  // namespace

Result<std::unique_ptr<AudioTempo>> FfmpegAudioTempos::create(int sampleRate, int channels) {
    if (sampleRate < 1 || channels < 1 || channels > 2) {
        return failure(QStringLiteral("The tempo of such sound cannot be changed."));
    }
    return std::make_unique<FfmpegAudioTempo>(sampleRate, channels);
}

}  // namespace tavi
