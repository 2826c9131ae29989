#include "library/RecordingFilterModel.h"

#include "library/RecordingListModel.h"

namespace tavi {

void RecordingFilterModel::setText(const QString& text) {
    if (text != m_text) {
        m_text = text;
        invalidateFilter();
    }
}

bool RecordingFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const {
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    return m_text.isEmpty() ||
           index.data(RecordingListModel::NameTextRole).toString().contains(m_text, Qt::CaseInsensitive);
}

}  // namespace tavi
