#pragma once

#include <vector>

#include "library/RecordingEntry.h"

namespace tavi {

// Codes of "Sort": a key's even code stands for ascending order, the odd one below it for descending.
inline constexpr int kSortNameAscending = 2;
inline constexpr int kSortDateAscending = 4;
inline constexpr int kSortSizeAscending = 6;

/// The key that a code of "Sort" sorts by; empty for what is no such code.
QString sortKeyOf(int code);

/// Sorts by the text under a key of RecordingEntry; entries with equal texts stay as they are to each other. What the
/// texts stand for does not count, on purpose: the order that users know has the day of the month first, and 10.5 MB
/// before 9 MB.
void sortRecordings(std::vector<RecordingEntry>& recordings, const QString& key, bool ascending);

/// Sorts as a code of "Sort" says; what is no such code leaves the order as it is.
void sortRecordings(std::vector<RecordingEntry>& recordings, int code);

}  // namespace tavi
