// Ready-made dialogs that answer as the test says and remember what they were asked.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/dialogs.h"

namespace support {

class FakeDialogs : public forms::Dialogs {
 public:
  struct Message {
    std::string text;
    std::uint32_t style = 0;

    bool operator==(const Message&) const = default;
  };

  // Answers in the order in which they are given; a message box without one is answered OK, the other dialogs
  // are cancelled.
  std::deque<forms::Answer> answers;
  std::deque<std::optional<std::string>> files;
  std::deque<std::vector<std::string>> several;
  std::deque<std::optional<std::string>> folders;
  std::deque<std::optional<base::PackedColor>> colors;
  std::deque<std::optional<forms::ChosenFont>> fonts;

  std::function<void()> whileMessage;  // runs while a message box is open

  std::vector<Message> messages;
  std::vector<forms::OpenFileRequest> fileRequests;
  std::vector<forms::OpenFileRequest> severalRequests;
  std::vector<forms::FolderRequest> folderRequests;
  std::vector<forms::ColorRequest> colorRequests;
  std::vector<forms::FontRequest> fontRequests;

  forms::Answer messageBox(const std::string& text, std::uint32_t style) override {
    messages.push_back({text, style});
    if (whileMessage) whileMessage();
    return next(answers, forms::Answer::Ok);
  }
  std::optional<std::string> openFile(const forms::OpenFileRequest& request) override {
    fileRequests.push_back(request);
    return next(files, std::optional<std::string>());
  }
  std::vector<std::string> openFiles(const forms::OpenFileRequest& request) override {
    severalRequests.push_back(request);
    return next(several, std::vector<std::string>());
  }
  std::optional<std::string> chooseFolder(const forms::FolderRequest& request) override {
    folderRequests.push_back(request);
    return next(folders, std::optional<std::string>());
  }
  std::optional<base::PackedColor> chooseColor(const forms::ColorRequest& request) override {
    colorRequests.push_back(request);
    return next(colors, std::optional<base::PackedColor>());
  }
  std::optional<forms::ChosenFont> chooseFont(const forms::FontRequest& request) override {
    fontRequests.push_back(request);
    return next(fonts, std::optional<forms::ChosenFont>());
  }

 private:
  template <typename T>
  static T next(std::deque<T>& waiting, T otherwise) {
    if (waiting.empty()) return otherwise;
    T answer = waiting.front();
    waiting.pop_front();
    return answer;
  }
};

// What is said of a picture that cannot be loaded.
inline const FakeDialogs::Message kCannotLoadImage{
    "Cannot load image file properly.\r\nYou need to reload a new one.", 48};

}  // namespace support
