#include "FUpdateVersion.h"

#include "tagged_captions.h"

FUpdateVersion::FUpdateVersion(QWidget* parent, const QString& title, const QString& message, bool canUpdate)
    : QDialog(parent) {
  m_form.setupUi(this);
  TaggedCaptions captions;
  captions.capture(*this, {});
  captions.apply();
  setWindowTitle(title);
  m_form.txtMessage->setPlainText(message);
  m_form.txtMessage->setAccessibleName(title);
  m_form.cmdUpdate->setEnabled(canUpdate);
  connect(m_form.cmdUpdate, &QPushButton::clicked, this, &QDialog::accept);
  connect(m_form.cmdDoNotUpgrade, &QPushButton::clicked, this, &QDialog::reject);
}
