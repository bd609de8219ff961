#include "ui/pages/CCaptionPage.h"

#include <QVBoxLayout>

#include "ui/controls/CTTSStatic.h"

namespace sonalyx::ui {

CCaptionPage::CCaptionPage(const QString& caption, QWidget* parent)
    : CCalcPage(caption, parent), m_title(new CTTSStatic(caption, this)) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_title);
  layout->addStretch(1);
}

}  // namespace sonalyx::ui
