#include <functional>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "widget_counts.h"

/// \file
/// What `measure` compares the calculator with: a Qt window of the same size with as many controls of each
/// kind, on as many tabs, in plain grids, the notepad hidden alike, and captions of the usual length (12
/// letters in the forms). It has one font and no names, tooltips, handlers, settings or languages: what
/// the calculator takes longer than this, its own code and forms take.

namespace {

constexpr QSize kCalculatorSize(765, 403);  // with the notepad hidden, at 96 dots per inch
constexpr int kColumns = 6;
constexpr int kMenuBarMenus = 3;      // the other menus are submenus
constexpr int kLanguageEntries = 11;  // the calculator adds them in code

QString nextCaption() {
  constexpr std::array captions{"Closing Price", "Home Page", "US$",
                                "Featured Box",  "Quick Job", "Two Categories"};
  static std::size_t used = 0;
  return QString::fromLatin1(captions[used++ % captions.size()]);
}

using Make = std::function<QWidget*(QWidget*)>;

/// In the order of widget_counts.h.
const std::array<Make, kKindCount> kMakers{
    [](QWidget* page) { return new QLabel(nextCaption(), page); },
    [](QWidget* page) { return new QLineEdit(page); },
    [](QWidget* page) { return new QCheckBox(nextCaption(), page); },
    [](QWidget* page) { return new QRadioButton(nextCaption(), page); },
    [](QWidget* page) {
      auto* list = new QComboBox(page);
      list->addItems({nextCaption(), nextCaption()});
      return list;
    },
    [](QWidget* page) { return new QPushButton(nextCaption(), page); },
    [](QWidget* page) { return new QGroupBox(nextCaption(), page); },
    [](QWidget* page) {
      auto* line = new QFrame(page);
      line->setFrameShape(QFrame::HLine);
      return line;
    },
    [](QWidget* page) { return new QPlainTextEdit(page); },
};

void fillGrid(QWidget& page, QGridLayout& grid, const std::array<int, kKindCount>& counts) {
  int place = grid.rowCount() * kColumns;
  for (std::size_t kind = 0; kind < kKindCount; ++kind) {
    for (int made = 0; made < counts[kind]; ++made, ++place) {
      grid.addWidget(kMakers[kind](&page), place / kColumns, place % kColumns);
    }
  }
}

void fillMenus(QMenuBar& bar) {
  QMenu* last = nullptr;
  for (int menu = 0; menu < kMenuCount; ++menu) {
    last = menu < kMenuBarMenus ? bar.addMenu(nextCaption()) : last->addMenu(nextCaption());
  }
  for (int entry = 0; entry < kMenuEntryCount + kLanguageEntries; ++entry) {
    last->addAction(nextCaption());
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QMainWindow window;
  auto* client = new QWidget(&window);
  auto* clientGrid = new QGridLayout(client);
  auto* tabs = new QTabWidget(client);
  clientGrid->addWidget(tabs, 0, 0, 1, kColumns);
  fillGrid(*client, *clientGrid, kWidgetCounts.front());
  for (auto* notepad : client->findChildren<QPlainTextEdit*>()) notepad->hide();
  for (std::size_t at = 1; at < kWidgetCounts.size(); ++at) {
    auto* page = new QWidget;
    fillGrid(*page, *new QGridLayout(page), kWidgetCounts[at]);
    tabs->addTab(page, nextCaption());
  }
  fillMenus(*window.menuBar());
  window.setCentralWidget(client);
  window.resize(kCalculatorSize);
  window.show();
  return QApplication::exec();
}
