#pragma once

#include <optional>
#include <stop_token>

namespace tavi {

/// Seconds of sound, from the file's own headers, in an MP4 file (ISO/IEC 14496-12: by its edit list, or its
/// fragments), a WAV or RF64 file of linear PCM (EBU Tech 3306), a CAF file (Apple Core Audio Format 1.0), or an ADTS
/// stream (ISO/IEC 13818-7, 6.2; every frame header is read, as the stream has no length). Lengths that reach behind
/// the end of the file are cut there. Nothing for other files, for those that say too little about themselves, and as
/// soon as the stop is asked for.
std::optional<double> headerDuration(int fd, const std::stop_token& stop = {});

}  // namespace tavi
