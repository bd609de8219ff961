#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/speech/ScreenReader.h"

namespace sonalyx::test {

// A screen reader for tests: runs when told to, and writes down the texts put in
// its queue and how often the program withdrew its own.
class CaptureScreenReader : public ScreenReader {
 public:
  bool running() const override { return m_running; }
  bool present(const std::string& text) override {
    m_presented.push_back(text);
    return m_accepts;
  }
  void cancel() override { ++m_cancels; }

  void setRunning(bool running) { m_running = running; }
  // A queue that refuses leaves the text to the program's own voice.
  void setAccepts(bool accepts) { m_accepts = accepts; }
  // Everything queued since the last call.
  std::vector<std::string> take() { return std::exchange(m_presented, {}); }
  int cancels() const { return m_cancels; }

 private:
  bool m_running = false;
  bool m_accepts = true;
  std::vector<std::string> m_presented;
  int m_cancels = 0;
};

}  // namespace sonalyx::test
