// What a caption can tell about a picture.
#pragma once

#include <string>

#include "os/ansi_code_page.h"
#include "os/date_text.h"
#include "pictures/picture_facts.h"
#include "saver/caption_template.h"

namespace saver {

// A picture of the show's list.
struct ListedPicture {
  std::string path;
  int number = 0;  // in the list's order, from 1
  int total = 0;   // pictures in the list
};

// Dates and times are in the user's form; noted texts that are no UTF-8 are read in the machine's code page.
// The folder is told by its name alone, as an album; a drive's root by the drive.
CaptionWords WordsOf(const ListedPicture& picture, const pictures::PictureFacts& facts,
                     const os::DateText& dates, const os::AnsiCodePage& ansi);

}  // namespace saver
