#pragma once

namespace sonalyx {

// A volume setting 0..100 as a linear gain on a decibel scale: 0 is silence, 1 is
// -24 dB and 100 is -1 dB, in equal decibel steps; values above 100 count as 100.
double volumeGain(unsigned volume);

// The curve's tone and the ticks share the headroom below -1 dBFS, so both at 100
// together still stay below full scale.
double dataGain(unsigned volume);
double tickGain(unsigned volume);

}  // namespace sonalyx
