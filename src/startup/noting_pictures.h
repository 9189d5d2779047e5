// A picture loader that notes what cannot be shown.
#pragma once

#include "os/files.h"
#include "pictures/pictures.h"
#include "startup/failure_log.h"

namespace startup {

// Passes everything on to another loader. It and the log outlive this and its pictures.
class NotingPictures final : public pictures::PictureLoader {
 public:
  NotingPictures(pictures::PictureLoader& pictures, os::Files& files, FailureLog& log)
      : pictures_(pictures), files_(files), log_(log) {}

  std::shared_ptr<const pictures::PictureFile> open(const std::string& path) override;

 private:
  pictures::PictureLoader& pictures_;
  os::Files& files_;
  FailureLog& log_;
};

}  // namespace startup
