// How wide a text is, as the label that is to show it would measure it.
#pragma once

#include <functional>
#include <string>

namespace saver {

// In any unit, the same for all texts that are compared.
using TextWidth = std::function<int(const std::string& text)>;

}  // namespace saver
