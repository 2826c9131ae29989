#pragma once

#include "files/FileError.h"
#include "files/PositionedIo.h"

namespace tavi {

/// Turns the fragmented MP4 or M4A file of a recording into an ordinary one, in place: with exact lengths in its header
/// and with tables to seek by. Works on the files of interrupted recordings too; fragments that are cut off
/// or make no sense are dropped.
///
/// The new movie header is appended first, while the file is still read by its old one. Then one small write turns the
/// old header into the start of a media data box that reaches over all fragments up to the new header. Before that
/// write the file is a whole fragmented one, after it a whole ordinary one: an interruption loses nothing, and running
/// this again completes it. Where the disk has no room for the new header the file stays fragmented, and readable.
///
/// Does nothing to an ordinary MP4 file. Fails, without changing it, on a file that it does not understand: one with
/// several tracks, without a fragment that makes sense, or none of MPEG-4. The descriptor must be open for reading and
/// writing. Its memory does not grow with the file. Any thread; nobody else may write to the file.
FileResult<void> finalizeMp4(int fd, const PwriteFunction& pwrite = systemPwrite(),
                             const SyncFunction& sync = systemSync());

}  // namespace tavi
