#pragma once

#include "cloud/CloudDocuments.h"
#include "platform/DispatchQueues.h"

namespace tavi {

/// Saves a file as a cloud document of its name, without reading it into memory. Both must live until the program
/// ends. A file that cannot be opened completes with an error. Main thread.
void saveFileToCloud(CloudDocuments& cloud, DispatchQueues& queues, const std::filesystem::path& path,
                     CloudDocuments::DocumentCompletion completion = {});

/// Contents as a log says them: their text, or "(null)" where they are no UTF-8. Of long texts the beginning.
QString contentsText(const FileContents& contents);

/// Error as a log says it.
QString errorText(const CloudError& error);

}  // namespace tavi
