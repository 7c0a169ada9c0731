#pragma once

#include <QString>

namespace platform {

/// Shows \a address, which holds only characters that belong in an address, in the user's browser.
/// Returns at once; whether a browser opens is not found out.
void openWebAddress(const QString &address);

} // namespace platform
