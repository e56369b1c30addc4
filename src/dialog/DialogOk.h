// What OK does: from the dialog's state to a load, and back to the dialog if that is refused.
#pragma once

namespace quorvia::quorutildataio {

/// The dialog's OK callback. It hides the dialog and loads; whatever is refused, a check, a
/// question or the load, launches the dialog again, and the call returns when that launch has
/// ended.
void okPressed();

} // namespace quorvia::quorutildataio
