// Paints the pictures that come with the program: the two samples, its icon, the little preview, those of the
// installer.
//   make_sample_pictures [folder of the sources, else this one]
// The same pictures come out in every run.
#include <cstdio>
#include <fstream>
#include <string>

#include "pictures/bmp_writer.h"
#include "pictures/dusk_landscape.h"
#include "pictures/gif_writer.h"
#include "pictures/icon.h"
#include "pictures/night_sky.h"
#include "pictures/preview.h"
#include "pictures/setup_pictures.h"

namespace {

constexpr base::PixelSize kSampleSize{1600, 900};

bool Write(const std::string& path, const std::string& content) {
  std::ofstream file(path, std::ios::binary);
  file << content;
  file.close();
  std::printf("%s: %zu bytes%s\n", path.c_str(), content.size(), file ? "" : ", FAILED");
  return static_cast<bool>(file);
}

std::string Sample(const pictures::Scene& scene) {
  const pictures::Scene part = pictures::PartOf(scene, 0.0F, 0.06F, 0.9F);
  return GifFile(ReduceColors(Paint(part, kSampleSize, 3), 1.0F));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string root = argc > 1 ? argv[1] : ".";
  const std::string preview = GifFile(pictures::ReduceColors(pictures::PreviewPicture(), 1.0F));
  const bool done =
      Write(root + "/assets/lumora.ico", pictures::IconFile({16, 20, 24, 32, 40, 48, 64, 96, 128, 256})) &&
      Write(root + "/assets/preview.gif", preview) &&
      Write(root + "/assets/image1.gif", Sample(pictures::DuskLandscape())) &&
      Write(root + "/assets/image2.gif", Sample(pictures::NightSky())) &&
      Write(root + "/packaging/pictures/side.bmp", pictures::BmpFile(pictures::SetupSidePicture())) &&
      Write(root + "/packaging/pictures/head.bmp", pictures::BmpFile(pictures::SetupHeadPicture()));
  return done ? 0 : 1;
}
