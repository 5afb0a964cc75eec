// Results of modal forms.
#pragma once

namespace kestrel::addin {

inline constexpr int mrOk = 1;
inline constexpr int mrCancel = 2;

}  // namespace kestrel::addin
