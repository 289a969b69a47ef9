#include "frmeBayFees.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>

#include "tagged_strings.h"

namespace {

// The designed size, in twips. The outer heights include the window's caption and menu bar.
constexpr int kTwipsPerInch = 1440;
constexpr int kClientWidth = 11475;
constexpr int kHeightWithNotepad = 8415;
constexpr int kHeightWithoutNotepad = 6600;
constexpr int kCaptionAndMenuHeight = 840;

// In the designed menu of the languages; more are added when there are more languages.
constexpr int kLanguagePlaces = 11;

#ifdef Q_OS_WIN
constexpr QLatin1StringView kProgramFile("Tessaloom.exe");
#else
constexpr QLatin1StringView kProgramFile("Tessaloom");
#endif

/// Searching for a family that is not installed costs start-up time and ends with the desktop's font anyway.
void useFontIfInstalled(QWidget& widget, const QString& family) {
  if (!QFontDatabase::hasFamily(family)) return;
  QFont font = widget.font();
  font.setFamily(family);
  widget.setFont(font);
}

}  // namespace

frmeBayFees::frmeBayFees(Surroundings surroundings) : m_surroundings(std::move(surroundings)) {
  m_form.setupUi(this);
  m_single.setupUi(m_form.tabSingleItem);
  m_multiple.setupUi(m_form.tabMultipleItems);
  m_payment.setupUi(m_form.tabPaymentServices);
  m_shipping.setupUi(m_form.tabShipping);
  prepareLayout();
  prepareMenus();
  connectMenus();
  connectSiteMenu();
  connectTabs();
  connectEntryFields();
  connectLinks();
  prepareKeyboard();
}

// While its controls go the focus still moves, and there is no calculator window any more to be told of it.
frmeBayFees::~frmeBayFees() {
  qApp->disconnect(this);
  m_form.SSTab1->disconnect(this);
}

void frmeBayFees::prepareLayout() {
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  m_form.centralWidget->installEventFilter(this);
  useFontIfInstalled(*m_form.centralWidget, QStringLiteral("Tahoma"));
  useFontIfInstalled(*m_form.txtNotes, QStringLiteral("Verdana"));
  // The items of a list change their widths with the language.
  for (QComboBox* list : findChildren<QComboBox*>()) list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  // What comes and goes with a choice keeps its place, so that nothing else moves.
  for (QWidget* control : std::initializer_list<QWidget*>{
           m_single.cboIsReserve, m_single.optMotorcycle, m_single.optOtherVehicle,
           m_single.linVerticalLineToVehicleType, m_single.linHorizontalLineToMotorcycle,
           m_single.linHorizontalLineToOtherVehicle, m_single.cboRealEstateType, m_single.optTimeshare,
           m_single.optOtherRealEstate, m_multiple.chkEBayMotorsDutch}) {
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
  }
  // The pages were filled after the form around them: the notepad's controls come last.
  const std::array<QWidget*, 6> last{m_shipping.lblPacking, m_form.cmdNotepad,      m_form.cmdPrintNotepad,
                                     m_form.cmdCopyNotepad, m_form.cmdClearNotepad, m_form.txtNotes};
  for (std::size_t at = 1; at < last.size(); ++at) setTabOrder(last[at - 1], last[at]);
}

void frmeBayFees::prepareMenus() {
  for (QAction* separator :
       {m_form.Break, m_form.sep1, m_form.mnuHelpBreak, m_form.mnuHelpSep2, m_form.mnuHelpSep3,
        m_form.mnuHelpSourcesDiv3, m_form.mnuHelpSourcesDiv, m_form.mnuHelpSourcesDiv2}) {
    separator->setSeparator(true);
  }
  m_languageGroup = new QActionGroup(this);
  for (int index = 0; index < kLanguagePlaces; ++index) addLanguagePlace();
}

void frmeBayFees::connectMenus() {
  on(m_form.mnuFileNewWindow, &QAction::triggered, &frmeBayFees::mnuFileNewWindow_Click);
  on(m_form.mnuFileExit, &QAction::triggered, &frmeBayFees::mnuFileExit_Click);
  on(m_form.mnuOptionsSaveSettings, &QAction::triggered, &frmeBayFees::mnuOptionsSaveSettings_Click);
  on(m_form.mnuOptionsOnTop, &QAction::triggered, &frmeBayFees::mnuOptionsOnTop_Click);
}

void frmeBayFees::connectTabs() {
  connectSingleItemTab();
  connectMultipleItemsTab();
  connectPaymentTab();
  connectNotepad();
}

void frmeBayFees::Initialize(std::shared_ptr<CStartStatus> startStatus) {
  m_startStatus = std::move(startStatus);
  m_startStatus->setWindow(this);
}

