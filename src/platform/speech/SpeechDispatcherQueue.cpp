#include "platform/speech/SpeechDispatcherQueue.h"

#include <libspeechd.h>
#include <pthread.h>
#include <signal.h>

#include <cstdlib>
#include <ctime>

namespace sonalyx {

namespace {

// A write to a service that went away raises SIGPIPE, which would end the
// program: held back on this thread while the library talks, and dropped after.
class PipeSignalHeld {
 public:
  PipeSignalHeld() {
    sigemptyset(&m_pipe);
    sigaddset(&m_pipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &m_pipe, &m_old);
  }
  ~PipeSignalHeld() {
    sigset_t pending;
    sigpending(&pending);
    if (sigismember(&pending, SIGPIPE) == 1) {
      const timespec now{0, 0};
      sigtimedwait(&m_pipe, nullptr, &now);
    }
    pthread_sigmask(SIG_SETMASK, &m_old, nullptr);
  }
  PipeSignalHeld(const PipeSignalHeld&) = delete;
  PipeSignalHeld& operator=(const PipeSignalHeld&) = delete;

 private:
  sigset_t m_pipe;
  sigset_t m_old;
};

}  // namespace

struct SpeechDispatcherQueue::Connection {
  SPDConnection* spd;
  ~Connection() { spd_close(spd); }
};

SpeechDispatcherQueue::SpeechDispatcherQueue() = default;

SpeechDispatcherQueue::~SpeechDispatcherQueue() {
  const PipeSignalHeld held;
  m_connection.reset();
}

bool SpeechDispatcherQueue::connect() {
  if (m_connection) return true;
  char* error = nullptr;
  // Never started from here: a screen reader that speaks has its service running.
  SPDConnection* spd = spd_open2("sonalyx", "content", nullptr, SPD_MODE_SINGLE, nullptr, 0, &error);
  std::free(error);
  if (spd == nullptr) return false;
  m_connection.reset(new Connection{spd});
  return true;
}

bool SpeechDispatcherQueue::say(const std::string& text) {
  const PipeSignalHeld held;
  // A second try on a fresh connection: the service may have been restarted.
  for (int attempt = 0; attempt < 2; ++attempt) {
    if (!connect()) return false;
    spd_cancel(m_connection->spd);
    if (spd_say(m_connection->spd, SPD_MESSAGE, text.c_str()) >= 0) return true;
    m_connection.reset();
  }
  return false;
}

void SpeechDispatcherQueue::cancel() {
  if (!m_connection) return;
  const PipeSignalHeld held;
  if (spd_cancel(m_connection->spd) < 0) m_connection.reset();
}

}  // namespace sonalyx
