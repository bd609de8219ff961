#pragma once

#include <QDialog>
#include <QString>

class QPushButton;

namespace sonalyx::ui {

class CTTSStatic;

// A modal message box that speaks: when it opens it beeps and gives its message
// the focus, so that the message is read out; the message may be a link.
class CTTSMsgBox : public QDialog {
  Q_OBJECT
 public:
  // The identifier of the message control (its object name), as pages look it up.
  static constexpr int kMessageControlId = 1014;

  explicit CTTSMsgBox(QWidget* parent = nullptr);

  void setTitle(const QString& title) { m_title = title; }
  void setMessage(const QString& message) { m_message = message; }
  void setLinkTarget(const QString& target) { m_linkTarget = target; }
  // Translated when the box opens; "OK" unless set.
  void setButtonText(const QString& english) { m_buttonText = english; }
  void setBoxSize(int width, int height);
  // Show the message as a link to the link target.
  void setLinkMode(bool on) { m_linkMode = on; }
  // Left-align the message instead of centring it.
  void setLeftAlign(bool on) { m_leftAlign = on; }

  CTTSStatic* messageControl() const { return m_messageControl; }
  QPushButton* okButton() const { return m_okButton; }

  // Builds the box (title, message control, button, layout); done as it opens.
  void prepare();

  void setVisible(bool visible) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QString m_title;
  QString m_message;
  QString m_linkTarget;
  QString m_buttonText = QStringLiteral("OK");
  int m_width = 280;
  int m_height = 320;
  bool m_linkMode = false;
  bool m_leftAlign = false;
  bool m_prepared = false;
  CTTSStatic* m_messageControl = nullptr;
  QPushButton* m_okButton = nullptr;
};

}  // namespace sonalyx::ui
