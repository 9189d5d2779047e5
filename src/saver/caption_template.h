// Captions that the program makes by itself: words and tokens, for example "{title}| - {date}|".
#pragma once

#include <string>
#include <string_view>

namespace saver {

// What the tokens stand for; each is empty where nothing is known. A token is the field's name in braces.
struct CaptionWords {
  std::string name = {};
  std::string file = {};
  std::string folder = {};
  std::string date = {};
  std::string time = {};
  std::string camera = {};
  std::string title = {};
  std::string number = {};
  std::string total = {};
};

// Characters that a caption has at most, as one of the settings file.
constexpr std::size_t kLongestCaption = 254;

// The template with its tokens replaced, on one line, without blanks at its ends. "{{" is a brace; any other
// brace that begins no known token stands for itself. Bars go in pairs, the first with the second, the third
// with the fourth, and are not shown: what lies between two of them is left out when it has tokens and all of
// them are empty. A last bar without partner stands for itself. Line ends and control characters become
// blanks; what is longer than a caption may be is cut behind its last whole character.
std::string FillCaptionTemplate(std::string_view pattern, const CaptionWords& words);

}  // namespace saver
