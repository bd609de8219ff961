#include "platform/sound/OutputSequencer.h"

#include <algorithm>
#include <limits>

namespace sonalyx {

namespace {
constexpr double kNoLead = -std::numeric_limits<double>::infinity();
}

OutputSequencer::OutputSequencer(AudioOutput& output)
    : OutputSequencer(output, [&output] { return output.nowMs(); }) {}

OutputSequencer::OutputSequencer(AudioOutput& output, Clock clock)
    : m_output(output), m_clock(std::move(clock)), m_speechFromMs(kNoLead) {}

OutputSequencer& OutputSequencer::instance() {
  static OutputSequencer sequencer(AudioOutput::instance());
  return sequencer;
}

void OutputSequencer::leadSpeech(double ms) {
  m_speechFromMs = m_clock() + std::max(0.0, ms);
}

double OutputSequencer::speechDelayMs() const {
  return std::max(0.0, m_speechFromMs - m_clock());
}

void OutputSequencer::stopAll() {
  m_speechFromMs = kNoLead;
  m_output.stopAll();
  if (m_silenceSpeech) m_silenceSpeech();
}

}  // namespace sonalyx
