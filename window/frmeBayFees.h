#pragma once

#include <array>
#include <exception>
#include <memory>
#include <QMainWindow>
#include <utility>
#include <vector>

#include "dutch_auction.h"
#include "multiple_items_tab.h"
#include "notes.h"
#include "payment_service.h"
#include "payment_tab.h"
#include "regular_auction.h"
#include "single_item_tab.h"
#include "start_status.h"
#include "surroundings.h"
#include "tagged_captions.h"
#include "ui_frmeBayFees.h"
#include "ui_multiple_items_tab.h"
#include "ui_payment_services_tab.h"
#include "ui_shipping_tab.h"
#include "ui_single_item_tab.h"

class EntryField;
class QActionGroup;
struct Setting;
struct SettingAccess;

/// The calculator window. It gathers entries, shows figures and keeps the controls consistent; what a tab
/// computes is the fee model's (single_item_tab.h,
/// multiple_items_tab.h, payment_tab.h).
///
/// Which file holds what:
///   frmeBayFees.cpp                 loading, unloading, menus File and Options, size
///   frmeBayFees_captions.cpp        texts of the current language, menu of the languages
///   frmeBayFees_entry_fields.cpp    what happens when an entry box changes or is left
///   frmeBayFees_keyboard.cpp        keys, where the focus goes, the tab key's stops
///   frmeBayFees_links.cpp           the menu Help, and the labels that open a page
///   frmeBayFees_lists.cpp           the items of the lists
///   frmeBayFees_multiple_items.cpp  the Multiple Items tab
///   frmeBayFees_notepad.cpp         entries into the notepad, its view, copying, clearing, printing
///   frmeBayFees_payment.cpp         the Payment Services tab
///   frmeBayFees_settings.cpp        first-run defaults, restoring, saving
///   frmeBayFees_single_item.cpp     the Single Item tab
///   frmeBayFees_sites.cpp           the auction site: switching it, what depends on it
///
/// The way of an entry: a key passes the filter of its EntryField; the changed text must be a number or the
/// start of one (entryChanged); when the box is left it is normalised (leave...) and the tab is recalculated:
/// choices and texts are gathered, the fee model rewrites the texts, and they are shown.
///
/// Handlers are live while the program itself sets controls: a box ticked in code acts as if the user had
/// ticked it. No error leaves a handler; see `guarded`.
class frmeBayFees : public QMainWindow {
  Q_OBJECT

 public:
  explicit frmeBayFees(Surroundings surroundings);
  ~frmeBayFees() override;

  /// Takes over what the start found out. Once, before Form_Load.
  void Initialize(std::shared_ptr<CStartStatus> startStatus);

  /// Makes the window ready and shows it. Once.
  void Form_Load();

  /// True when opening and closing bid are both filled in.
  [[nodiscard]] bool IsValidRegular() const;
  /// False if the single item did not sell or its reserve was not met.
  [[nodiscard]] bool ItemSold() const;
  /// The place for a rule that would make listing fees follow the Motors choice. There is none.
  void UpdateListingFees() {}
  /// Recalculates the Payment Services tab, if there is an amount.
  void CalculatePaymentFees();
  /// Writes the fee of the amount as it stands, unformatted, into its box.
  void CalculatePayPalFee();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Life cycle (frmeBayFees.cpp)
  void prepareLayout();
  void prepareMenus();
  void connectMenus();
  void connectTabs();
  void Form_Unload();
  void mnuFileNewWindow_Click();
  void mnuFileExit_Click();
  void mnuOptionsOnTop_Click();
  void RefreshWindow();
  void refreshPhotoLists();
  void fitSize();

  // Captions (frmeBayFees_captions.cpp)
  void captureCaptions();
  void applyCaptions();
  void applyBrand();
  void showTextsOfState();
  void BuildLanguageMenu();
  void addLanguagePlace();
  void showLanguage(int index, const QString& caption, bool isChosen);
  void mnuLang_Click(int index);

