// A bare program that shows a filled full-screen window and ends at a key: what any show costs at least.
#pragma once

namespace bench {

int RunBareWindow();

// Class of the bare program's window.
inline constexpr const wchar_t* kBareWindowClass = L"LumoraBenchBareWindow";

}  // namespace bench
