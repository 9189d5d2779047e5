// The shape of the mouse pointer over a form.
#pragma once

namespace forms {

enum class MousePointer { Default = 0, Hourglass = 11 };

}  // namespace forms
