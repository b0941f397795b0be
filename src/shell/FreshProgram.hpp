// The one way to the state of a freshly started program, for both front ends and the tests.
#pragma once

namespace ordwise {

// Everything zero or empty, the settings at their defaults, no window open, the draws unseeded.
void startFreshProgram();

}  // namespace ordwise
