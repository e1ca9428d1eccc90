// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/guide_window.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

#include "guide/guide_browser.h"
#include "guide/guide_contents.h"

namespace velquon {

GuideWindow::GuideWindow(QWidget* parent)
    : QWidget(parent, Qt::Window),
      pages_(read_guide_pages(tr("en", "code of this language; names the folder of its guide"))),
      contents_(new GuideContents),
      browser_(new GuideBrowser) {
  setWindowTitle(tr("Velquon Guide"));
  browser_->setAccessibleName(tr("Velquon Guide"));
  auto* const bar = new QToolBar(this);
  auto* const sides = new QSplitter(this);
  sides->addWidget(contents_);
  sides->addWidget(browser_);
  sides->setStretchFactor(1, 1);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(bar);
  layout->addWidget(sides, 1);

  addReading(*bar);
  addTextSizes(*bar);
  addSearch(*bar);
  contents_->setPages(pages_);
  constexpr int page_width = 640;
  const int contents_width = contents_->roomForHeadings();
  sides->setSizes({contents_width, page_width});
  connect(contents_, &GuideContents::chosen, this, &GuideWindow::goTo);
  connect(browser_, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
    // The browser's own source is still the page before.
    const std::size_t page = page_at(pages_, url);
    contents_->showPage(page);
    markHits(page);
  });
  browser_->setSource(pages_.front().url);
  browser_->setFocus();
  new QShortcut(QKeySequence(Qt::Key_Escape), this, this, &GuideWindow::escape);
  constexpr int window_height = 720;
  resize(contents_width + page_width, window_height);
}

QAction* GuideWindow::addItem(QToolBar& bar, const QString& text, const QString& tip,
                              const QList<QKeySequence>& keys) {
  auto* const item = new QAction(text, this);
  item->setShortcuts(keys);
  item->setToolTip(keys.isEmpty()
                       ? tip
                       : tr("%1 (%2)").arg(tip, keys.front().toString(QKeySequence::NativeText)));
  bar.addAction(item);
  return item;
}

void GuideWindow::addReading(QToolBar& bar) {
  QAction* const back = addItem(bar, tr("Back"), tr("The page before"), {QKeySequence::Back});
  QAction* const forward =
      addItem(bar, tr("Forward"), tr("The page that was left by Back"), {QKeySequence::Forward});
  connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
  connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  back->setEnabled(false);
  forward->setEnabled(false);
  bar.addSeparator();
}

void GuideWindow::addTextSizes(QToolBar& bar) {
  QAction* const smaller =
      addItem(bar, tr("A−"), tr("Smaller text"), QKeySequence::keyBindings(QKeySequence::ZoomOut));
  // The plus of most keyboards is the shifted equals sign.
  QAction* const larger =
      addItem(bar, tr("A+"), tr("Larger text"),
              QKeySequence::keyBindings(QKeySequence::ZoomIn) + QList{QKeySequence(tr("Ctrl+="))});
  auto* const usual = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_0), this);
  connect(smaller, &QAction::triggered, browser_, [this] { browser_->enlarge(-1); });
  connect(larger, &QAction::triggered, browser_, [this] { browser_->enlarge(1); });
  connect(usual, &QShortcut::activated, browser_, &GuideBrowser::resetSize);
  connect(browser_, &GuideBrowser::sizeChanged, this, [this, smaller, larger] {
    smaller->setEnabled(browser_->canReduce());
    larger->setEnabled(browser_->canEnlarge());
  });
  bar.addSeparator();
}

void GuideWindow::addSearch(QToolBar& bar) {
  words_ = new QLineEdit;
  words_->setPlaceholderText(tr("Find in the guide (Ctrl+F)"));
  words_->setAccessibleName(tr("Find in the guide"));
  words_->setClearButtonEnabled(true);
  bar.addWidget(words_);
  QAction* const before = addItem(bar, tr("▲"), tr("The place before"),
                                  QKeySequence::keyBindings(QKeySequence::FindPrevious));
  QAction* const next = addItem(bar, tr("▼"), tr("The next place"),
                                QKeySequence::keyBindings(QKeySequence::FindNext));
  found_ = new QLabel;
  // Room for what is told, so that nothing moves while words are typed.
  found_->setMinimumWidth(
      std::max(fontMetrics().horizontalAdvance(tr("  %1 of %2  ").arg(999).arg(999)),
               fontMetrics().horizontalAdvance(tr("  not found  "))));
  bar.addWidget(found_);

  connect(words_, &QLineEdit::textChanged, this, &GuideWindow::search);
  connect(words_, &QLineEdit::returnPressed, next, &QAction::trigger);
  connect(next, &QAction::triggered, this, [this] {
    search_.goOn();
    showHit();
  });
  connect(before, &QAction::triggered, this, [this] {
    search_.goBack();
    showHit();
  });
  auto* const find = new QShortcut(QKeySequence(QKeySequence::Find), this);
  connect(find, &QShortcut::activated, this, [this] {
    words_->setFocus(Qt::ShortcutFocusReason);
    words_->selectAll();
  });
}

void GuideWindow::goTo(std::size_t page, int block) {
  if (browser_->source() != pages_.at(page).url) {
    browser_->setSource(pages_.at(page).url);
  }
  browser_->goToBlock(block);
}

void GuideWindow::search() {
  const GuideHit reading{page_at(pages_, browser_->source()),
                         browser_->textCursor().selectionStart()};
  search_.look(pages_, words_->text(), reading);
  showHit();
}

void GuideWindow::showHit() {
  if (search_.hits().empty()) {
    found_->setText(words_->text().isEmpty() ? QString() : tr("  not found  "));
    QTextCursor cursor = browser_->textCursor();
    cursor.setPosition(cursor.selectionStart());
    browser_->setTextCursor(cursor);
    browser_->setExtraSelections({});
    return;
  }
  found_->setText(tr("  %1 of %2  ").arg(search_.present() + 1).arg(search_.hits().size()));
  const GuideHit& hit = search_.hits()[search_.present()];
  if (browser_->source() != pages_.at(hit.page).url) {
    browser_->setSource(pages_.at(hit.page).url);
  }
  QTextCursor cursor(browser_->document());
  cursor.setPosition(hit.position);
  cursor.setPosition(hit.position + static_cast<int>(words_->text().size()),
                     QTextCursor::KeepAnchor);
  browser_->setTextCursor(cursor);
  browser_->ensureCursorVisible();
  markHits(hit.page);
}

void GuideWindow::markHits(std::size_t page) {
  QList<QTextEdit::ExtraSelection> marks;
  for (const GuideHit& hit : search_.hits()) {
    if (hit.page != page) {
      continue;
    }
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(browser_->document());
    mark.cursor.setPosition(hit.position);
    mark.cursor.setPosition(hit.position + static_cast<int>(words_->text().size()),
                            QTextCursor::KeepAnchor);
    // The same in every palette: black on yellow.
    mark.format.setBackground(Qt::yellow);
    mark.format.setForeground(Qt::black);
    marks.push_back(mark);
  }
  browser_->setExtraSelections(marks);
}

void GuideWindow::escape() {
  if (words_->hasFocus() && !words_->text().isEmpty()) {
    words_->clear();
    browser_->setFocus();
    return;
  }
  close();
}

}  // namespace velquon
