#include "library/hidden_pictures.h"

#include <utility>

#include "library/show_state.h"

namespace library {

HiddenPictures::HiddenPictures(os::Files& files, const std::vector<std::string>& folders,
                               std::function<void()> makeFolder)
    : stateFile_(files, folders, kShowStateName, kShowStateKind, std::move(makeFolder)) {}

std::size_t HiddenPictures::count() { return LoadShowState(stateFile_).hidden.size(); }

bool HiddenPictures::bringBack() {
  ShowState state = LoadShowState(stateFile_);
  if (state.hidden.empty()) return true;
  state.hidden.clear();
  return stateFile_.save(PayloadOf(state));
}

}  // namespace library
