#pragma once

#include <QHash>
#include <QString>
#include <map>

#include "core/engines/CCalcEngine.h"
#include "core/speech/CalculatorKeyTable.h"
#include "ui/sheet/CCalcPage.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace sonalyx::ui {

class CTTSComboBox;
class CTTSEdit;

// The scientific calculator: 53 keys, the display, the memory indicator, the
// number base and angle unit, Inverse and Hyperbolic. Every key, pressed or typed,
// goes through the engine; the page shows the display afterwards and says the
// key's name, followed by the display where the key gives a result.
class CCalculatorPage : public CCalcPage {
  Q_OBJECT
 public:
  explicit CCalculatorPage(const QString& caption, QWidget* parent = nullptr);

  // A key or page command by its command id, as the keyboard and the key buttons
  // press it.
  void OnCommand(int id);

  CTTSEdit* display() const { return m_display; }
  QLabel* memoryIndicator() const { return m_memory; }
  CTTSComboBox* baseSelector() const { return m_base; }
  CTTSComboBox* angleSelector() const { return m_angle; }
  QCheckBox* inverseBox() const { return m_inverse; }
  QCheckBox* hyperbolicBox() const { return m_hyperbolic; }
  // The key button with this command id; nullptr for none.
  QPushButton* key(int id) const;
  const CCalcEngine& engine() const { return m_engine; }

 protected:
  bool PreTranslateKey(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void buildControls();
  QPushButton* makeKey(const CalculatorKey& key);
  void pressKey(int id);
  // The earcon and the words of a key that was pressed: its name, and the display
  // after it when it gives a result.
  void keyFeedback(int id, bool withDisplay);
  void toggleBox(QCheckBox* box, bool hyperbolic);
  void applyBase(int index);
  void showDisplay();
  void sayMemory();
  int focusedCommandId() const;
  bool ownsFocus() const;
  bool autoReturn() const;

  CCalcEngine m_engine;
  CalculatorKeyTable m_keyTable;
  CTTSEdit* m_display = nullptr;
  QLabel* m_memory = nullptr;
  CTTSComboBox* m_base = nullptr;
  CTTSComboBox* m_angle = nullptr;
  QCheckBox* m_inverse = nullptr;
  QCheckBox* m_hyperbolic = nullptr;
  std::map<int, QPushButton*> m_keys;
  // The command id of every control that has one: keys and check boxes.
  QHash<const QWidget*, int> m_commandIds;
};

}  // namespace sonalyx::ui
