#pragma once

#include <cstddef>

namespace sonalyx {

// A gain that moves towards its target by a fixed step a frame, so every change of
// level (start, stop, a gap in the data, a change of timbre) takes a set time and
// never clicks.
class LinearRamp {
 public:
  LinearRamp(float start, std::size_t framesForFullSwing)
      : m_value(start), m_step(1.0f / static_cast<float>(framesForFullSwing == 0 ? 1 : framesForFullSwing)) {}

  float value() const { return m_value; }

  float next(float target) {
    if (m_value < target) {
      m_value = m_value + m_step > target ? target : m_value + m_step;
    } else if (m_value > target) {
      m_value = m_value - m_step < target ? target : m_value - m_step;
    }
    return m_value;
  }

 private:
  float m_value;
  float m_step;
};

}  // namespace sonalyx
