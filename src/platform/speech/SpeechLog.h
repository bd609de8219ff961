#pragma once

#include <fstream>
#include <memory>
#include <string>

namespace sonalyx {

// A written record of everything the program says: one line per utterance, the
// text as it was spoken, appended to a file and flushed at once so that another
// program (or a test) can follow it while the program runs.
class SpeechLog {
 public:
  // Opens `path` for appending; check isOpen().
  explicit SpeechLog(const std::string& path);

  // The log SONALYX_SPEECH_LOG names; nothing when it is unset or cannot be opened.
  static std::unique_ptr<SpeechLog> fromEnvironment();

  bool isOpen() const { return m_file.is_open() && m_file.good(); }
  // Line breaks inside the text become blanks, so an utterance stays one line.
  void append(const std::string& text);

 private:
  std::ofstream m_file;
};

}  // namespace sonalyx
