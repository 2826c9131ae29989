#include "app/cli/List.h"

#include <QJsonArray>
#include <QJsonObject>

#include "app/cli/Json.h"
#include "files/PathText.h"
#include "library/RecordingLister.h"
#include "library/RecordingOrder.h"

namespace tavi {

namespace {

QByteArray recordingsJson(const std::vector<RecordingEntry>& recordings) {
    QJsonArray array;
    for (const RecordingEntry& entry : recordings) {
        QJsonObject object;
        for (const QLatin1String key : {entrykey::kFilename, entrykey::kSize, entrykey::kFilesize, entrykey::kModdate,
                                        entrykey::kExtension, entrykey::kDuration}) {
            object.insert(key, entry.value(key));
        }
        array.append(object);
    }
    return jsonText(array);
}

/// A line a recording.
QByteArray recordingsText(const std::vector<RecordingEntry>& recordings) {
    QByteArray text;
    for (const RecordingEntry& entry : recordings) {
        const QStringList parts{lineText(entry.value(entrykey::kFilename)), entry.value(entrykey::kFilesize),
                                entry.value(entrykey::kDuration), entry.value(entrykey::kModdate)};
        text += parts.join(QLatin1Char('\t')).toUtf8() + '\n';
    }
    return text;
}

}  // namespace

Result<QByteArray> run(const ListOptions& options, const CommandServices& services) {
    RecordingLister lister(services.durations, services.runLoop);
    auto recordings = lister.list(services.container.documentsPath(), RecordingLister::Lengths::Measured);
    sortRecordings(recordings, services.suites.launched().sort());
    return options.json ? recordingsJson(recordings) : recordingsText(recordings);
}

}  // namespace tavi
