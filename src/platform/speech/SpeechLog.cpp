#include "platform/speech/SpeechLog.h"

#include <cstdlib>

namespace sonalyx {

SpeechLog::SpeechLog(const std::string& path)
    : m_file(path, std::ios::out | std::ios::app | std::ios::binary) {}

std::unique_ptr<SpeechLog> SpeechLog::fromEnvironment() {
  const char* path = std::getenv("SONALYX_SPEECH_LOG");
  if (path == nullptr || *path == '\0') return nullptr;
  auto log = std::make_unique<SpeechLog>(path);
  return log->isOpen() ? std::move(log) : nullptr;
}

void SpeechLog::append(const std::string& text) {
  std::string line = text;
  for (char& c : line) {
    if (c == '\n' || c == '\r') c = ' ';
  }
  m_file << line << '\n';
  m_file.flush();
}

}  // namespace sonalyx
