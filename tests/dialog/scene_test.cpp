#include "dialog/scene.h"

#include <gtest/gtest.h>

#include <set>

#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using R = settings::SettingsRecord;

struct SceneTest : testing::Test {
  support::SettingsDialogMachine machine;

  Form2& open(int pictures) {
    machine.set("total", "total", std::to_string(pictures));
    for (int i = 0; i < pictures; ++i) {
      machine.set("images", std::to_string(i), "C:\\" + std::to_string(i) + ".jpg");
      machine.set("caption", std::to_string(i), "caption " + std::to_string(i));
    }
    return machine.openDialog().form;
  }

  settings::SaverSettings loaded(const Scene& scene, SceneAim aim = SceneAim::Show) {
    settings::SaverSettings settings;
    settings::LoadSettings(settings,
                           settings::IniDocument(SceneFile(scene, aim, machine.ansi), machine.ansi));
    return settings;
  }
};

TEST_F(SceneTest, ItHasAFewPicturesFromTheSelectedOneOnAndTheirCaptions) {
  machine.set("image", "randomPick", "0");
  Form2& form = open(30000);
  form.List1.setListIndex(29998);
  const Scene scene = SceneOf(form);
  EXPECT_EQ(scene.pictures,
            (std::vector<std::string>{"C:\\29998.jpg", "C:\\29999.jpg", "C:\\0.jpg", "C:\\1.jpg", "C:\\2.jpg",
                                      "C:\\3.jpg", "C:\\4.jpg", "C:\\5.jpg"}));
  EXPECT_EQ(scene.captions[0], "caption 29998");
  EXPECT_EQ(scene.captions[7], "caption 5");
}

TEST_F(SceneTest, InRandomOrderThePicturesComeFromAllOverTheListAndNoneTwice) {
  machine.set("image", "randomPick", "1");
  for (const int count : {1, 2, 3, 7, 8, 9, 10, 64, 1000}) {
    const Scene scene = SceneOf(open(count));
    EXPECT_EQ(scene.pictures.size(), static_cast<std::size_t>(std::min(count, kMostScenePictures)));
    EXPECT_EQ(std::set(scene.pictures.begin(), scene.pictures.end()).size(), scene.pictures.size()) << count;
    EXPECT_EQ(scene.pictures.front(), "C:\\0.jpg");
    if (count > 8) {
      EXPECT_NE(scene.pictures[1], "C:\\1.jpg") << count;
    }
  }
}

TEST_F(SceneTest, TheSamplesStandForAnEmptyList) {
  const Scene scene = SceneOf(open(0));
  EXPECT_EQ(scene.pictures, (std::vector<std::string>{"C:\\Lumora\\image1.gif", "C:\\Lumora\\image2.gif"}));
  EXPECT_EQ(scene.captions.size(), 2U);
}

TEST_F(SceneTest, ItCanBeginWithAnyOfItsPictures) {
  machine.set("image", "randomPick", "0");
  Scene scene = SceneOf(open(3));
  BeginWith(scene, "C:\\2.jpg");
  EXPECT_EQ(scene.pictures, (std::vector<std::string>{"C:\\2.jpg", "C:\\0.jpg", "C:\\1.jpg"}));
  EXPECT_EQ(scene.captions, (std::vector<std::string>{"caption 2", "caption 0", "caption 1"}));
  BeginWith(scene, "C:\\elsewhere.jpg");
  EXPECT_EQ(scene.pictures.front(), "C:\\2.jpg");
}

TEST_F(SceneTest, TwoScenesAreTheSameWhenEverySettingIs) {
  Form2& form = open(2);
  const Scene scene = SceneOf(form);
  EXPECT_TRUE(scene == SceneOf(form));
  for (const settings::Key& key : settings::kWrittenKeys) {
    Scene other = scene;
    other.record.*key.field += "x";
    EXPECT_FALSE(scene == other) << key.name;
  }
  for (const settings::Key& key : settings::kExtraKeys) {
    Scene other = scene;
    other.record.*key.field += "x";
    EXPECT_FALSE(scene == other) << key.name;
  }
}

