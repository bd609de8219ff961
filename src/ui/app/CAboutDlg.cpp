#include "ui/app/CAboutDlg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QStringList>
#include <QVBoxLayout>

#include "core/speech/TranslationMarker.h"
#include "ui/app/CAccessibilityHooks.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/ProductInfo.h"
#include "ui/app/ProgramIcon.h"
#include "ui/controls/CHyperLink.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSStatic.h"

namespace sonalyx::ui {

namespace {

QString joinedTranslations(std::initializer_list<const char*> parts) {
  QString text;
  for (const char* part : parts) text += Translate(part);
  return text;
}

CTTSStatic* addLine(QVBoxLayout* layout, const QString& text, QWidget* parent) {
  auto* line = new CTTSStatic(text, parent);
  line->setWordWrap(true);
  layout->addWidget(line);
  return line;
}

}  // namespace

QString CAboutDlg::versionLine() {
  return QStringLiteral("%1 %2").arg(Translate("Version"), QString::fromUtf8(product::kVersion));
}

QString CAboutDlg::licenceLine() {
  return Translate("Licence: ") + Translate(product::kLicence) + QLatin1Char('.');
}

QString CAboutDlg::librariesLine() {
  QStringList parts;
  for (const product::UsedLibrary& library : product::kLibraries) {
    QString name = QString::fromUtf8(library.name);
    if (name == QStringLiteral("Qt")) name += QLatin1Char(' ') + QString::fromLatin1(qVersion());
    parts << QStringLiteral("%1 (%2)").arg(name, Translate(library.licence));
  }
  return Translate("Libraries used: ") + parts.join(QStringLiteral("; ")) + QLatin1Char('.');
}

CAboutDlg::CAboutDlg(QWidget* parent) : QDialog(parent) {
  CAccessibilityHooks::markSelfVoiced(this);
  setWindowTitle(Translate("About Sonalyx"));
  setAccessibleName(windowTitle());

  auto* icon = new QLabel(this);
  icon->setPixmap(programIcon().pixmap(48, 48));
  icon->setAccessibleName(Translate(product::kTitle));

  auto* text = new QVBoxLayout();
  m_product = addLine(text, Translate("Sonalyx"), this);
  QFont bold = m_product->font();
  bold.setBold(true);
  m_product->setFont(bold);
  addLine(text, Translate("with Sonitrace Technology"), this);
  addLine(text,
          joinedTranslations(
              {SLX_TR("The Sonalyx is a scientific graphing "),
               SLX_TR("calculator.  It provides standard functions for computation and two "),
               SLX_TR("dimensional graphing of mathematical expressions.  The Program is "),
               SLX_TR("entirely self-voicing and provides auditory response for program navigation.")}),
          this);
  addLine(text, versionLine(), this);
  addLine(text, licenceLine(), this);
  addLine(text, librariesLine(), this);
  addLine(text, Translate("Send comments and suggestions to:"), this);

  m_web = new CHyperLink(QString::fromUtf8(product::kWebAddress), this);
  m_web->setLinkTarget(QString::fromUtf8(product::kWebAddress));
  text->addWidget(m_web);
  m_mail = new CHyperLink(QString::fromUtf8(product::kEmailAddress), this);
  m_mail->setLinkTarget(QStringLiteral("mailto:") + QString::fromUtf8(product::kEmailAddress));
  text->addWidget(m_mail);

  addLine(text,
          joinedTranslations({SLX_TR("This program supplied as is.  No implied or "),
                              SLX_TR("expressed warranty exists for the performance "),
                              SLX_TR("and function of this software.")}),
          this);

  m_ok = new QPushButton(Translate("OK"), this);
  m_ok->setDefault(true);
  auto* okVoice = new CTTSButton(m_ok);
  okVoice->setAnnounceType(true);
  connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);

  auto* top = new QHBoxLayout();
  top->addWidget(icon, 0, Qt::AlignTop);
  top->addLayout(text, 1);
  auto* buttons = new QHBoxLayout();
  buttons->addStretch(1);
  buttons->addWidget(m_ok);
  buttons->addStretch(1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addLayout(buttons);
  setMinimumWidth(400);
}

void CAboutDlg::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  m_product->setFocus(Qt::OtherFocusReason);
}

}  // namespace sonalyx::ui
