// The ANSI code page of this system.
#pragma once

#include "os/escaping_code_page.h"

namespace os {

class AnsiCodePageWin : public EscapingCodePage {
 public:
  AnsiCodePageWin();                                // the system's
  explicit AnsiCodePageWin(unsigned int codePage);  // one by its number (1252, 932, 65001)

 protected:
  std::optional<std::string> decodeExactly(std::string_view ansi) const override;
  std::optional<std::string> encodeExactly(std::string_view utf8) const override;
  std::size_t characterLength(std::string_view ansi) const override;

 private:
  unsigned int codePage_;
};

}  // namespace os