void frmeBayFees::Form_Load() {
  guarded([this] {
    m_form.SSTab1->setCurrentIndex(0);
    m_single.cboRealEstateType->setCurrentIndex(0);
    m_site = std::make_unique<CAuctionSite>();
    m_regularAuction = std::make_unique<CRegularAuction>(m_surroundings.locale);
    m_dutchAuction = std::make_unique<CDutchAuction>(m_surroundings.locale);
    m_paymentService = std::make_unique<CPaymentService>(m_surroundings.locale);
    m_notes = std::make_unique<CNotes>();
    if (m_startStatus && m_startStatus->isFirstRun()) guarded([this] { writeFirstRunDefaults(); });
    BuildLanguageMenu();
    captureCaptions();  // before any caption is replaced by its text in the current language
    applyCaptions();
    restoreSettings();
  });
  m_single.txtStartingPrice->setFocus();
  m_single.txtStartingPrice->selectAll();  // a price typed now replaces the stored one
  fitSize();
  QMainWindow::show();
}

void frmeBayFees::closeEvent(QCloseEvent* event) {
  guarded([this] { Form_Unload(); });
  event->accept();
}

bool frmeBayFees::eventFilter(QObject* watched, QEvent* event) {
  // A text somewhere has changed its size; by now the layouts in between know what they need.
  if (event->type() == QEvent::LayoutRequest) fitSize();
  return QMainWindow::eventFilter(watched, event);
}

void frmeBayFees::Form_Unload() {
  // File > Exit unloads the window, and quitting closes it again.
  if (m_isUnloaded) return;
  m_isUnloaded = true;
  guarded([this] { SaveAppSetting(QStringLiteral("Site"), QString::number(currentSite())); });
  guarded([this] { SaveConversionRate(); });
  m_site.reset();
  m_dutchAuction.reset();
  m_regularAuction.reset();
  m_paymentService.reset();
  m_startStatus.reset();
  m_notes.reset();
}

void frmeBayFees::mnuFileNewWindow_Click() {
  // A fixed name beside this program, not the running file. Failure is silent: the window is a convenience.
  const QString program = QDir(m_surroundings.programFolder).filePath(kProgramFile);
  if (QFileInfo::exists(program)) m_surroundings.programs.start(program);
}

void frmeBayFees::mnuFileExit_Click() {
  close();
  QCoreApplication::quit();
}

void frmeBayFees::mnuOptionsOnTop_Click() {
  // The check mark, which the click has just turned, is the only record of the state.
  m_surroundings.stacking.request(*this, m_form.mnuOptionsOnTop->isChecked());
}

// The order matters: the site's rules have the last word on the reserve list.
void frmeBayFees::RefreshWindow() {
  refreshVehicleControls();
  refreshRealEstateControls();
  refreshReserveList();
  refreshSiteFeatures();
  refreshNotepad();
  refreshPhotoLists();
}

void frmeBayFees::fitSize() {
  const auto pixels = [this](int twips) { return twips * logicalDpiY() / kTwipsPerInch; };
  const int height = m_notepadVisible ? kHeightWithNotepad : kHeightWithoutNotepad;
  const QSize designed(pixels(kClientWidth), pixels(height - kCaptionAndMenuHeight));
  // Longer texts or a larger font than the design's may need more room: nothing is clipped.
  QWidget* client = m_form.centralWidget;
  client->layout()->activate();
  client->setFixedSize(designed.expandedTo(client->minimumSizeHint()));
}

void frmeBayFees::refreshPhotoLists() {
  const auto follow = [](QComboBox* list, const QCheckBox* box) {
    list->setEnabled(box->isChecked());
    list->setBackgroundRole(box->isChecked() ? QPalette::Base : QPalette::Button);
  };
  follow(m_single.cboExtraPhotos, m_single.chkExtraPhotos);
  follow(m_multiple.cboExtraPicturesDutch, m_multiple.chkExtraPicturesDutch);
}

void frmeBayFees::reportError(const QString& description) {
  // One message for one event.
  if (std::exchange(m_isErrorPending, true)) return;
  // A closing window has no after, and its closing is its last event.
  if (m_isUnloaded) return m_surroundings.errors.show(this, description);
  // After the event: a message must not open from within a change of focus.
  const auto tellLater = [this, description] {
    m_isErrorPending = false;
    m_surroundings.errors.show(this, description);
  };
  QMetaObject::invokeMethod(this, tellLater, Qt::QueuedConnection);
}

void frmeBayFees::onChosen(std::initializer_list<QRadioButton*> options, void (frmeBayFees::*handler)()) {
  for (QRadioButton* option : options) {
    connect(option, &QRadioButton::toggled, this, [this, handler](bool isChosen) {
      if (isChosen) guarded([this, handler] { (this->*handler)(); });
    });
  }
}

void frmeBayFees::say(const QString& taggedText) {
  m_form.lblStatus->say(Localization::GetTagString(taggedText));
}

void frmeBayFees::show(QLineEdit& box, const std::string& text) {
  const QString shown = QString::fromStdString(text);
  if (box.text() != shown) box.setText(shown);
}

std::string frmeBayFees::textOf(const QLineEdit& box) { return box.text().toStdString(); }