  // Entry fields (frmeBayFees_entry_fields.cpp)
  struct EntryRow;
  void connectEntryFields();
  void confirm(const EntryRow& row);
  void entryChanged(const EntryRow& row);
  void raiseToGermanMinimum();
  [[nodiscard]] bool isNumber(const QLineEdit& box) const;
  /// The number in a box; 0 for what is none.
  [[nodiscard]] double valueOf(const QLineEdit& box) const;
  void leaveStartingPrice();
  void leavePrice();
  void leaveDutchOpeningPrice();
  void leaveDutchFinalPrice();
  void leaveDutchItemsOffered();
  void leavePaymentAmount();

  // Keyboard (frmeBayFees_keyboard.cpp)
  struct Page;
  [[nodiscard]] std::vector<Page> pages() const;
  [[nodiscard]] Page pageInFront() const;
  void prepareKeyboard();
  void stepToTheChosen(QRadioButton& first, QRadioButton& second);
  void openPage();
  void markDefaultButton(const QWidget* before, const QWidget* now);
  void prepareShortcuts();
  void settleFocusedBox();
  void clearPage();
  void addPageToNotes();
  void copyTotal();

  // Links (frmeBayFees_links.cpp)
  void connectLinks();
  [[nodiscard]] QString languageCode() const;
  void openLink(const QString& control);
  void openPage(const QString& address);
  void openMail(const QString& mailLink);
  void mnuHelpContents_Click();
  void mnuHelpHomepage_Click();
  void mnuHelpFeedback_Click();
  void mnuHelpSubscribe_Click();
  void mnuHelpUpdate_Click();
  void mnuHelpAbout_Click();

  // Lists (frmeBayFees_lists.cpp)
  void fillLists();

  // Settings (frmeBayFees_settings.cpp)
  [[nodiscard]] std::vector<Setting> settings();
  SettingAccess siteNumber();
  SettingAccess keptOnTop();
  SettingAccess notepadView();
  SettingAccess creditCard();
  SettingAccess rateOf(int site);
  void writeFirstRunDefaults();
  void restoreSettings();
  void settleRestoredWindow();
  void mnuOptionsSaveSettings_Click();
  [[nodiscard]] QString GetAppSetting(const QString& key);
  void SaveAppSetting(const QString& key, const QString& value);

  // Single Item tab (frmeBayFees_single_item.cpp)
  void connectSingleItemTab();
  void cmdCalculate_Click();
  void recalculateSingleItemTab();
  [[nodiscard]] bool isRaisedToOpening(const SingleItemBoxes& entered) const;
  [[nodiscard]] SingleItemChoices singleItemChoices() const;
  [[nodiscard]] SingleItemBoxes singleItemBoxes() const;
  void showSingleItemBoxes(const SingleItemBoxes& boxes);
  void chkDidNotSell_Click();
  void cboExtraPhotos_Click();
  void chkGallery_Click();
  void chkMotors_Click();
  void cboSingleItemType_Click();
  void cboIsReserve_Click();
  void cmdClearAll_Click();
  void refreshVehicleControls();
  void refreshRealEstateControls();
  void refreshReserveList();
  void choosePriceLabel();
  void captionGiftBox();

  // Multiple Items tab (frmeBayFees_multiple_items.cpp)
  void connectMultipleItemsTab();
  void DutchCalculate();
  [[nodiscard]] MultipleItemsChoices multipleItemsChoices() const;
  [[nodiscard]] MultipleItemsBoxes multipleItemsBoxes() const;
  void showMultipleItemsBoxes(const MultipleItemsBoxes& boxes);
  void chkEBayMotorsDutch_Click();
  void chkDutchGallery_Click();
  void cboTypeOfMultiItemListing_Click();
  void cmdDutchClearAll_Click();
  void chooseDutchPriceLabel();
  void captionDutchGiftBox();

