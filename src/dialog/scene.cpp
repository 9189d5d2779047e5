#include "dialog/scene.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>

#include "base/number_text.h"
#include "dialog/form2.h"
#include "os/paths.h"
#include "settings/ini_document.h"
#include "settings/settings_file.h"

namespace dialog {

namespace {

using R = settings::SettingsRecord;

constexpr const char* kSamples[] = {"image1.gif", "image2.gif"};
constexpr char kSampleCaption[] = "Image Caption";

// For effects that take as long as the machine needs: on so small a screen that is no time.
constexpr char kEffectTime[] = "1000";

constexpr double kMostSeconds = 3;  // between two pictures, where their changes are what is to be seen

bool SameRecords(const R& a, const R& b) {
  const auto same = [&](const settings::Key& key) { return a.*key.field == b.*key.field; };
  return std::ranges::all_of(settings::kWrittenKeys, same) && std::ranges::all_of(settings::kExtraKeys, same);
}

template <typename Do>
void ForEachEffect(Do act) {
  for (const settings::Key& key : settings::kWrittenKeys) {
    if (std::string_view(key.section) == "transitions") act(key.field);
  }
}

bool IsOn(const std::string& flag) { return base::LeadingNumber(flag) == 1; }

// A stride that comes to every entry of a list before it comes to one twice.
int StrideThrough(int count, bool isRandom) {
  if (!isRandom) return 1;
  int stride = std::max(1, count * 5 / 8);
  while (std::gcd(stride, count) != 1) ++stride;
  return stride;
}

void SetPace(R& record, SceneAim aim) {
  if (record.change.empty() && record.transitionTime.empty()) record.transitionTime = kEffectTime;
  if (aim != SceneAim::Changes) return;
  const double seconds = base::LeadingNumber(record.timeInterval);
  if (seconds < 1 || seconds > kMostSeconds) record.timeInterval = base::NumberText(kMostSeconds);
}

void LeaveOutRest(R& record) {
  for (const settings::Field field :
       {&R::log, &R::resume, &R::shuffle, &R::otherScreens, &R::matchOrientation, &R::keys}) {
    record.*field = {};
  }
  record.loadAhead = "1";
  record.randomPick = "0";
  // A show draws until it meets an effect that is on, so none may be half on.
  ForEachEffect([&](settings::Field flag) { record.*flag = IsOn(record.*flag) ? "1" : "0"; });
}

}  // namespace

bool Scene::operator==(const Scene& other) const {
  return pictures == other.pictures && captions == other.captions && SameRecords(record, other.record);
}

Scene SceneOf(const Form2& form) {
  Scene scene{form.record, {}, {}};
  const int count = form.List1.listCount();
  const bool isRandom = IsOn(form.record.randomPick);
  const int stride = StrideThrough(count, isRandom);
  long long index = std::max(0, form.List1.listIndex());
  for (int i = 0; i < std::min(count, kMostScenePictures); ++i) {
    scene.pictures.push_back(form.List1.item(static_cast<int>(index)));
    scene.captions.push_back(form.photo_caption.item(static_cast<int>(index)));
    index = (index + stride) % count;
  }
  if (count > 0) return scene;
  for (const char* sample : kSamples) scene.pictures.push_back(os::JoinPath(form.programFolder(), sample));
  scene.captions.resize(scene.pictures.size());
  return scene;
}

void BeginWith(Scene& scene, const std::string& picture) {
  const auto first = std::ranges::find(scene.pictures, picture);
  if (first == scene.pictures.end()) return;
  const auto by = first - scene.pictures.begin();
  std::rotate(scene.pictures.begin(), first, scene.pictures.end());
  std::rotate(scene.captions.begin(), scene.captions.begin() + by, scene.captions.end());
}

settings::Field EffectTurnedOn(const settings::SettingsRecord& before, const settings::SettingsRecord& now) {
  settings::Field found = nullptr;
  int count = 0;
  ForEachEffect([&](settings::Field flag) {
    if (!IsOn(now.*flag) || IsOn(before.*flag)) return;
    found = flag;
    ++count;
  });
  return count == 1 ? found : nullptr;
}

void KeepEffect(settings::SettingsRecord& record, settings::Field effect) {
  ForEachEffect([&](settings::Field flag) { record.*flag = flag == effect ? "1" : "0"; });
}

std::string SceneFile(Scene scene, SceneAim aim, const os::AnsiCodePage& ansi) {
  if (aim == SceneAim::Captions && scene.record.captions.empty()) {
    for (std::string& caption : scene.captions) {
      if (caption.empty()) caption = kSampleCaption;
    }
  }
  SetPace(scene.record, aim);
  LeaveOutRest(scene.record);
  settings::IniDocument document({}, ansi);
  settings::WriteSettings(document, scene.record, scene.pictures, scene.captions);
  settings::WriteExtras(document, scene.record, {});
  return document.serialise();
}

}  // namespace dialog
