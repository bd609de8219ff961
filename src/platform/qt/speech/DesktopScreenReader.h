#pragma once

#include <memory>

#include "platform/speech/ScreenReader.h"

namespace sonalyx {

// The screen reader of the desktop session, found on the session bus and watched
// as long as the object lives: running while the desktop says its screen reader
// is on (org.a11y.Status ScreenReaderEnabled) or while a screen reader process
// holds a connection to this session's bus (Orca started by hand leaves that flag
// false). Content goes to Orca's own remote-control service when it offers one
// (org.gnome.Orca.Service PresentMessage: in the user's voice and in braille),
// otherwise into speech-dispatcher's queue. Needs the Qt event loop; without a
// session bus nothing ever runs.
class DesktopScreenReader : public ScreenReader {
 public:
  DesktopScreenReader();
  ~DesktopScreenReader() override;
  DesktopScreenReader(const DesktopScreenReader&) = delete;
  DesktopScreenReader& operator=(const DesktopScreenReader&) = delete;

  bool running() const override;
  bool present(const std::string& text) override;
  void cancel() override;

 private:
  struct Impl;
  std::unique_ptr<Impl> m_impl;
};

}  // namespace sonalyx
