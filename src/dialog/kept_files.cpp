#include "dialog/kept_files.h"

#include "base/errors.h"
#include "base/number_text.h"
#include "dialog/option_table.h"
#include "os/paths.h"
#include "settings/settings_file.h"

namespace dialog {

namespace {

constexpr int kMostKept = 5;

struct Worth {
  int usable = 0;  // settings that hold something that can be shown
  bool loadsWell = true;
};

// Tries the file in a dialog of its own that nobody sees.
Worth WorthOf(const Form2& form, const std::string& file) {
  const settings::IniDocument document(file, form.services().ansi);
  Form2 tried(form.services(), form.programFolder());
  Worth worth;
  const auto weigh = [&](const settings::Key& key, const auto& use) {
    const std::string text = settings::ReadIniValue(document, key);
    try {
      use(text);
      worth.usable += text.empty() ? 0 : 1;
    } catch (const base::RunTimeError&) {
      worth.loadsWell = false;
    }
  };
  weigh(settings::kTotalKey, [](const std::string& text) { base::StrictInt32(text); });
  for (const OptionRow& row : OptionTable()) {
    if (settings::IsExtra(row.field)) continue;
    weigh(settings::KeyOf(row.field), [&](const std::string& text) { row.show(tried, text); });
  }
  return worth;
}

std::string KeptPath(const Form2& form, int number) {
  const std::string name = number == 1 ? "zbfaone.bak" : "zbfaone-" + std::to_string(number) + ".bak";
  return os::JoinPath(form.programFolder(), name);
}

}  // namespace

bool KeepOldFile(const Form2& form, const std::string& old) {
  os::Files& files = form.services().files;
  for (int number = 1; number <= kMostKept; ++number) {
    const std::string path = KeptPath(form, number);
    const std::optional<std::string> kept = files.read(path);
    if (kept == old) return true;
    const bool isFree = !kept && !files.exists(path);
    const bool givesWay =
        number == 1 && kept && (WorthOf(form, old).loadsWell || WorthOf(form, *kept).usable == 0);
    if (isFree || givesWay) return files.replace(path, old);
  }
  return files.replace(KeptPath(form, kMostKept), old);
}

}  // namespace dialog
