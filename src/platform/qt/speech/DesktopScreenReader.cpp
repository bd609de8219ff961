#include "platform/qt/speech/DesktopScreenReader.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "platform/qt/speech/ScreenReaderWatch.h"
#include "platform/speech/SpeechDispatcherQueue.h"

namespace sonalyx {

struct DesktopScreenReader::Impl {
  ScreenReaderWatch watch{QDBusConnection::sessionBus()};
  SpeechDispatcherQueue queue;
};

DesktopScreenReader::DesktopScreenReader() : m_impl(std::make_unique<Impl>()) {}

DesktopScreenReader::~DesktopScreenReader() = default;

bool DesktopScreenReader::running() const {
  return m_impl->watch.running();
}

bool DesktopScreenReader::present(const std::string& text) {
  Impl& impl = *m_impl;
  if (!impl.watch.orcaService()) return impl.queue.say(text);
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.gnome.Orca.Service"), QStringLiteral("/org/gnome/Orca/Service"),
      QStringLiteral("org.gnome.Orca.Service"), QStringLiteral("PresentMessage"));
  call.setArguments({QString::fromStdString(text)});
  // Not waited for: a refusal sends the text to the speech queue after all.
  auto* watcher = new QDBusPendingCallWatcher(impl.watch.bus().asyncCall(call), &impl.watch);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &impl.watch, [&impl, watcher, text] {
    const QDBusPendingReply<bool> reply = *watcher;
    if (reply.isError() || !reply.value()) impl.queue.say(text);
    watcher->deleteLater();
  });
  return true;
}

void DesktopScreenReader::cancel() {
  m_impl->queue.cancel();
}

}  // namespace sonalyx
