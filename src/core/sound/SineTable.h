#pragma once

namespace sonalyx {

// sin(2π·turns) from a table with linear interpolation, accurate to about 3e-7: the
// renderers need a sine and a cosine for every frame, and the library's sin and cos
// would use most of the audio thread's budget. `turns` must lie in [0, 1).
float sineOfTurns(double turns);

// cos(2π·turns), same range.
float cosineOfTurns(double turns);

}  // namespace sonalyx
