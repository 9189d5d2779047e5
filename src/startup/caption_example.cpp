#include "startup/caption_example.h"

#include "saver/caption_template.h"
#include "saver/picture_words.h"

namespace startup {

std::string CaptionExample(std::string_view captionTemplate, const os::DateText& dates,
                           const os::AnsiCodePage& ansi) {
  const saver::ListedPicture listed{.path = "C:\\Pictures\\Summer\\IMG_0412.jpg", .number = 12, .total = 48};
  pictures::PictureFacts facts;
  facts.date = os::LocalTime{.year = 2026, .month = 7, .day = 18, .hour = 21, .minute = 5};
  facts.camera = "Reflex 200";
  facts.title = "Evening at the lake";
  return saver::FillCaptionTemplate(captionTemplate, saver::WordsOf(listed, facts, dates, ansi));
}

}  // namespace startup
