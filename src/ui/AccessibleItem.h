#pragma once

namespace tavi {

/// Lets screen readers hear of Qt Quick's items what Qt leaves out: that a control is disabled or has the keyboard, the
/// range of whatever has the properties "from", "to" and "value", that nothing lies in an item whose property
/// "covered" is true, as it lies behind something else, that one below an item whose property "untold" is true has no
/// words, values or actions, and what the properties "spokenRole" (a role of Accessible) and
/// "spokenChecked" say, for controls whose own role Qt would put in the place of Accessible.role once a reader comes.
/// Once, on the main thread, before the first window.
void installAccessibleItems();

}  // namespace tavi
