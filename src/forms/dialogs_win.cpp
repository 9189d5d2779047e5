#include "forms/dialogs_win.h"

#include <cderr.h>
#include <commdlg.h>
#include <shobjidl.h>
#include <wrl/client.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

#include "forms/file_name.h"
#include "forms/surface_win.h"
#include "os/screen_win.h"
#include "os/text_renderer_win.h"
#include "os/utf16_win.h"

namespace forms {

using Microsoft::WRL::ComPtr;

namespace {

constexpr wchar_t kTitle[] = L"Lumora Screen Saver";
constexpr std::size_t kLongestPath = 32768;
constexpr std::size_t kLongestSelection = 4'000'000;  // letters of all names: more than a folder has

// The system separates the parts by zeros, with one more at the end.
std::wstring FilterOf(const std::string& filter) {
  std::wstring parts = os::ToWide(filter);
  std::replace(parts.begin(), parts.end(), L'|', L'\0');
  parts.append(2, L'\0');
  return parts;
}

// What the user chose, as the system writes it into as many letters; nothing when they cancelled.
std::optional<std::wstring> AskForFiles(HWND owner, const OpenFileRequest& request, DWORD furtherFlags,
                                        std::size_t letters) {
  const std::wstring filter = FilterOf(request.filter);
  const std::wstring title = os::ToWide(request.title);
  std::wstring chosen(letters, L'\0');
  OPENFILENAMEW open{};
  open.lStructSize = sizeof(open);
  open.hwndOwner = owner;
  open.lpstrFilter = filter.c_str();
  open.nFilterIndex = 1;
  open.lpstrFile = chosen.data();
  open.nMaxFile = static_cast<DWORD>(chosen.size());
  open.lpstrTitle = title.c_str();
  // The program goes on working in its own folder.
  open.Flags = request.flags | furtherFlags | OFN_EXPLORER | OFN_NOCHANGEDIR;
  if (GetOpenFileNameW(&open)) return chosen;
  if (CommDlgExtendedError() == FNERR_BUFFERTOOSMALL) throw std::length_error("Too many files are selected.");
  return std::nullopt;
}

// The place in the file system that an item of the shell stands for; nothing when it stands for none.
std::optional<std::string> PathOf(IShellItem& item) {
  wchar_t* path = nullptr;
  if (FAILED(item.GetDisplayName(SIGDN_FILESYSPATH, &path))) return std::nullopt;
  std::string utf8 = os::FromWide(path);
  CoTaskMemFree(path);
  return utf8;
}

}  // namespace

Answer DialogsWin::messageBox(const std::string& text, std::uint32_t style) {
  const HWND owner = owner_();
  const UINT modal = owner ? MB_APPLMODAL : MB_TASKMODAL | MB_SETFOREGROUND;
  switch (MessageBoxW(owner, os::ToWide(text).c_str(), kTitle, style | modal)) {
    case IDYES:
      return Answer::Yes;
    case IDNO:
      return Answer::No;
    default:
      return Answer::Ok;
  }
}

std::optional<std::string> DialogsWin::openFile(const OpenFileRequest& request) {
  std::optional<std::wstring> chosen = AskForFiles(owner_(), request, 0, kLongestPath);
  if (!chosen) return std::nullopt;
  return os::FromWide(chosen->c_str());
}

std::vector<std::string> DialogsWin::openFiles(const OpenFileRequest& request) {
  std::optional<std::wstring> chosen =
      AskForFiles(owner_(), request, OFN_ALLOWMULTISELECT, kLongestSelection);
  if (!chosen) return {};
  chosen->resize(chosen->find(std::wstring_view(L"\0", 2)));
  return FilesOfSelection(os::FromWide(*chosen));
}

std::optional<std::string> DialogsWin::chooseFolder(const FolderRequest& request) {
  ComPtr<IFileOpenDialog> dialog;
  if (FAILED(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&dialog)))) {
    throw std::runtime_error("The system's dialog for folders is not there.");
  }
  FILEOPENDIALOGOPTIONS options = 0;
  dialog->GetOptions(&options);
  dialog->SetOptions(options | FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR);
  dialog->SetTitle(os::ToWide(request.title).c_str());
  ComPtr<IShellItem> item;
  if (!request.start.empty() && SUCCEEDED(SHCreateItemFromParsingName(os::ToWide(request.start).c_str(),
                                                                      nullptr, IID_PPV_ARGS(&item)))) {
    dialog->SetFolder(item.Get());
  }
  if (FAILED(dialog->Show(owner_())) || FAILED(dialog->GetResult(item.ReleaseAndGetAddressOf()))) {
    return std::nullopt;
  }
  return PathOf(*item.Get());
}

std::optional<base::PackedColor> DialogsWin::chooseColor(const ColorRequest& request) {
  CHOOSECOLORW choose{};
  choose.lStructSize = sizeof(choose);
  choose.hwndOwner = owner_();
  choose.rgbResult = ToColorRef(request.initial);
  choose.lpCustColors = customColors_;
  choose.Flags = request.flags;
  if (!ChooseColorW(&choose)) return std::nullopt;
  return static_cast<base::PackedColor>(choose.rgbResult);
}

std::optional<ChosenFont> DialogsWin::chooseFont(const FontRequest& request) {
  LOGFONTW log = os::LogFontOf(request.font, os::ScreenDpi());
  CHOOSEFONTW choose{};
  choose.lStructSize = sizeof(choose);
  choose.hwndOwner = owner_();
  choose.lpLogFont = &log;
  choose.rgbColors = ToColorRef(request.color);
  choose.Flags = request.flags | CF_INITTOLOGFONTSTRUCT;
  choose.nSizeMin = request.minPoints;
  choose.nSizeMax = request.maxPoints;
  if (!ChooseFontW(&choose)) return std::nullopt;
  ChosenFont chosen;
  chosen.font.name = os::FromWide(log.lfFaceName);
  chosen.font.sizePoints = static_cast<float>(choose.iPointSize) / 10;
  chosen.font.bold = log.lfWeight >= FW_SEMIBOLD;
  chosen.font.italic = log.lfItalic != 0;
  chosen.font.underline = log.lfUnderline != 0;
  chosen.font.strikethrough = log.lfStrikeOut != 0;
  chosen.color = static_cast<base::PackedColor>(choose.rgbColors);
  return chosen;
}

}  // namespace forms
