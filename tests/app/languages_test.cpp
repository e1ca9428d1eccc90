// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Every text of the windows in another language, and room for it.

#include "app/languages.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFile>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QMenuBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>

#include "app/desktop.h"
#include "app/desktop_dialogs.h"
#include "app/event_documents.h"
#include "record/make_events_dialog.h"
#include "record/measurements_window.h"
#include "record/record_window.h"
#include "tests/support/documents/environment.h"
#include "tests/support/documents/modal.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/menu_keys.h"
#include "tests/support/windows/pseudo_language.h"
#include "tests/support/windows/shown_texts.h"
#include "tests/support/windows/waiting.h"
#include "track/track_window.h"
#include "widgets/presentation_panel.h"

namespace velquon::test {

namespace {

/// Hears which texts of Qt itself are looked up, and knows their translations.
class TextsOfQt : public QTranslator {
 public:
  explicit TextsOfQt(const QString& code)
      : known_(of_qt_.load(QStringLiteral("qtbase_") + code,
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {}

  [[nodiscard]] QString translate(const char* context, const char* source, const char* comment,
                                  int count) const override {
    if (context[0] == 'Q') {
      translations_[QString::fromUtf8(source)] = of_qt_.translate(context, source, comment, count);
    }
    return {};
  }
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] bool areKnown() const { return known_; }
  /// Whether a shown text is one of Qt's that should be another in this language.
  [[nodiscard]] bool isLeftInEnglish(const QString& text) const {
    // Words of the program's own that Qt has as well.
    static const QStringList own{QStringLiteral("OK"), QStringLiteral("Zoom")};
    return !own.contains(text) && translations_.value(text, text) != text;
  }

 private:
  QTranslator of_qt_;
  bool known_;
  mutable QHash<QString, QString> translations_;
};

/// The whole program in a language, with the dialogs of a desktop.
class LanguagesTest : public ApplicationFixture, public ::testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QString code = QLatin1String(GetParam());
    language_ = std::make_unique<TestedLanguage>(code);
    if (!isPseudo()) {
      texts_of_qt_ = std::make_unique<TextsOfQt>(code);
      QCoreApplication::installTranslator(texts_of_qt_.get());
      EXPECT_TRUE(texts_of_qt_->areKnown());
    }
    ApplicationFixture::SetUp();
  }
  [[nodiscard]] UserDialogs& dialogs() override { return desktop_dialogs_; }
  [[nodiscard]] bool isPseudo() const { return language_->isPseudo(); }

  /// Expects the texts of a window to be translated and to have room.
  void look(const QWidget& window, const std::string& state = {}) {
    handle_waiting_events();
    ++looks_;
    for (const auto& [place, text] : texts_in(window)) {
      const bool is_path = text.startsWith(QLatin1Char('/'));
      EXPECT_TRUE(!isPseudo() || is_path || untranslated_part(text).isEmpty())
          << state << ", " << place << ": " << text.toStdString();
      EXPECT_FALSE(texts_of_qt_ != nullptr && texts_of_qt_->isLeftInEnglish(text))
          << state << ", " << place << ": " << text.toStdString();
    }
    for (const auto& [place, text] : cut_off_in(window)) {
      // One that may be cut says all in its tool tip; in the real languages it has room.
      const bool is_status = place.find("track_status_text") != std::string::npos;
      EXPECT_TRUE(isPseudo() && is_status) << state << ", " << place << ": " << text.toStdString();
    }
  }

  /// Runs what opens a dialog, looks at that and closes it.
  void lookAtDialog(const char* dialog_class, const std::string& state,
                    const std::function<void()>& open) {
    activate(chamberWindow());
    EXPECT_TRUE(with_dialogs(open, {{dialog_class,
                                     [&](QWidget& dialog) {
                                       look(dialog, state);
                                       dialog.close();
                                     }}}))
        << state;
  }

  /// Looks at the window that an item opens in front of the others, and closes it.
  void lookAtWindowOf(
      const char* item_name,
      const std::function<void(QWidget&)>& more = [](QWidget& /*window*/) {}) {
    const QWidget* const before = QApplication::activeWindow();
    choose(item_name);
    ASSERT_TRUE(wait_until([&] {
      return QApplication::activeWindow() != nullptr && QApplication::activeWindow() != before;
    })) << item_name;
    QWidget* const window = QApplication::activeWindow();
    look(*window, item_name);
    more(*window);
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_TRUE(wait_until([&] { return QApplication::activeWindow() == before; })) << item_name;
  }

  void lookAtPresentation() {
    choose("presentation_item");
    ASSERT_TRUE(wait_until([this] { return chamberWindow().isFullScreen(); }));
    const auto* const panel = chamberWindow().findChild<PresentationPanel*>();
    ASSERT_NE(panel, nullptr);
    look(*panel, "presentation");
    choose("presentation_item");
    ASSERT_TRUE(wait_until([this] { return !chamberWindow().isFullScreen(); }));
  }

  void lookAtViews(const std::string& state) {
    look(chamberWindow(), state);
    look(projectorWindow(), state);
  }

  /// A row of every quantity, as the table holds it.
  void measureEverything() {
    MeasurementTable rows;
    for (std::size_t quantity = 0; quantity < quantity_names.size(); ++quantity) {
      for (const double value : {1.0, 2.5}) {
        Measurement row;
        row.event = "Untitled Type 1 Decay 3";
        row.quantity = static_cast<Quantity>(quantity);
        row.value = value;
        row.ending = value > 2.0 ? velquon::Ending::left : velquon::Ending::decayed;
        rows.push_back(row);
      }
    }
    application().measurements().add(std::move(rows));
  }

