#include "os/ansi_code_page_win.h"

#include <windows.h>

#include "base/text.h"
#include "os/utf16_win.h"

namespace os {

AnsiCodePageWin::AnsiCodePageWin() : AnsiCodePageWin(GetACP()) {}
AnsiCodePageWin::AnsiCodePageWin(unsigned int codePage) : codePage_(codePage) {}

std::optional<std::string> AnsiCodePageWin::decodeExactly(std::string_view ansi) const {
  std::wstring wide(ansi.size(), L'\0');
  const int length =
      MultiByteToWideChar(codePage_, MB_ERR_INVALID_CHARS, ansi.data(), static_cast<int>(ansi.size()),
                          wide.data(), static_cast<int>(wide.size()));
  if (length <= 0) return std::nullopt;
  wide.resize(static_cast<std::size_t>(length));
  return FromWide(wide);
}

std::optional<std::string> AnsiCodePageWin::encodeExactly(std::string_view utf8) const {
  const std::wstring wide = ToWide(utf8);
  constexpr std::size_t kMostBytesOfAUnit = 4;
  std::string ansi(wide.size() * kMostBytesOfAUnit, '\0');
  // The UTF-8 code page knows no default character and reports broken pairs by a flag of its own.
  const bool utf8Page = codePage_ == CP_UTF8;
  BOOL lost = FALSE;
  const int length = WideCharToMultiByte(codePage_, utf8Page ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS,
                                         wide.data(), static_cast<int>(wide.size()), ansi.data(),
                                         static_cast<int>(ansi.size()), nullptr, utf8Page ? nullptr : &lost);
  if (length <= 0 || lost != FALSE) return std::nullopt;
  ansi.resize(static_cast<std::size_t>(length));
  return ansi;
}

std::size_t AnsiCodePageWin::characterLength(std::string_view ansi) const {
  if (codePage_ == CP_UTF8) return base::Utf8CharacterAt(ansi, 0).length;
  return IsDBCSLeadByteEx(codePage_, static_cast<BYTE>(ansi.front())) != FALSE ? 2 : 1;
}

}  // namespace os
