#include "platform/qt/speech/ScreenReaderWatch.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>
#include <string>
#include <vector>

#include "core/speech/ScreenReaderProcess.h"

namespace sonalyx {

namespace {

const QString kBusService = QStringLiteral("org.freedesktop.DBus");
const QString kBusPath = QStringLiteral("/org/freedesktop/DBus");
const QString kA11yService = QStringLiteral("org.a11y.Bus");
const QString kA11yPath = QStringLiteral("/org/a11y/bus");
const QString kStatusInterface = QStringLiteral("org.a11y.Status");
const QString kPropertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString kFlag = QStringLiteral("ScreenReaderEnabled");
const QString kOrcaService = QStringLiteral("org.gnome.Orca.Service");

bool isScreenReaderPid(quint32 pid) {
  QFile comm(QStringLiteral("/proc/%1/comm").arg(pid));
  QFile cmdline(QStringLiteral("/proc/%1/cmdline").arg(pid));
  if (!comm.open(QIODevice::ReadOnly)) return false;
  const std::string shortName = comm.readAll().trimmed().toStdString();
  std::vector<std::string> commandLine;
  if (cmdline.open(QIODevice::ReadOnly))
    for (const QByteArray& part : cmdline.readAll().split('\0'))
      if (!part.isEmpty()) commandLine.push_back(part.toStdString());
  return isScreenReaderProcess(shortName, commandLine);
}

// Calls a method of the bus itself and hands the reply's first value to `done`;
// an error reply is dropped.
template <typename T, typename Done>
void askBus(QDBusConnection& bus, QObject* context, const QString& method, const QVariantList& arguments,
            Done done) {
  QDBusMessage call = QDBusMessage::createMethodCall(kBusService, kBusPath, kBusService, method);
  call.setArguments(arguments);
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), context);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, done] {
    const QDBusPendingReply<T> reply = *watcher;
    if (!reply.isError()) done(reply.value());
    watcher->deleteLater();
  });
}

}  // namespace

ScreenReaderWatch::ScreenReaderWatch(QDBusConnection bus, QObject* parent) : QObject(parent), m_bus(bus) {
  if (!m_bus.isConnected()) return;
  // Watched from here on, then asked once, so that no change falls in between.
  m_bus.connect(kA11yService, kA11yPath, kPropertiesInterface, QStringLiteral("PropertiesChanged"), this,
                SLOT(onStatusChanged(QString, QVariantMap, QStringList)));
  m_bus.connect(kBusService, kBusPath, kBusService, QStringLiteral("NameOwnerChanged"), this,
                SLOT(onNameOwnerChanged(QString, QString, QString)));
  readFlag();
  askBus<QStringList>(m_bus, this, QStringLiteral("ListNames"), {}, [this](const QStringList& names) {
    for (const QString& name : names) {
      if (name.startsWith(QLatin1Char(':')))
        checkConnection(name);
      else if (name == kOrcaService)
        m_orcaService = true;
    }
  });
}

void ScreenReaderWatch::readFlag() {
  QDBusMessage get =
      QDBusMessage::createMethodCall(kA11yService, kA11yPath, kPropertiesInterface, QStringLiteral("Get"));
  get.setArguments({kStatusInterface, kFlag});
  auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(get), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    if (!reply.isError()) m_flag = reply.value().variant().toBool();
    watcher->deleteLater();
  });
}

void ScreenReaderWatch::checkConnection(const QString& uniqueName) {
  askBus<quint32>(m_bus, this, QStringLiteral("GetConnectionUnixProcessID"), {uniqueName},
                  [this, uniqueName](quint32 pid) {
                    if (isScreenReaderPid(pid)) m_readerConnections.insert(uniqueName);
                  });
}

void ScreenReaderWatch::onStatusChanged(const QString& interface, const QVariantMap& changed,
                                        const QStringList& invalidated) {
  if (interface != kStatusInterface) return;
  if (changed.contains(kFlag))
    m_flag = changed.value(kFlag).toBool();
  else if (invalidated.contains(kFlag))
    readFlag();
}

void ScreenReaderWatch::onNameOwnerChanged(const QString& name, const QString& /*oldOwner*/,
                                           const QString& newOwner) {
  if (name == kOrcaService) {
    m_orcaService = !newOwner.isEmpty();
  } else if (name.startsWith(QLatin1Char(':'))) {
    if (newOwner.isEmpty())
      m_readerConnections.remove(name);
    else
      checkConnection(name);
  } else if (name == kA11yService && !newOwner.isEmpty()) {
    // A restarted accessibility bus starts with its own flag.
    readFlag();
  }
}

}  // namespace sonalyx
