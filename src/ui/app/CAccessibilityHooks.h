#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>

class QWidget;

namespace sonalyx::ui {

// Makes the windows that the program does not voice itself speak: the standard
// file, print, input and message dialogs. On every focus change inside such a
// window the hooks hand a text to the callback: the window's title (and a message
// box's message) when the focus has just entered it, then the focused object's
// accessible name, role and value.
//
// The hooks only listen to the application's focus changes; Qt's own accessibility
// bridge stays as it is, so a screen reader keeps working beside them.
class CAccessibilityHooks : public QObject {
  Q_OBJECT
 public:
  using SpeakCallback = std::function<void(const QString&)>;

  // The property that marks a top-level window whose controls speak for themselves.
  static constexpr const char* kSelfVoicedProperty = "sonalyxSelfVoiced";

  explicit CAccessibilityHooks(QObject* parent = nullptr);
  ~CAccessibilityHooks() override;

  // Switches Qt's accessibility support on (true), so that every widget answers
  // for its name, role and value.
  static void setAccessibility(bool on);

  void Start(QWidget* mainWindow, SpeakCallback callback);
  void Stop();
  bool running() const { return m_running; }

  static void markSelfVoiced(QWidget* window);
  // True for a widget inside a window marked self-voiced; a popup (a menu, a combo
  // box's list) belongs to the window it pops up from.
  static bool isInSelfVoicedWindow(const QWidget* widget);

  // "name, role, value" of an object, each part translated where it is a fixed word
  // and left out when empty.
  static QString describe(QObject* object);
  // What the hooks say when the focus moves to `now` inside a window that does not
  // speak for itself; empty when nothing is to be said.
  QString textForFocus(QWidget* now);

 private:
  void onFocusChanged(QWidget* old, QWidget* now);

  bool m_running = false;
  QPointer<QWidget> m_mainWindow;
  QPointer<QWidget> m_lastWindow;
  SpeakCallback m_callback;
};

}  // namespace sonalyx::ui
