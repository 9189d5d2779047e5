// Measures that both kinds of blinds share.
#pragma once

namespace saver {

constexpr int kBlindPitch = 20;  // pixels from one blind to the next
constexpr int kBlindSteps = 20;  // a blind grows by one pixel at each

}  // namespace saver
