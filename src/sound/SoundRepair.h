#pragma once

#include "files/FileError.h"
#include "files/PositionedIo.h"

namespace tavi {

/// Completes, in place, the file of a recording whose program or machine stopped: what the file holds counts, not its
/// name. True when it holds sound, false when it holds none.
///
/// - WAV: the lengths in the header, as RF64 (EBU Tech 3306) from 4 GiB on; whole frames, in an even number of bytes.
/// - CAF (Apple Core Audio Format 1.0): the length of the data, in whole packets.
/// - ADTS (ISO/IEC 13818-7, 6.2): what stands behind the last whole frame is cut off.
/// - MP4 in fragments: finalizeMp4(), which drops a fragment that is not whole. Where the disk has no room for a movie
///   header the file stays in fragments, and readable.
///
/// Zeros at the end, which a file system leaves where data did not reach the disk before a power cut, are cut off: up
/// to ten seconds of them in WAV and CAF, since silence can look the same.
///
/// Files that are whole, or of another kind, stay as they are; repeating it changes nothing. Fails when the file cannot
/// be written, and for one that cannot be understood though there is much in it. Reads headers, those of ADTS frames
/// all, and the end of the file. The descriptor must be open for reading and writing. Any thread; nobody else may write
/// to the file.
FileResult<bool> repairSound(int fd, const PwriteFunction& pwrite = systemPwrite());

}  // namespace tavi
