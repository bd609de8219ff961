#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QRadioButton;

namespace sonalyx::ui {

// The Speech page's "General" dialog: which speech engine speaks, eSpeak NG (the
// program's own voice) or the system's speech service (speech-dispatcher). Its
// controls speak; the chosen engine's button has the focus as it opens.
class CSpeechEngineDlg : public QDialog {
  Q_OBJECT
 public:
  // The engines offered, by the names the settings keep.
  static const std::vector<std::string>& engineNames();
  // An engine's name as the user reads it.
  static QString displayName(const std::string& engine);

  CSpeechEngineDlg(const std::string& current, QWidget* parent = nullptr);

  std::string chosen() const;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  std::vector<QRadioButton*> m_choices;
};

}  // namespace sonalyx::ui
