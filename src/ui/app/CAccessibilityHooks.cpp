#include "ui/app/CAccessibilityHooks.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStringList>
#include <QWidget>

#include "core/speech/TranslationMarker.h"
#include "ui/app/CGraphCalcApp.h"

namespace sonalyx::ui {

namespace {

// The words a role is read as; roles without a word add nothing.
const char* roleWord(QAccessible::Role role) {
  switch (role) {
    case QAccessible::Button:
      return SLX_TR("button");
    case QAccessible::CheckBox:
      return SLX_TR("check box");
    case QAccessible::RadioButton:
      return SLX_TR("radio button");
    case QAccessible::EditableText:
      return SLX_TR("edit");
    case QAccessible::ComboBox:
      return SLX_TR("combo box");
    case QAccessible::List:
      return SLX_TR("list");
    case QAccessible::ListItem:
      return SLX_TR("list item");
    case QAccessible::Tree:
      return SLX_TR("tree");
    case QAccessible::TreeItem:
      return SLX_TR("tree item");
    case QAccessible::Table:
      return SLX_TR("table");
    case QAccessible::Cell:
      return SLX_TR("cell");
    case QAccessible::SpinBox:
      return SLX_TR("spin box");
    case QAccessible::Slider:
      return SLX_TR("slider");
    case QAccessible::StaticText:
      return SLX_TR("text");
    case QAccessible::Link:
      return SLX_TR("link");
    case QAccessible::PageTab:
      return SLX_TR("tab");
    case QAccessible::MenuItem:
      return SLX_TR("menu item");
    default:
      return nullptr;
  }
}

// The top-level window a widget belongs to, looking through popups to the window
// they were opened from.
const QWidget* owningWindow(const QWidget* widget) {
  const QWidget* window = widget ? widget->window() : nullptr;
  while (window && window->windowType() == Qt::Popup && window->parentWidget())
    window = window->parentWidget()->window();
  return window;
}

}  // namespace

CAccessibilityHooks::CAccessibilityHooks(QObject* parent) : QObject(parent) {}

CAccessibilityHooks::~CAccessibilityHooks() {
  Stop();
}

void CAccessibilityHooks::setAccessibility(bool on) {
  QAccessible::setActive(on);
}

void CAccessibilityHooks::Start(QWidget* mainWindow, SpeakCallback callback) {
  Stop();
  m_mainWindow = mainWindow;
  m_callback = std::move(callback);
  connect(qApp, &QApplication::focusChanged, this, &CAccessibilityHooks::onFocusChanged);
  m_running = true;
}

void CAccessibilityHooks::Stop() {
  if (!m_running) return;
  disconnect(qApp, &QApplication::focusChanged, this, &CAccessibilityHooks::onFocusChanged);
  m_running = false;
  m_callback = nullptr;
  m_lastWindow = nullptr;
}

void CAccessibilityHooks::markSelfVoiced(QWidget* window) {
  window->setProperty(kSelfVoicedProperty, true);
}

bool CAccessibilityHooks::isInSelfVoicedWindow(const QWidget* widget) {
  const QWidget* window = owningWindow(widget);
  return window && window->property(kSelfVoicedProperty).toBool();
}

QString CAccessibilityHooks::describe(QObject* object) {
  QAccessibleInterface* iface = object ? QAccessible::queryAccessibleInterface(object) : nullptr;
  if (!iface || !iface->isValid()) return {};
  QStringList parts;
  const QString name = iface->text(QAccessible::Name).trimmed();
  if (!name.isEmpty()) parts << name;
  if (const char* word = roleWord(iface->role())) parts << Translate(QString::fromLatin1(word));
  const QAccessible::State state = iface->state();
  QString value = iface->text(QAccessible::Value).trimmed();
  if (value.isEmpty() && state.checkable)
    value = state.checked ? Translate("checked") : Translate("not checked");
  if (!value.isEmpty() && value != name) parts << value;
  return parts.join(QStringLiteral(", "));
}

QString CAccessibilityHooks::textForFocus(QWidget* now) {
  if (!now || isInSelfVoicedWindow(now)) return {};
  // Menus speak through the main frame's menu speech.
  if (qobject_cast<QMenu*>(now) || qobject_cast<QMenuBar*>(now)) return {};
  QString text;
  const QWidget* window = owningWindow(now);
  if (window != m_lastWindow) {
    m_lastWindow = const_cast<QWidget*>(window);
    QStringList intro;
    if (window && !window->windowTitle().isEmpty()) intro << window->windowTitle();
    if (const auto* box = qobject_cast<const QMessageBox*>(window)) {
      if (!box->text().isEmpty()) intro << box->text();
      if (!box->informativeText().isEmpty()) intro << box->informativeText();
    }
    for (QString& part : intro) {
      part = part.trimmed();
      if (!part.endsWith('.') && !part.endsWith('?') && !part.endsWith('!') && !part.endsWith(':'))
        part += '.';
    }
    text = intro.join(' ');
  }
  const QString focused = describe(now);
  if (!focused.isEmpty()) text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + focused;
  return text;
}

void CAccessibilityHooks::onFocusChanged(QWidget* /*old*/, QWidget* now) {
  if (!m_callback) return;
  if (now && isInSelfVoicedWindow(now)) {
    m_lastWindow = nullptr;
    return;
  }
  const QString text = textForFocus(now);
  if (!text.isEmpty()) m_callback(text);
}

}  // namespace sonalyx::ui
