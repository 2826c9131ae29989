#pragma once

#include <filesystem>

#include "files/FileContents.h"
#include "files/FileCopy.h"

// How a file comes in among the recordings, by way of the folder "Inbox". Any thread; each takes as long as the disks
// need.

namespace tavi::importinbox {

/// Copies a file of the user's, which stays as it is, into a folder of its own below "Inbox", and takes it over from
/// there. 0 or an errno value, those of copyItem() among them: EEXIST where a recording has that name. With a failure
/// nothing has changed.
int bringIn(const std::filesystem::path& documents, const std::filesystem::path& file, const CopyWatch& watch = {});

/// Copies a file to the recordings under its own name, and then removes the whole folder that held it, if that lies in
/// "Inbox", also where the name was taken. "Inbox" itself goes only if nothing else is in it. Outside nothing goes,
/// wherever links and ".." lead. 0 or an errno value: EEXIST where the name was taken; after any other the file stays.
int takeOver(const std::filesystem::path& documents, const std::filesystem::path& file);

/// Whether bringIn() would refuse a file, as far as can be told at once: 0 or its errno value.
int refusal(const std::filesystem::path& documents, const std::filesystem::path& file);

/// Writes a new recording of that name, whole or not at all. 0 or an errno value: EEXIST where the name is taken,
/// EINVAL where no recording can have it.
int save(const std::filesystem::path& documents, const std::filesystem::path& name, const FileContents& data);

/// Removes the folders that bringIn() of processes that were killed has left. Those of others in "Inbox" stay.
void removeLeftovers(const std::filesystem::path& documents);

}  // namespace tavi::importinbox
