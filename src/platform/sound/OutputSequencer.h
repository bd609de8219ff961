#pragma once

#include <functional>
#include <string>

#include "platform/sound/AudioOutput.h"

namespace sonalyx {

// Keeps sound and speech in the order the user must hear them without ever making
// the caller wait. Where a command would have paused after a sound (an earcon's
// 250 ms, a point tone's 175 ms, a sweep's share of the play time) it tells the
// sequencer instead, and the next utterance is scheduled to start when the pause
// would have ended, sample-accurately on the output's clock. A newer lead replaces
// an older one: the latest command decides what the speech waits for.
class OutputSequencer {
 public:
  // Milliseconds on some clock that runs with the output (the output's own by default).
  using Clock = std::function<double()>;

  explicit OutputSequencer(AudioOutput& output);
  OutputSequencer(AudioOutput& output, Clock clock);

  // The program-wide sequencer over AudioOutput::instance().
  static OutputSequencer& instance();

  AudioOutput& output() const { return m_output; }
  double nowMs() const { return m_clock(); }

  // A sound has just started that the next utterance must not begin before `ms`
  // from now.
  void leadSpeech(double ms);
  // How long an utterance handed over now must wait (0 when nothing leads it).
  double speechDelayMs() const;

  // Silences everything at once: the graph, the earcon, the speech and anything
  // waiting to start, and forgets the lead.
  void stopAll();
  // What stopAll() must also silence that the output does not hold (the voice).
  void setSpeechSilencer(std::function<void()> silence) { m_silenceSpeech = std::move(silence); }

 private:
  AudioOutput& m_output;
  Clock m_clock;
  double m_speechFromMs;
  std::function<void()> m_silenceSpeech;
};

}  // namespace sonalyx
