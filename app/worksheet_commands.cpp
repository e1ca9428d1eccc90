// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/worksheet_commands.h"

#include <QApplication>
#include <QCoreApplication>
#include <QProgressDialog>
#include <optional>

#include "model/chamber_model.h"
#include "model/clock.h"
#include "printing/whole_file.h"
#include "printing/worksheet_panel.h"
#include "printing/worksheets.h"
#include "ui_menus.h"
#include "widgets/commands.h"
#include "widgets/user_dialogs.h"

namespace velquon {

namespace {

struct WorksheetTexts {
  Q_DECLARE_TR_FUNCTIONS(velquon::Worksheet)
};

/// What the panel offers: the events that New Event would make, from a seed that is easily typed
/// again.
WorksheetOrder offered_order(const ChamberModel& model) {
  constexpr int usual_class = 30;
  constexpr std::uint64_t seeds_offered = 100'000;
  return {.type = &event_types()[static_cast<std::size_t>(model.event_type())],
          .values = model.chosen(),
          .seed = static_cast<std::uint32_t>(Microseconds() % seeds_offered),
          .events = usual_class};
}

/// Files that the user wants written.
struct WorksheetFiles {
  QString sheets;
  QString answers;  ///< empty for none
};

/// Asks for the names of the files; nothing when the user gives up.
std::optional<WorksheetFiles> ask_for_files(UserDialogs& dialogs, bool with_answers) {
  const QString filter = WorksheetTexts::tr("PDF files (*.pdf)");
  const QString suffix = QStringLiteral("pdf");
  WorksheetFiles files;
  files.sheets = dialogs.fileToSave(WorksheetTexts::tr("Save Worksheets"),
                                    WorksheetTexts::tr("Worksheets"), filter, suffix);
  if (files.sheets.isEmpty() || !with_answers) {
    return files.sheets.isEmpty() ? std::nullopt : std::optional(files);
  }
  files.answers = dialogs.fileToSave(WorksheetTexts::tr("Save Answers"),
                                     WorksheetTexts::tr("Worksheet Answers"), filter, suffix);
  if (!files.answers.isEmpty() && is_one_file(files.answers, files.sheets)) {
    dialogs.alert(WorksheetTexts::tr("Not saved"),
                  WorksheetTexts::tr("The worksheets and their answers need files of two names."));
    return std::nullopt;
  }
  return files.answers.isEmpty() ? std::nullopt : std::optional(files);
}

/// Makes the worksheets, with a window that tells how far it is when it takes long.
/// \return nothing when the user ends it
std::optional<WorksheetDocuments> make_with_progress(const WorksheetOrder& order) {
  constexpr int long_work = 1000;  // milliseconds
  QProgressDialog progress(WorksheetTexts::tr("Making worksheets…"), WorksheetTexts::tr("Cancel"),
                           0, order.events, QApplication::activeWindow());
  progress.setWindowTitle(WorksheetTexts::tr("Print Worksheets"));
  progress.setWindowModality(Qt::ApplicationModal);
  progress.setMinimumDuration(long_work);
  progress.setValue(0);
  return make_worksheets(order, [&progress](int done) {
    progress.setValue(done);
    return !progress.wasCanceled();
  });
}

bool save(UserDialogs& dialogs, const QString& path, const QByteArray& bytes) {
  const auto reason = write_whole_file(path, bytes);
  if (reason) {
    dialogs.alert(WorksheetTexts::tr("Not saved"),
                  WorksheetTexts::tr("Velquon can't write the file %1: %2.").arg(path, *reason));
  }
  return !reason;
}

void print_worksheets(const ChamberModel& model, UserDialogs& dialogs) {
  WorksheetPanel panel(offered_order(model), QApplication::activeWindow());
  if (panel.exec() != QDialog::Accepted) {
    return;
  }
  const auto files = ask_for_files(dialogs, panel.withAnswers());
  if (!files) {
    return;
  }
  const auto documents = make_with_progress(panel.order());
  if (documents && save(dialogs, files->sheets, documents->sheets) && !files->answers.isEmpty()) {
    save(dialogs, files->answers, documents->answers);
  }
}

}  // namespace

void add_worksheet_command(Commands& commands, const Ui::Menus& menus, const ChamberModel& model,
                           UserDialogs& dialogs) {
  commands.add({.item = menus.worksheets_item,
                .run = [&model, &dialogs] { print_worksheets(model, dialogs); }});
}

}  // namespace velquon
