#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QScrollBar>

#include "frmeBayFees.h"
#include "tagged_strings.h"
#include "word_wrap.h"

using Localization::GetTagString;

namespace {

/// The hourglass, for as long as it lives.
class BusyPointer {
 public:
  BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  BusyPointer(BusyPointer&&) = delete;
  BusyPointer& operator=(BusyPointer&&) = delete;
};

}  // namespace

void frmeBayFees::connectNotepad() {
  on(m_form.cmdNotepad, &QPushButton::clicked, &frmeBayFees::cmdNotepad_Click);
  on(m_single.cmdAddRegularToNotes, &QPushButton::clicked, &frmeBayFees::cmdAddRegularToNotes_Click);
  on(m_multiple.cmdAddDutchToNotes, &QPushButton::clicked, &frmeBayFees::cmdAddDutchToNotes_Click);
  on(m_payment.cmdAddPaymentsToNotes, &QPushButton::clicked, &frmeBayFees::cmdAddPaymentsToNotes_Click);
  on(m_form.cmdCopyNotepad, &QPushButton::clicked, &frmeBayFees::cmdCopyNotepad_Click);
  on(m_form.cmdClearNotepad, &QPushButton::clicked, &frmeBayFees::cmdClearNotepad_Click);
  on(m_form.cmdPrintNotepad, &QPushButton::clicked, &frmeBayFees::cmdPrintNotepad_Click);
  on(m_form.mnuFilePrint, &QAction::triggered, &frmeBayFees::cmdPrintNotepad_Click);
}

void frmeBayFees::cmdNotepad_Click() {
  m_notepadVisible = !m_notepadVisible;
  RefreshWindow();
}

void frmeBayFees::refreshNotepad() {
  m_form.cmdNotepad->setText(GetTagString(m_notepadVisible ? QStringLiteral("hide notepad<0628>")
                                                           : QStringLiteral("view notepad<0629>")));
  for (QWidget* control : std::initializer_list<QWidget*>{m_form.txtNotes, m_form.cmdClearNotepad,
                                                          m_form.cmdCopyNotepad, m_form.cmdPrintNotepad}) {
    control->setVisible(m_notepadVisible);
  }
  if (isVisible()) fitSize();  // while it loads it is measured once, at the end
}

void frmeBayFees::cmdAddRegularToNotes_Click() {
  if (!m_notes) return;
  const bool isReserve = m_single.cboIsReserve->currentIndex() != 0;  // also while the list is hidden
  addToNotes(m_notes->AddToNotesRegular(isReserve, m_single.txtStartingPrice->text(),
                                        m_single.txtInsertionFee->text(), m_single.txtExtras->text(),
                                        ItemSold(), m_single.txtPrice->text(), m_single.txtFVF->text(),
                                        m_single.txtFees->text(), *m_site));
}

void frmeBayFees::cmdAddDutchToNotes_Click() {
  if (!m_notes) return;
  addToNotes(m_notes->AddToNotesDutch(
      m_multiple.txtDutchItemsOffered->text(), m_multiple.txtDutchOpeningPrice->text(),
      m_multiple.txtExtraFeaturesDutch->text(), m_multiple.txtDutchItemsSold->text(),
      m_multiple.txtDutchFinalPrice->text(), m_multiple.txtTotalDutchAuctionSales->text(),
      m_multiple.txtDutchFees->text(), m_multiple.txtDutchCostPerItem->text(), *m_site));
}

void frmeBayFees::cmdAddPaymentsToNotes_Click() {
  if (!m_notes) return;
  addToNotes(m_notes->AddToNotesPayment(m_payment.txtPaymentAmount->text(), m_payment.txtPayPalFee->text(),
                                        *m_site));
}

// Behind what stands there: setting the whole text anew would take longer with every entry.
void frmeBayFees::addToNotes(const QString& entry) {
  QPlainTextEdit& box = *m_form.txtNotes;
  QTextCursor caret(box.document());
  caret.movePosition(QTextCursor::End);
  caret.insertText(QString(entry).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  caret.movePosition(QTextCursor::PreviousCharacter);
  box.setTextCursor(caret);
  box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum());
  m_form.lblStatus->say(
      GetTagString(QStringLiteral("Entry %1 added to the notepad<5008>")).arg(m_notes->lastNumber()));
}

// The box keeps one character for a line break; outside it takes two. As raw text, because the plain one has
// a blank for every no-break space, and French labels would break before their colons.
QString frmeBayFees::notes() const {
  QString text = m_form.txtNotes->document()->toRawText();
  for (const QChar lineBreak : {QChar::ParagraphSeparator, QChar::LineSeparator}) {
    text.replace(lineBreak, QStringLiteral("\r\n"));
  }
  return text;
}

void frmeBayFees::cmdCopyNotepad_Click() {
  QGuiApplication::clipboard()->setText(notes());
  say(QStringLiteral("Copied<5011>"));
}

// The numbering of the entries goes on, and Ctrl+Z brings the text back.
void frmeBayFees::cmdClearNotepad_Click() {
  QTextCursor all(m_form.txtNotes->document());
  all.select(QTextCursor::Document);
  all.removeSelectedText();
}

void frmeBayFees::cmdPrintNotepad_Click() {
  // A printer puts title, date and page on a sheet for it; nobody is asked to name a file for that.
  if (m_form.txtNotes->document()->isEmpty() && !m_surroundings.printer.hasPrinter()) {
    m_surroundings.messages.showPlain(
        this, QCoreApplication::applicationName(),
        GetTagString(QStringLiteral("The notepad is empty. There is nothing to print.<5005>")));
    return;
  }
  const auto job = m_surroundings.printer.open(this, GetTagString(QStringLiteral("Tessaloom Notes<0668>")));
  if (!job) return;
  const BusyPointer hourglass;
  CWordWrap page(*job, QLocale().toString(m_surroundings.clock.today(), QLocale::ShortFormat));
  page.PrintText(notes());
}
