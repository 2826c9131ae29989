#pragma once

namespace tavi {

/// Lets screen readers hear of Qt Quick's items what Qt leaves out: that a control is disabled or has the keyboard, the
/// range of whatever has the properties "from", "to" and "value", and that nothing lies in an item whose property
/// "covered" is true, as it lies behind something else. Once, on the main thread, before the first window.
void installAccessibleItems();

}  // namespace tavi