  // Notepad (frmeBayFees_notepad.cpp)
  void connectNotepad();
  void cmdNotepad_Click();
  void refreshNotepad();
  void cmdAddRegularToNotes_Click();
  void cmdAddDutchToNotes_Click();
  void cmdAddPaymentsToNotes_Click();
  void addToNotes(const QString& entry);
  [[nodiscard]] QString notes() const;
  void cmdCopyNotepad_Click();
  void cmdClearNotepad_Click();
  void cmdPrintNotepad_Click();

  // Payment Services tab (frmeBayFees_payment.cpp)
  void connectPaymentTab();
  [[nodiscard]] PaymentChoices paymentChoices() const;
  [[nodiscard]] PaymentBoxes paymentBoxes() const;
  void showPaymentBoxes(const PaymentBoxes& boxes);
  void cmdClearPaymentFees_Click();

  // Sites (frmeBayFees_sites.cpp)
  void connectSiteMenu();
  void SelectSite(int site);
  void showSite(int site);
  void showTextsOfSite();
  void recalculateAllTabs();
  void SaveConversionRate();
  void showRate(const QString& stored);
  /// As it is stored.
  [[nodiscard]] QString rate() const;
  [[nodiscard]] int currentSite() const;
  void refreshSiteFeatures();
  void SetRealEstateAvailable(bool isAvailable);
  void ShowCurrencyLabels();
  void HighlightShippingCountries();

  // Helpers of all files
  /// Tells what has just happened, in the line under the tabs.
  void say(const QString& taggedText);
  /// Runs a handler. An error in it is reported and ends there: the program goes on.
  template <typename Handler>
  void guarded(Handler&& handler) noexcept;
  void reportError(const QString& description);
  /// Connects a signal to a guarded member, whatever the signal carries.
  template <typename Sender, typename Signal>
  void on(Sender* sender, Signal signal, void (frmeBayFees::*handler)());
  /// Connects option buttons: of a pair, the handler runs for the chosen one, not for the one that is left.
  void onChosen(std::initializer_list<QRadioButton*> options, void (frmeBayFees::*handler)());
  /// Calculates and shows what came out. An error goes on after what was calculated before it is shown.
  template <typename Calculate, typename Show>
  static void calculateAndShow(Calculate&& calculate, Show&& showResult);
  /// Shows a text in a box, unless it stands there already.
  static void show(QLineEdit& box, const std::string& text);
  [[nodiscard]] static std::string textOf(const QLineEdit& box);

  Surroundings m_surroundings;
  Ui::frmeBayFees m_form;
  Ui::SingleItemTab m_single;
  Ui::MultipleItemsTab m_multiple;
  Ui::PaymentServicesTab m_payment;
  Ui::ShippingTab m_shipping;
  std::vector<QAction*> m_mnuLang;
  QActionGroup* m_languageGroup = nullptr;
  TaggedCaptions m_captions;
  bool m_notepadVisible = false;
  bool m_isUnloaded = false;
  bool m_isErrorPending = false;

  std::unique_ptr<CAuctionSite> m_site;
  std::unique_ptr<CRegularAuction> m_regularAuction;
  std::unique_ptr<CDutchAuction> m_dutchAuction;
  std::unique_ptr<CPaymentService> m_paymentService;
  std::unique_ptr<CNotes> m_notes;
  std::shared_ptr<CStartStatus> m_startStatus;
};

template <typename Handler>
void frmeBayFees::guarded(Handler&& handler) noexcept {
  try {
    std::forward<Handler>(handler)();
  } catch (const std::exception& error) {
    reportError(QString::fromUtf8(error.what()));
  }
}

template <typename Sender, typename Signal>
void frmeBayFees::on(Sender* sender, Signal signal, void (frmeBayFees::*handler)()) {
  connect(sender, signal, this, [this, handler] { guarded([this, handler] { (this->*handler)(); }); });
}

template <typename Calculate, typename Show>
void frmeBayFees::calculateAndShow(Calculate&& calculate, Show&& showResult) {
  try {
    std::forward<Calculate>(calculate)();
  } catch (const std::exception&) {
    showResult();
    throw;
  }
  showResult();
}
