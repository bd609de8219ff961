#include "core/sound/VolumeScale.h"

#include <cmath>

namespace sonalyx {

namespace {

// The default 50 must sit comfortably beside speech (about -15 dBFS at its peaks),
// while 1 is still a whisper.
constexpr double kQuietestDb = -24.0;  // volume 1
constexpr double kLoudestDb = -1.0;    // volume 100
// The ticks are short, so they get the smaller share of the headroom.
constexpr double kDataShare = 0.75;
constexpr double kTickShare = 1.0 - kDataShare;

}  // namespace

double volumeGain(unsigned volume) {
  if (volume == 0) return 0.0;
  const double v = volume > 100 ? 100.0 : static_cast<double>(volume);
  const double db = kQuietestDb + (kLoudestDb - kQuietestDb) * (v - 1.0) / 99.0;
  return std::pow(10.0, db / 20.0);
}

double dataGain(unsigned volume) {
  return kDataShare * volumeGain(volume);
}

double tickGain(unsigned volume) {
  return kTickShare * volumeGain(volume);
}

}  // namespace sonalyx