TEST_F(SceneTest, TheShowReadsWhatIsChosen) {
  Form2& form = open(2);
  form.record.fit = "fill";
  form.record.panZoom = "8";
  const settings::SaverSettings settings = loaded(SceneOf(form));
  EXPECT_EQ(settings.lastImageIndex, 1);
  EXPECT_EQ(settings.imageFiles[1], "C:\\1.jpg");
  EXPECT_EQ(settings.imageCaptions[0], "caption 0");
  EXPECT_EQ(settings.record.picturePercent, "45");
  EXPECT_EQ(settings.record.newFontName, "Verdana");
  EXPECT_EQ(settings.record.picRandom, "rand");
  EXPECT_EQ(settings.record.timeInterval, "30");
  EXPECT_EQ(settings.record.fit, "fill");
  EXPECT_EQ(settings.record.panZoom, "8");
  EXPECT_EQ(settings.record.loadAhead, "1");
  EXPECT_EQ(settings.record.bCenter, "1");
  EXPECT_EQ(settings.record.bFade, "0");
}

TEST_F(SceneTest, WhatIsNotForASmallShowIsLeftOut) {
  Form2& form = open(2);
  for (const settings::Field field :
       {&R::log, &R::resume, &R::shuffle, &R::otherScreens, &R::matchOrientation, &R::keys, &R::randomPick}) {
    form.record.*field = "1";
  }
  const settings::SaverSettings settings = loaded(SceneOf(form));
  for (const settings::Field field :
       {&R::log, &R::resume, &R::shuffle, &R::otherScreens, &R::matchOrientation, &R::keys}) {
    EXPECT_EQ(settings.record.*field, "") << settings::KeyOf(field).name;
  }
  EXPECT_EQ(settings.record.randomPick, "0") << "the scene has that order already";
}

TEST_F(SceneTest, AnEffectTakesATimeThatCanBeSeenUnlessOneIsSet) {
  Scene scene = SceneOf(open(2));
  EXPECT_EQ(loaded(scene).record.transitionTime, "1000");
  scene.record.transitionTime = "300";
  EXPECT_EQ(loaded(scene).record.transitionTime, "300");
  scene.record.transitionTime = "";
  scene.record.change = "crossfade";
  EXPECT_EQ(loaded(scene).record.transitionTime, "") << "that has a time of its own";
}

TEST_F(SceneTest, WhereChangesAreTheMatterTheyComeQuickly) {
  Scene scene = SceneOf(open(2));
  EXPECT_EQ(loaded(scene, SceneAim::Changes).record.timeInterval, "3");
  scene.record.timeInterval = "0";
  EXPECT_EQ(loaded(scene, SceneAim::Changes).record.timeInterval, "3");
  EXPECT_EQ(loaded(scene).record.timeInterval, "0");
  scene.record.timeInterval = "2";
  EXPECT_EQ(loaded(scene, SceneAim::Changes).record.timeInterval, "2");
}

TEST_F(SceneTest, WhereCaptionsAreTheMatterEachPictureHasOne) {
  Scene scene = SceneOf(open(2));
  scene.captions[1].clear();
  EXPECT_EQ(loaded(scene, SceneAim::Captions).imageCaptions[0], "caption 0");
  EXPECT_EQ(loaded(scene, SceneAim::Captions).imageCaptions[1], "Image Caption");
  EXPECT_EQ(loaded(scene).imageCaptions[1], "");
  scene.record.captions = "{name}";
  EXPECT_EQ(loaded(scene, SceneAim::Captions).imageCaptions[1], "") << "the show makes one itself";
}

TEST_F(SceneTest, AFlagThatNoDrawCanHitIsOff) {
  Scene scene = SceneOf(open(2));
  scene.record.bFade = "2";
  scene.record.bCenter = "x";
  EXPECT_EQ(loaded(scene).record.bFade, "0");
  EXPECT_EQ(loaded(scene).record.bCenter, "0");
}

TEST_F(SceneTest, TheEffectThatWasTurnedOnIsFoundAndKept) {
  R before;
  R now;
  now.bFade = "1";
  now.randomPick = "1";
  EXPECT_EQ(EffectTurnedOn(before, now), &R::bFade);
  EXPECT_EQ(EffectTurnedOn(now, before), nullptr);
  EXPECT_EQ(EffectTurnedOn(now, now), nullptr);
  now.bCenter = "1";
  EXPECT_EQ(EffectTurnedOn(before, now), nullptr) << "more than one";
  KeepEffect(now, &R::bCenter);
  EXPECT_EQ(now.bCenter, "1");
  EXPECT_EQ(now.bFade, "0");
  EXPECT_EQ(now.randomPick, "1");
}

}  // namespace
}  // namespace dialog