  void walkThroughTheWindows() {
    lookAtViews("at the start");
    choose("lambda_item");
    choose("new_event_item");
    lookAtViews("with an event");
    for (const char* const tool : {"grab_tool", "curve_tool", "angle_tool"}) {
      clickButton(tool);
      look(projectorWindow(), tool);
    }
    lookAtWindowOf("guide_item", [this](QWidget& guide) {
      const auto* const page = guide.findChild<QTextBrowser*>();
      ASSERT_NE(page, nullptr);
      EXPECT_EQ(page->source().path().toStdString(),
                isPseudo() ? "/docs/guide.md" : std::string("/docs/") + GetParam() + "/guide.md");
    });
    lookAtWindowOf("shortcuts_item");
    lookAtPresentation();
    choose("event_record_item");
    look(application().recordWindow(), "record");
    application().recordWindow().findChild<QCheckBox*>(QStringLiteral("hide_answers_box"))->click();
    look(application().recordWindow(), "answers hidden");
    ASSERT_NO_FATAL_FAILURE(showTrackWindow());
    look(application().trackWindow(), "track");
    lookAtViews("while the track window is active");
    choose("activate_item");
  }

  void walkThroughTheMeasurements() {
    choose("measurements_item");
    MeasurementsWindow& window = application().measurementsWindow();
    ASSERT_TRUE(wait_until_exposed(&window));
    look(window, "empty");
    application().recordReadings();
    look(window, "nothing to record");
    measureEverything();
    for (int fit = 0; fit < 3; ++fit) {
      window.findChild<QComboBox*>(QStringLiteral("fit_popup"))->setCurrentIndex(fit);
      look(window, "fit " + std::to_string(fit));
    }
    const QAbstractItemModel& table = *window.table().model();
    for (int row = 0; isPseudo() && row < table.rowCount(); ++row) {
      for (int column = 0; column < table.columnCount(); ++column) {
        const QString text = table.index(row, column).data().toString();
        EXPECT_EQ(untranslated_part(text), QString()) << text.toStdString();
      }
    }
    window.findChild<QAction*>(QStringLiteral("make_events_item"))->trigger();
    MakeEventsDialog* const dialog = window.makeEventsDialog();
    ASSERT_TRUE(dialog != nullptr && wait_until_exposed(dialog));
    look(*dialog, "make events");
    dialog->reject();
    application().measurements().setSaved();
  }

  void walkThroughTheDialogs() {
    // One with points to export.
    choose("piminus_item");
    choose("new_event_item");
    for (const auto& [item_name, dialog_class] : {std::pair{"print_item", "velquon::PrintPanel"},
                                                  {"worksheets_item", "velquon::WorksheetPanel"},
                                                  {"save_picture_item", "velquon::PicturePanel"},
                                                  {"open_item", "QFileDialog"},
                                                  {"import_item", "QFileDialog"},
                                                  {"save_item", "QFileDialog"},
                                                  {"export_points_item", "QFileDialog"},
                                                  {"export_record_item", "QFileDialog"},
                                                  {"about_item", "QMessageBox"}}) {
      lookAtDialog(dialog_class, item_name, [&, name = item_name] { choose(name); });
    }
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("1")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
    file.close();
    lookAtDialog("QMessageBox", "wrong format",
                 [&] { application().documents().application_openFile(file.fileName()); });
    lookAtDialog("QMessageBox", "unsaved", [&] {
      measureEverything();
      choose("quit_item");
    });
    application().measurements().setSaved();
  }

  int looks_ = 0;

 private:
  DesktopDialogs desktop_dialogs_;
  std::unique_ptr<TestedLanguage> language_;
  std::unique_ptr<TextsOfQt> texts_of_qt_;
};

TEST_P(LanguagesTest, EveryTextIsTranslatedAndHasRoom) {
  walkThroughTheWindows();
  walkThroughTheMeasurements();
  walkThroughTheDialogs();
  if (!isPseudo()) {
    expect_own_letters(chamberWindow().menuBar()->actions());
    expect_own_letters(application().measurementsWindow().menuBar()->actions());
  }
  EXPECT_EQ(looks_, 32);
}

INSTANTIATE_TEST_SUITE_P(Each, LanguagesTest, ::testing::Values("pseudo", "de", "es", "fr", "it"));

TEST(LanguageChoice, NumbersKeepTheirPoint) {
  const EnvironmentVariable german("LC_ALL", "de_DE.UTF-8");
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  ASSERT_EQ(QDoubleSpinBox().textFromValue(2.5), QStringLiteral("2,50"));
  finish_desktop();
  const ShownLanguage language(QStringLiteral("de"));
  EXPECT_EQ(QDoubleSpinBox().textFromValue(2.5), QStringLiteral("2.50"));
}

TEST(LanguageChoice, IsTheFirstOneThatThereIs) {
  struct Case {
    const char* preferred;
    const char* chosen;
  };
  for (const auto& [preferred, chosen] : {Case{"de-AT de", "de"},
                                          {"pl-PL pl fr-FR", "fr"},
                                          {"en-GB de", "en"},
                                          {"it", "it"},
                                          {"es_419", "es"},
                                          {"pl", "en"},
                                          {"C", "en"},
                                          {"", "en"},
                                          {"deu", "en"}}) {
    EXPECT_EQ(language_for(QString::fromLatin1(preferred).split(QLatin1Char(' '))).toStdString(),
              chosen)
        << preferred;
  }
}

}  // namespace

}  // namespace velquon::test
