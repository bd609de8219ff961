#pragma once

#include <string>

namespace sonalyx {

// The screen reader of the user's session, as the voice sees it: whether one runs,
// and a way to put the program's content in its queue. Used from the
// user-interface thread only.
class ScreenReader {
 public:
  virtual ~ScreenReader() = default;

  // Whether a screen reader runs in this session now (it may start or end at any time).
  virtual bool running() const = 0;
  // Queues `text` after what the screen reader is saying, in its voice, replacing
  // the program's own text still waiting there. False when it could not be handed
  // over: the program's own voice says it then.
  virtual bool present(const std::string& text) = 0;
  // Withdraws the program's own queued or spoken text; the screen reader's speech
  // is never touched.
  virtual void cancel() = 0;
};

}  // namespace sonalyx
