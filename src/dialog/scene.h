// What the show in small shows: the settings as they are in the dialog, with some of the pictures.
#pragma once

#include <string>
#include <vector>

#include "os/ansi_code_page.h"
#include "settings/settings_record.h"

namespace dialog {

class Form2;

struct Scene {
  settings::SettingsRecord record;
  std::vector<std::string> pictures;
  std::vector<std::string> captions;

  bool operator==(const Scene& other) const;
};

// What a view of it is for.
enum class SceneAim {
  Show,      // the settings as they are
  Changes,   // pictures follow each other quickly
  Captions,  // every picture has a caption
  Pointer,   // what the pointer does
};

// Pictures in a scene, at most: a list of any length costs as much.
constexpr int kMostScenePictures = 8;

// The dialog's choices and a few pictures of its list: from the selected one on, in the list's order or from
// all over it where the order is random. The sample pictures stand for an empty list.
Scene SceneOf(const Form2& form);

// Lets the scene begin with a picture of it.
void BeginWith(Scene& scene, const std::string& picture);

// The setting of the one transition effect that is on in `now` and was not in `before`; null where there is
// none, or more than one.
settings::Field EffectTurnedOn(const settings::SettingsRecord& before, const settings::SettingsRecord& now);

// Leaves no effect on but one.
void KeepEffect(settings::SettingsRecord& record, settings::Field effect);

// The scene as a settings file, for a show in small: pictures come beside it and in the scene's order,
// effects take a time that can be seen, nothing is remembered or noted, and there are no further screens.
std::string SceneFile(Scene scene, SceneAim aim, const os::AnsiCodePage& ansi);

}  // namespace dialog
