#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace sonalyx {

// Hands an utterance to a shared speech service one sentence at a time. Some
// services can only be interrupted by silencing every program that speaks through
// them (a screen reader too); the program never does that, so instead it keeps the
// rest of an utterance to itself: a new utterance replaces the sentences not yet
// handed over, and the old one ends with the sentence being spoken.
class SentencePacer {
 public:
  // Splits after '.', '!', '?', ';' or ':' followed by white space, so "0.333" and
  // "x = 2, y = 3" stay whole; blank pieces are dropped.
  static std::vector<std::string> sentences(const std::string& text);

  // A new utterance: returns its first sentence when the service is free, else
  // keeps it (dropping whatever was kept before) until finished() is called.
  std::optional<std::string> speak(const std::string& text);
  // The service finished (or dropped) the sentence it had: the next one, if any.
  std::optional<std::string> finished();
  // Forgets the sentences not yet handed over; the one being spoken runs out.
  void clear() { m_waiting.clear(); }

  bool serviceBusy() const { return m_serviceBusy; }
  bool hasWaiting() const { return !m_waiting.empty(); }

 private:
  std::optional<std::string> handOver();

  std::deque<std::string> m_waiting;
  bool m_serviceBusy = false;
};

}  // namespace sonalyx
