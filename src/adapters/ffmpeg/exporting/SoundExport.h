#pragma once

#include "adapters/ffmpeg/exporting/PacketExport.h"

namespace tavi {

/// Decodes a stretch, applies the volume and encodes it as AAC-LC into an M4A file that plays exactly the stretch: at
/// the sound's own rate where AAC has it, in mono or stereo, with 96 kbit/s a channel where the rate allows.
Result<void> exportSound(const ExportJob& job);

}  // namespace tavi
