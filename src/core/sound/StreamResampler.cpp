#include "core/sound/StreamResampler.h"

#include <algorithm>

namespace sonalyx {

StreamResampler::StreamResampler(int inputRate, int outputRate)
    : m_step(static_cast<double>(inputRate) / outputRate), m_history{0.0F} {}

void StreamResampler::push(const float* input, std::size_t count, std::vector<float>& out) {
  m_history.insert(m_history.end(), input, input + count);
  produce(out);
}

void StreamResampler::finish(std::vector<float>& out) {
  // Two samples of silence let the last input sample's interval be interpolated.
  m_history.push_back(0.0F);
  m_history.push_back(0.0F);
  produce(out);
  m_history.assign(1, 0.0F);
  m_position = 1.0;
}

void StreamResampler::produce(std::vector<float>& out) {
  // Each output needs the input samples on both sides of its interval and one more
  // on each side beyond them.
  while (static_cast<std::size_t>(m_position) + 2 < m_history.size()) {
    const auto i = static_cast<std::size_t>(m_position);
    const double t = m_position - static_cast<double>(i);
    const double p0 = m_history[i - 1];
    const double p1 = m_history[i];
    const double p2 = m_history[i + 1];
    const double p3 = m_history[i + 2];
    const double value =
        p1 +
        0.5 * t * (p2 - p0 + t * (2.0 * p0 - 5.0 * p1 + 4.0 * p2 - p3 + t * (3.0 * (p1 - p2) + p3 - p0)));
    out.push_back(static_cast<float>(value));
    m_position += m_step;
  }
  // Drop what no later output reaches, keeping one sample before the position.
  // (Going down in rate, the position may have run past the input already held.)
  const std::size_t keepFrom = std::min(static_cast<std::size_t>(m_position) - 1, m_history.size());
  if (keepFrom > 0) {
    m_history.erase(m_history.begin(), m_history.begin() + static_cast<std::ptrdiff_t>(keepFrom));
    m_position -= static_cast<double>(keepFrom);
  }
}

}  // namespace sonalyx
