// Results of the modal forms.
#pragma once

/// Results of every modal form of the system.
inline constexpr int mrOk = 1;
inline constexpr int mrCancel = 2;
