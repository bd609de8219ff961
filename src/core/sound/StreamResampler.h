#pragma once

#include <cstddef>
#include <vector>

namespace sonalyx {

// Changes the sample rate of a mono stream that arrives in pieces (a speech
// engine's 22,050 Hz to the mixer's 44,100 Hz) by cubic (Catmull-Rom)
// interpolation, which keeps a straight line straight and passes through every
// input sample that falls on an output instant. The stream is taken to start and
// end in silence.
class StreamResampler {
 public:
  StreamResampler(int inputRate, int outputRate);

  // Appends the output that `count` more input samples make possible.
  void push(const float* input, std::size_t count, std::vector<float>& out);
  // Appends the rest at the end of the stream; the resampler then starts afresh.
  void finish(std::vector<float>& out);

 private:
  void produce(std::vector<float>& out);

  double m_step;                 // input samples per output sample
  std::vector<float> m_history;  // input not yet passed, with one sample before the position
  double m_position = 1.0;       // in m_history's indices
};

}  // namespace sonalyx
