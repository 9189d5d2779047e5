// The system's message box and common dialogs.
#pragma once

#include <windows.h>

#include <functional>

#include "forms/dialogs.h"

namespace forms {

class DialogsWin : public Dialogs {
 public:
  // `owner` gives the window over which a dialog belongs; null for none.
  explicit DialogsWin(std::function<HWND()> owner) : owner_(std::move(owner)) {}

  Answer messageBox(const std::string& text, std::uint32_t style) override;
  std::optional<std::string> openFile(const OpenFileRequest& request) override;
  std::vector<std::string> openFiles(const OpenFileRequest& request) override;
  std::optional<std::string> chooseFolder(const FolderRequest& request) override;
  std::optional<base::PackedColor> chooseColor(const ColorRequest& request) override;
  std::optional<ChosenFont> chooseFont(const FontRequest& request) override;

 private:
  std::function<HWND()> owner_;
  COLORREF customColors_[16] = {};  // the user's own colours, while the program runs
};

}  // namespace forms
