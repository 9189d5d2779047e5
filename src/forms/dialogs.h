// The system's ready-made dialogs: message box, open file, folder, colour, font.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/color.h"
#include "base/font.h"

namespace forms {

// Styles of a message box: buttons plus icon, the platform's values.
constexpr std::uint32_t kYesNo = 4;
constexpr std::uint32_t kQuestion = 32;
constexpr std::uint32_t kExclamation = 48;

enum class Answer { Ok, Yes, No };

struct OpenFileRequest {
  std::string filter;  // "text|pattern|text|pattern...", the first one selected
  std::string title;
  std::uint32_t flags = 0;  // the platform's OFN values
};
constexpr std::uint32_t kHideReadOnly = 0x4;
constexpr std::uint32_t kFileMustExist = 0x1000;

struct FolderRequest {
  std::string title;
  std::string start;  // the folder that is shown first; empty = the one that the system remembers
};

struct ColorRequest {
  base::PackedColor initial = base::kBlack;
  std::uint32_t flags = 0;  // the platform's CC values
};
constexpr std::uint32_t kStartOnColor = 0x1;

struct FontRequest {
  base::Font font;
  base::PackedColor color = base::kBlack;
  std::uint32_t flags = 0;  // the platform's CF values
  int minPoints = 0;
  int maxPoints = 0;
};
constexpr std::uint32_t kScreenFonts = 0x1;
constexpr std::uint32_t kFontEffects = 0x100;
constexpr std::uint32_t kLimitSize = 0x2000;

struct ChosenFont {
  base::Font font;
  base::PackedColor color = base::kBlack;
};

// Each call returns when the user has answered; nothing means that they cancelled. Modal to the form that is
// active.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  virtual Answer messageBox(const std::string& text, std::uint32_t style) = 0;
  virtual std::optional<std::string> openFile(const OpenFileRequest& request) = 0;
  // Several files of one folder, in no order; none when the user cancelled.
  virtual std::vector<std::string> openFiles(const OpenFileRequest& request) = 0;
  virtual std::optional<std::string> chooseFolder(const FolderRequest& request) = 0;

  virtual std::optional<base::PackedColor> chooseColor(const ColorRequest& request) = 0;
  virtual std::optional<ChosenFont> chooseFont(const FontRequest& request) = 0;
};

}  // namespace forms
