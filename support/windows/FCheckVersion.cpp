#include "FCheckVersion.h"

#include <utility>

#include "tagged_captions.h"

FCheckVersion::FCheckVersion(const CCustomBrand& brand, std::shared_ptr<CStartStatus> startStatus)
    : m_startStatus(std::move(startStatus)) {
  m_form.setupUi(this);
  TaggedCaptions captions;
  captions.capture(*this, {});
  captions.apply();
  m_form.lblCheck->setText(brand.named(m_form.lblCheck->text()));
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  connect(m_form.cmdCheck, &QPushButton::clicked, this, &FCheckVersion::cmdCheck_Click);
  connect(m_form.cmdDoNotCheck, &QPushButton::clicked, this, &QDialog::reject);
}

void FCheckVersion::cmdCheck_Click() {
  m_startStatus->CheckForUpdate();
  accept();
}
