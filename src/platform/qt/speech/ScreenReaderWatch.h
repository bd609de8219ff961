#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace sonalyx {

// What DesktopScreenReader knows of the session bus, kept up to date by its
// signals: the desktop's screen-reader flag, the connections that belong to a
// screen reader process, and whether Orca's remote-control service is there.
class ScreenReaderWatch : public QObject {
  Q_OBJECT
 public:
  explicit ScreenReaderWatch(QDBusConnection bus, QObject* parent = nullptr);

  bool running() const { return m_flag || !m_readerConnections.isEmpty() || m_orcaService; }
  bool orcaService() const { return m_orcaService; }
  const QDBusConnection& bus() const { return m_bus; }

 private slots:
  void onStatusChanged(const QString& interface, const QVariantMap& changed, const QStringList& invalidated);
  void onNameOwnerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);

 private:
  void readFlag();
  void checkConnection(const QString& uniqueName);

  QDBusConnection m_bus;
  bool m_flag = false;
  bool m_orcaService = false;
  QSet<QString> m_readerConnections;
};

}  // namespace sonalyx
