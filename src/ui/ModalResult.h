// Results of the modal forms.
#pragma once

namespace kestrel::addin {

/// Results of every modal form of the system.
inline constexpr int mrOk = 1;
inline constexpr int mrCancel = 2;

}  // namespace kestrel::addin
