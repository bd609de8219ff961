#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include "core/sound/AudioFormat.h"
#include "core/sound/AudioSource.h"

namespace sonalyx::test {

// A source rendered to its end in blocks the size a sound device asks for.
struct Rendered {
  std::vector<float> left;
  std::vector<float> right;
  std::size_t frames() const { return left.size(); }
};

inline Rendered renderAll(AudioSource& source, std::size_t block = 512) {
  Rendered r;
  std::vector<float> buffer(block * kChannels);
  for (;;) {
    std::fill(buffer.begin(), buffer.end(), 0.0f);
    const std::size_t n = source.render(buffer.data(), block);
    for (std::size_t i = 0; i < n; ++i) {
      r.left.push_back(buffer[i * kChannels]);
      r.right.push_back(buffer[i * kChannels + 1]);
    }
    if (n < block) return r;
  }
}

inline std::size_t frameAtSeconds(double seconds) {
  return static_cast<std::size_t>(seconds * kSampleRate + 0.5);
}

// The fundamental between two frames from the rising zero crossings (interpolated
// between samples): whole cycles over the time they take. 0 without two crossings.
inline double pitch(const std::vector<float>& s, std::size_t from, std::size_t to) {
  double first = -1.0;
  double last = -1.0;
  int crossings = 0;
  for (std::size_t i = std::max<std::size_t>(from, 1); i < to && i < s.size(); ++i) {
    if (s[i - 1] < 0.0f && s[i] >= 0.0f) {
      const double t = static_cast<double>(i - 1) + s[i - 1] / (s[i - 1] - s[i]);
      if (crossings == 0) first = t;
      last = t;
      ++crossings;
    }
  }
  if (crossings < 2) return 0.0;
  return (crossings - 1) * static_cast<double>(kSampleRate) / (last - first);
}

inline double energy(const std::vector<float>& s, std::size_t from, std::size_t to) {
  double e = 0.0;
  for (std::size_t i = from; i < to && i < s.size(); ++i) e += static_cast<double>(s[i]) * s[i];
  return e;
}

inline double rms(const std::vector<float>& s, std::size_t from, std::size_t to) {
  return to > from ? std::sqrt(energy(s, from, to) / static_cast<double>(to - from)) : 0.0;
}

inline float peak(const std::vector<float>& s) {
  float p = 0.0f;
  for (const float v : s) p = std::max(p, std::fabs(v));
  return p;
}

// The power at one frequency over a Hann-windowed stretch (Goertzel).
inline double powerAt(const std::vector<float>& s, std::size_t from, std::size_t to, double hz) {
  const double w = 2.0 * std::numbers::pi * hz / kSampleRate;
  const double coefficient = 2.0 * std::cos(w);
  double s1 = 0.0;
  double s2 = 0.0;
  const double n = static_cast<double>(to - from);
  for (std::size_t i = from; i < to; ++i) {
    const double hann = 0.5 - 0.5 * std::cos(2.0 * std::numbers::pi * static_cast<double>(i - from) / n);
    const double s0 = s[i] * hann + coefficient * s1 - s2;
    s2 = s1;
    s1 = s0;
  }
  return s1 * s1 + s2 * s2 - coefficient * s1 * s2;
}

inline float largestStep(const std::vector<float>& s, std::size_t from, std::size_t to) {
  float step = 0.0f;
  for (std::size_t i = std::max<std::size_t>(from, 1); i < to && i < s.size(); ++i) {
    step = std::max(step, std::fabs(s[i] - s[i - 1]));
  }
  return step;
}

// The largest step between neighbouring samples, counting silence before the first
// and after the last: what a listener hears as a click.
inline float largestEdgeStep(const std::vector<float>& s, std::size_t edgeFrames) {
  if (s.empty()) return 0.0f;
  float step = std::max(std::fabs(s.front()), std::fabs(s.back()));
  for (std::size_t i = 1; i < std::min(edgeFrames, s.size()); ++i) {
    step = std::max(step, std::fabs(s[i] - s[i - 1]));
    const std::size_t j = s.size() - i;
    step = std::max(step, std::fabs(s[j] - s[j - 1]));
  }
  return step;
}

}  // namespace sonalyx::test
