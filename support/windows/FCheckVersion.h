#pragma once

#include <memory>
#include <QDialog>

#include "custom_brand.h"
#include "start_status.h"
#include "ui_FCheckVersion.h"

/// The prompt of the first use: may the program ask the maker's server for a newer version? Without a yes it
/// asks nothing.
class FCheckVersion : public QDialog {
  Q_OBJECT

 public:
  FCheckVersion(const CCustomBrand& brand, std::shared_ptr<CStartStatus> startStatus);

 private:
  void cmdCheck_Click();

  Ui::FCheckVersion m_form;
  std::shared_ptr<CStartStatus> m_startStatus;
};
