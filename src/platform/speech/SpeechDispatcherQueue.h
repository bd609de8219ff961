#pragma once

#include <memory>
#include <string>

namespace sonalyx {

// The program's own connection to speech-dispatcher, the speech service a screen
// reader on Linux speaks through. Texts go in at the "message" priority: they wait
// for the screen reader's speech instead of cutting it off, and its next words do
// not cut them off. Cancelling reaches this connection's messages only, never the
// screen reader's (as the service's cancel-all would).
class SpeechDispatcherQueue {
 public:
  SpeechDispatcherQueue();
  ~SpeechDispatcherQueue();
  SpeechDispatcherQueue(const SpeechDispatcherQueue&) = delete;
  SpeechDispatcherQueue& operator=(const SpeechDispatcherQueue&) = delete;

  // Cancels this connection's earlier text and queues `text`. The connection is
  // opened on first use (SPEECHD_ADDRESS or the user's default socket) and again
  // after the service went away; false when the service cannot be reached.
  bool say(const std::string& text);
  void cancel();

 private:
  struct Connection;
  bool connect();

  std::unique_ptr<Connection> m_connection;
};

}  // namespace sonalyx
