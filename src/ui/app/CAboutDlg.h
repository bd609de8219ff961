#pragma once

#include <QDialog>

class QPushButton;

namespace sonalyx::ui {

class CHyperLink;
class CTTSStatic;

// The About box: the product, its version, where to send comments (a web link and
// a mail link) and the disclaimer. Every line can be reached with Tab and speaks;
// the product line has the focus when the box opens, so it is heard at once.
class CAboutDlg : public QDialog {
  Q_OBJECT
 public:
  explicit CAboutDlg(QWidget* parent = nullptr);

  // "Version" (translated), a blank and the product version.
  static QString versionLine();
  // "Licence: " and the program's licence.
  static QString licenceLine();
  // "Libraries used: " and each library with its licence (Qt with its version).
  static QString librariesLine();

  CTTSStatic* productLine() const { return m_product; }
  CHyperLink* webLink() const { return m_web; }
  CHyperLink* mailLink() const { return m_mail; }
  QPushButton* okButton() const { return m_ok; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  CTTSStatic* m_product = nullptr;
  CHyperLink* m_web = nullptr;
  CHyperLink* m_mail = nullptr;
  QPushButton* m_ok = nullptr;
};

}  // namespace sonalyx::ui
