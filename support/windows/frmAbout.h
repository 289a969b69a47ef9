#pragma once

#include <QDialog>

#include "custom_brand.h"
#include "desktop_opener.h"
#include "error_reporter.h"
#include "message_box.h"
#include "program_starter.h"
#include "system_information.h"
#include "ui_frmAbout.h"

/// What the About window reaches for. All must outlive it.
struct AboutSurroundings {
  const CCustomBrand& brand;
  DesktopOpener& desktop;
  MessageBox& messages;
  ErrorReporter& errors;
  ProgramStarter& programs;
  SystemInformation& systemInformation;
};

/// Help > About: name, version, where the maker is found, and a way to the system's own information tool.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  frmAbout(QWidget* parent, const AboutSurroundings& surroundings);

 private:
  void lblEmail_MouseDown();
  void cmdSysInfo_Click();

  AboutSurroundings m_surroundings;
  Ui::frmAbout m_form;
};
